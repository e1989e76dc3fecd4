#pragma once

#include <array>
#include <string>

#include "fields/field_row.h"
#include "fields/kinds.h"
#include "fields/scale_ranges.h"

namespace zolv {

/// The choice of one quantity's unit: the list of long names and the short name beside it.
struct UnitChoice {
    UnitChoice(Window& owner, const std::string& quantity)
        : Select(owner, "Select_" + quantity + "Units"), Caption(owner, "Label_" + quantity + "Units") {}

    PickList Select;
    Label Caption;
};

/// The grid step of one axis of a plot: its slider and what a step counts.
struct ScaleChoice {
    struct Steps {
        int value, small, large, tick;
    };

    ScaleChoice(Window& owner, const char axis, const std::string& plot, const ScaleRange& range, const Steps& steps)
        : Select(owner, std::string("Select_") + axis + "Scale_" + plot,
                 {range.min, range.max, steps.value, steps.small, steps.large, steps.tick}),
          Units(owner, plot + '_' + axis + "Units") {}

    Slider Select;
    Label Units;
};

/// The window of the user's options, as a form.
class OptionsPanelWindow : public Window {
public:
    OptionsPanelWindow() : Window("OptionsPanel", "", false) {}

    Label Title_Options{*this, "Title_Options"};
    TabStrip Select_Options{*this, "Select_Options", 3};
    FieldArray<Panel, 3> OptionsPage{*this, "OptionsPage",
                                     [](int i) { return PanelState{.stack = 1, .front = i == 0}; }};
    FieldArray<Panel, 8> OptionsGroup{*this, "OptionsGroup"};

    // Page 0: Units. In the order of UnitCatalogue().
    FieldArray<Label, 12> OptionsLabel{*this, "OptionsLabel"};
    std::array<UnitChoice, 12> Units{
        UnitChoice{*this, "Speed"},     UnitChoice{*this, "Distance"}, UnitChoice{*this, "Area"},
        UnitChoice{*this, "Pressure"},  UnitChoice{*this, "Mass"},     UnitChoice{*this, "Force"},
        UnitChoice{*this, "Stiffness"}, UnitChoice{*this, "Acc"},      UnitChoice{*this, "Power"},
        UnitChoice{*this, "Torque"},    UnitChoice{*this, "P2W"},      UnitChoice{*this, "T2W"}};

    // Page 1: Graphs
    FieldArray<Label, 4> Label_XScale{*this, "Label_XScale"};
    FieldArray<Label, 4> Label_YScale{*this, "Label_YScale"};
    ScaleChoice SpeedPlotX{*this, 'X', "SpeedPlot", kSpeedPlotXRange, {20, 5, 10, 10}};
    ScaleChoice SpeedPlotY{*this, 'Y', "SpeedPlot", kSpeedPlotYRange, {1000, 100, 200, 500}};
    CheckBox EnablePowerLine{*this, "EnablePowerLine", {.checked = true}};
    CheckBox EnableTorqueLine{*this, "EnableTorqueLine"};
    CheckBox EnableRedline{*this, "EnableRedline"};
    CheckBox EnableAltGraph{*this, "EnableAltGraph"};
    ScaleChoice TorquePlotX{*this, 'X', "TorquePlot", kTorquePlotXRange, {250, 100, 200, 250}};
    ScaleChoice TorquePlotY{*this, 'Y', "TorquePlot", kTorquePlotYRange, {500, 100, 500, 500}};
    CheckBox EnableEngineTorque{*this, "EnableEngineTorque"};
    ScaleChoice TEPlotX{*this, 'X', "TEPlot", kTractivePlotXRange, {10, 5, 10, 5}};
    ScaleChoice TEPlotY{*this, 'Y', "TEPlot", kTractivePlotYRange, {1000, 200, 500, 1000}};
    CheckBox EnableVLoads{*this, "EnableVLoads"};
    ScaleChoice SpeedTimeGraphX{*this, 'X', "SpeedTimeGraph", kSpeedGraphXRange, {10, 5, 10, 5}};
    ScaleChoice SpeedTimeGraphY{*this, 'Y', "SpeedTimeGraph", kSpeedGraphYRange, {20, 5, 10, 10}};

    // Page 2: Misc
    OptionButton RevsP{*this, "RevsP", {.group = 1}};
    OptionButton RevsR{*this, "RevsR", {.checked = true, .group = 1}};
    CheckBox RevLimitEnable{*this, "RevLimitEnable"};
    OptionButton RC_Auto{*this, "RC_Auto", {.checked = true, .group = 2}};
    OptionButton RC_Fixed{*this, "RC_Fixed", {.group = 2}};
    TextBox RC_FixedVal{*this, "RC_FixedVal", {.text = "7000", .maxLength = 5, .look = {.enabled = false}}};
    CheckBox AccelerationTestingEnable{*this, "AccelerationTestingEnable", {.checked = true}};

    Button OptionsLoad{*this, "OptionsLoad"};
    Button OptionsSave{*this, "OptionsSave"};
    Button CloseOptions{*this, "CloseOptions"};
};
extern OptionsPanelWindow OptionsPanel;

}  // namespace zolv
