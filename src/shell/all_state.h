#pragma once

#include <tuple>

#include "aero/aero_state.h"
#include "desk/held.h"
#include "desk/history.h"
#include "files/file_state.h"
#include "gearing/gearing_state.h"
#include "language/language_state.h"
#include "platform/text_files.h"
#include "plots/engine_plot.h"
#include "shell/shell_state.h"
#include "studies/finder_state.h"
#include "studies/sweep_state.h"
#include "text/texts.h"
#include "text/words.h"
#include "tyres/tyre_state.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/preset_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

/// All state of the program beside the fields and the guards, a struct a module. Whoever resets, copies or compares it
/// goes by this list.
inline auto AllState() {
    return std::tie(platform, texts, words, units, options, vehicle, presets, tyres, aero, gearing, desk, history,
                    plots, files, language, finder, sweep, shell);
}

/// A copy of all state, which `AllState() = copy` puts back.
inline auto CopyOfAllState() {
    return std::apply([](const auto&... state) { return std::tuple(state...); }, AllState());
}

}  // namespace zolv
