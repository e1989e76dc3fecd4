#pragma once

#include <string>

#include "files/options_text.h"
#include "files/settings_text.h"
#include "platform/hook.h"

namespace zolv {

struct FileState {
    std::string CurrentFileName;  // the settings file that FileSave writes; empty when there is none
    SettingsFile Saved;           // the set-up as it was last saved or opened, speeds in m/s
    std::string OpenFileName;     // the settings file chosen in the open dialog
    OptionsFile SavedOptions;     // the options as they were last loaded or saved
    std::string PresetFileName;   // the preset file last chosen in a dialog
};
inline FileState files;

/// What follows; shell/wiring says what that is.
struct FileFollowUps {
    Hook OptionsLoaded;  // the options have been applied, from a file or as they stood
};
inline FileFollowUps fileFollowUps;

}  // namespace zolv
