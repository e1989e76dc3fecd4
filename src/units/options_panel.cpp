#include "units/options_panel.h"

#include "fields/all_windows.h"
#include "model/whole_number.h"
#include "text/number_text.h"
#include "text/texts.h"

namespace zolv {
namespace {

// clang-format off
constexpr std::array<PlotFlag, 6> kPlotFlags{{
    {OptionsPanel.EnablePowerLine,    &OptionState::PowerLineOn, true},
    {OptionsPanel.EnableTorqueLine,   &OptionState::TorqueLineOn},
    {OptionsPanel.EnableRedline,      &OptionState::RedlineOn},
    {OptionsPanel.EnableAltGraph,     &OptionState::AltGraphStyle},
    {OptionsPanel.EnableEngineTorque, &OptionState::EngineTorqueOn},
    {OptionsPanel.EnableVLoads,       &OptionState::VLoadsOn},
}};

constexpr std::array<PlotScale, 8> kPlotScales{{  // in the order in which options are applied
    {OptionsPanel.SpeedPlotX.Select,      &OptionState::SpeedPlotXScale},
    {OptionsPanel.TorquePlotX.Select,     &OptionState::TorquePlotXScale},
    {OptionsPanel.TEPlotX.Select,         &OptionState::TractivePlotXScale},
    {OptionsPanel.SpeedTimeGraphX.Select, &OptionState::SpeedGraphXScale},
    {OptionsPanel.SpeedPlotY.Select,      &OptionState::SpeedPlotYScale},
    {OptionsPanel.TorquePlotY.Select,     &OptionState::TorquePlotYScale},
    {OptionsPanel.TEPlotY.Select,         &OptionState::TractivePlotYScale},
    {OptionsPanel.SpeedTimeGraphY.Select, &OptionState::SpeedGraphYScale},
}};
// clang-format on

}  // namespace

const std::array<PlotFlag, 6>& PlotFlags() { return kPlotFlags; }
const std::array<PlotScale, 8>& PlotScales() { return kPlotScales; }

bool PlotFlag::On() const {
    return std::visit([](auto member) { return std::optional<bool>(options.*member).value_or(false); }, flag);
}

void SwitchPlotFlag(const PlotFlag& flag) {
    std::visit([&](auto member) { options.*member = flag.box.Checked(); }, flag.flag);
    optionFollowUps.PlotOptionChanged();
}

void MovePlotScale(const PlotScale& scale) {
    options.*scale.value = scale.slider.Value();
    optionFollowUps.PlotOptionChanged();
}

void ChoosePeakPowerRevs() {
    options.RevsMaxMode = true;
    optionFollowUps.GearingOptionChanged();
}

void ChooseRedlineRevs() {
    options.RevsMaxMode = false;
    optionFollowUps.GearingOptionChanged();
}

void SwitchRevLimit() {
    options.RevLimitOn = OptionsPanel.RevLimitEnable.Checked();
    optionFollowUps.GearingOptionChanged();
}

void ChooseAutoRevs() {
    options.AutoRevs = true;
    OptionsPanel.RC_FixedVal.SetEnabled(false);
    OptionsPanel.RevLimitEnable.SetEnabled(true);
    optionFollowUps.GearingOptionChanged();
}

void ChooseFixedRevs() {
    options.AutoRevs = false;
    OptionsPanel.RC_FixedVal.SetEnabled(true);
    OptionsPanel.RevLimitEnable.SetEnabled(false);
    ChangeFixedRevs();
}

void ChangeFixedRevs() {
    options.CustomRevs = ToInt32(Val(OptionsPanel.RC_FixedVal.Text()));
    optionFollowUps.GearingOptionChanged();
}

void SwitchAcceleration() {
    const bool on = OptionsPanel.AccelerationTestingEnable.Checked();
    Zolv.ShowAcc.SetVisible(on);
    options.AccelerationOn = on;
    if (!on) Zolv.Select_Graphs.SetText(texts.GraphNames[0]);
    Zolv.Select_Graphs.SetLocked(!on);
    if (on) optionFollowUps.GearingOptionChanged();
}

}  // namespace zolv
