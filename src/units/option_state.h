#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "platform/hook.h"

namespace zolv {

/// The user's options beside the units. The values here stand until "Options.ini" overrides them.
struct OptionState {
    // What the plots show
    bool PowerLineOn = true;
    bool TorqueLineOn = false;
    bool RedlineOn = false;
    std::optional<bool> AltGraphStyle;  // counts as false until it has been set; the options file tells the difference
    bool EngineTorqueOn = false;
    bool VLoadsOn = false;

    // Grid steps of the plots, in the units that the user reads
    int SpeedPlotXScale = 20;       // speed
    int SpeedPlotYScale = 1000;     // rpm
    int TorquePlotXScale = 250;     // rpm
    int TorquePlotYScale = 500;     // torque
    int TractivePlotXScale = 10;    // s
    int TractivePlotYScale = 1000;  // force
    int SpeedGraphXScale = 10;      // s
    int SpeedGraphYScale = 20;      // speed

    // How the gears are used
    bool RevsMaxMode = false;     // top and reverse gear run to peak power; otherwise to 1.15 times its engine speed
    bool RevLimitOn = false;      // automatic shift points stop at 1.27 times the engine speed of peak power
    bool AutoRevs = true;         // shift points by gear; otherwise all are CustomRevs
    std::int32_t CustomRevs = 0;  // [rpm]
    bool AccelerationOn = true;   // run the acceleration simulation

    bool operator==(const OptionState&) const = default;
};
inline OptionState options;

/// An option that is on or off.
using OptionFlag = std::variant<bool OptionState::*, std::optional<bool> OptionState::*>;

/// What follows; shell/wiring says what that is.
struct OptionFollowUps {
    Hook GearingOptionChanged;  // the page that is the input is to be calculated anew
    Hook PlotOptionChanged;     // the gearing plots are to be drawn anew
};
inline OptionFollowUps optionFollowUps;

}  // namespace zolv
