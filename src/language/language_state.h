#pragma once

#include <cstdint>

#include "platform/hook.h"

namespace zolv {

struct LanguageState {
    std::int16_t LanguageIndex = 0;  // number of the stored choice in the language list; 0 while there is none
};
inline LanguageState language;

/// What follows; shell/wiring says what that is.
struct LanguageFollowUps {
    Hook LanguageChanged;  // every text has been replaced
};
inline LanguageFollowUps languageFollowUps;

}  // namespace zolv
