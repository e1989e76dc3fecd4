#pragma once

#include <cstdint>

#include "platform/hook.h"

namespace zolv {

struct LanguageState {
    std::int16_t LanguageIndex = 0;  // number of the stored choice in the language list; 0 while there is none

    Hook LanguageChanged;  // every text has been replaced
};
extern LanguageState language;

}  // namespace zolv
