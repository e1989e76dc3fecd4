#pragma once

#include <string>

#include "platform/hook.h"

namespace zolv {

struct FileState {
    std::string CurrentFileName;  // the settings file that FileSave writes; empty when there is none
    std::string OpenFileName;     // the settings file chosen in the open dialog
    std::string PresetFileName;   // the preset file last chosen in a dialog

    Hook SettingsOpened;  // a settings file was read, whether its car is known or not
    Hook OptionsLoaded;   // the options have been applied, from a file or as they stood
};
extern FileState files;

}  // namespace zolv
