#include "shell/fresh_start.h"

#include "aero/aero_state.h"
#include "fields/guards.h"
#include "fields/windows.h"
#include "files/file_state.h"
#include "gearing/gearing_state.h"
#include "language/caption_table.h"
#include "language/field_words.h"
#include "language/language_state.h"
#include "platform/text_files.h"
#include "plots/engine_plot.h"
#include "shell/shell_state.h"
#include "shell/wiring.h"
#include "text/words.h"
#include "tyres/tyre_state.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/preset_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

void FreshStart() {
    platform = {};
    guards = {};
    texts = {};
    words = {};
    units = {};
    options = {};
    vehicle = {};
    presets = {};
    tyres = {};
    aero = {};
    gearing = {};
    plots = {};
    files = {};
    language = {};
    shell = {};
    shellFollowUps = {};  // no wiring hangs it up anew
    ResetWindows();
    AssignBuiltInCaptions();
    AssignFieldWords();
    WireEvents();
}

}  // namespace zolv
