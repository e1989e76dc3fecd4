#pragma once

#include <array>

#include "fields/kinds.h"
#include "units/option_state.h"

/// What the fields of the options panel do beside the units: each sets its option at once, then raises the follow-up
/// that shows the effect, optionFollowUps.GearingOptionChanged or optionFollowUps.PlotOptionChanged.
namespace zolv {

/// A check box for something that the gearing plots show.
struct PlotFlag {
    CheckBox& box;
    OptionFlag flag;
    bool checkedAtStart = false;

    [[nodiscard]] bool On() const;  // one that has not been set is off
};
const std::array<PlotFlag, 6>& PlotFlags();

/// A slider for the grid step of one axis of a plot.
struct PlotScale {
    Slider& slider;
    int OptionState::*value;
};
const std::array<PlotScale, 8>& PlotScales();

/// A check box of the plots was switched, a scale was moved.
void SwitchPlotFlag(const PlotFlag& flag);
void MovePlotScale(const PlotScale& scale);

/// Top and reverse gear run up to the engine speed of peak power, or to the redline.
void ChoosePeakPowerRevs();
void ChooseRedlineRevs();

/// The rev limiter was switched.
void SwitchRevLimit();

/// Shift points by gear, or one for all gears: then RC_FixedVal is open and is read, and there is nothing to limit.
void ChooseAutoRevs();
void ChooseFixedRevs();

/// The text of RC_FixedVal changed: options.CustomRevs takes its number, 0 for none.
void ChangeFixedRevs();

/// The acceleration simulation was switched. While it is off, its figures are hidden and Select_Graphs is locked on its
/// first row; the results of the last run stay in memory.
void SwitchAcceleration();

}  // namespace zolv
