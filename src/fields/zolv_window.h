#pragma once

#include "fields/field_row.h"
#include "fields/kinds.h"
#include "text/version.h"

/// The main window as a form. Words that a language can replace are not here: they stand in the caption table and in
/// the table of words.
namespace zolv {

/// The fields of one direction of the gearing calculation; the two pages have the same ones under other names.
/// Gears are indexed 1 to 6. RAC is engine speed just after the change up out of a gear, so that 6 has none.
struct GearingPanel {
    struct Names {
        const char *panel, *input, *inputSlider, *finalDrive, *finalDriveSlider, *result, *rpm, *rac, *torque;
        const char *reverseRatio, *reverseRpm, *reverseSpeed;
    };

    GearingPanel(Window& owner, const Names& names, bool front, const TextBoxState (&inputs)[7],
                 const SliderState (&sliders)[7])
        : Frame(owner, names.panel, {.stack = 2, .front = front}),
          Input(owner, names.input, [&](int gear) { return inputs[gear]; }),
          InputSlider(owner, names.inputSlider, [&](int gear) { return sliders[gear]; }),
          FinalDrive(owner, names.finalDrive, inputs[0]),
          FinalDriveSlider(owner, names.finalDriveSlider, sliders[0]),
          Result(owner, names.result),
          RPM(owner, names.rpm),
          RAC(owner, names.rac),
          Torque(owner, names.torque),
          TorqueR(owner, std::string(names.torque) + 'R'),
          GearR(owner, names.reverseRatio),
          RPMR(owner, names.reverseRpm),
          SpeedR(owner, names.reverseSpeed) {}

    Panel Frame;
    FieldRow<TextBox, 1, 6> Input;       // ratios, or wanted speeds in the unit shown
    FieldRow<Slider, 1, 6> InputSlider;  // ratio times 1000, or whole speeds
    TextBox FinalDrive;
    Slider FinalDriveSlider;       // final drive times 1000
    FieldRow<Label, 1, 6> Result;  // speeds, or ratios
    FieldRow<Label, 1, 6> RPM;
    FieldRow<Label, 1, 5> RAC;
    FieldRow<Label, 1, 6> Torque;
    Label TorqueR;
    Label GearR, RPMR, SpeedR;
};

/// What the page of the air shows of the undertray or of a wing.
struct FittingLabels {
    FittingLabels(Window& owner, const std::string& name)
        : CdA(owner, name + "CdA"),
          ClA(owner, name + "ClA"),
          Drag(owner, name + "Drag"),
          Lift(owner, name + "Lift"),
          LDR(owner, name + "LDR") {}

    Label CdA, ClA, Drag, Lift, LDR;
};

class ZolvWindow : public Window {
public:
    ZolvWindow() : Window("Zolv", "Tarmaq Zolv", true) {}

    // Menus
    MenuEntry FileMenu{*this, "FileMenu"};
    MenuEntry FileOpen{*this, "FileOpen", "FileMenu"};
    MenuEntry FileSave{*this, "FileSave", "FileMenu", "Ctrl+S"};
    MenuEntry FileSaveAs{*this, "FileSaveAs", "FileMenu"};
    MenuEntry FileClose{*this, "FileClose", "FileMenu"};
    MenuEntry FileSheet{*this, "FileSheet", "FileMenu", "Ctrl+P"};
    MenuEntry FileExit{*this, "FileExit", "FileMenu"};
    MenuEntry EditMenu{*this, "EditMenu"};
    MenuEntry EditUndo{*this, "EditUndo", "EditMenu", "Ctrl+Z", {.enabled = false}};
    MenuEntry EditRedo{*this, "EditRedo", "EditMenu", "Ctrl+Shift+Z", {.enabled = false}};
    MenuEntry SetUpMenu{*this, "SetUpMenu"};
    MenuEntry SetUpHold{*this, "SetUpHold", "SetUpMenu", "Ctrl+H"};
    MenuEntry SetUpHoldFile{*this, "SetUpHoldFile", "SetUpMenu"};
    MenuEntry SetUpSwap{*this, "SetUpSwap", "SetUpMenu", "Ctrl+Shift+H", {.enabled = false}};
    MenuEntry SetUpRelease{*this, "SetUpRelease", "SetUpMenu", {}, {.enabled = false}};
    MenuEntry ViewMenu{*this, "ViewMenu"};
    MenuEntry ViewNextPage{*this, "ViewNextPage", "ViewMenu", "Ctrl+Tab; Ctrl+PgDown"};
    MenuEntry ViewPreviousPage{*this, "ViewPreviousPage", "ViewMenu", "Ctrl+Shift+Tab; Ctrl+PgUp"};
    MenuEntry ViewFullScreen{*this, "ViewFullScreen", "ViewMenu", "F11"};  // the window answers, whose screen it is
    MenuEntry ToolsMenu{*this, "ToolsMenu"};
    MenuEntry ToolsCustom{*this, "ToolsCustom", "ToolsMenu", "Ctrl+U"};
    MenuEntry ToolsOptions{*this, "ToolsOptions", "ToolsMenu", "Ctrl+O"};
    MenuEntry ToolsFinder{*this, "ToolsFinder", "ToolsMenu", "Ctrl+G"};
    MenuEntry ToolsSweep{*this, "ToolsSweep", "ToolsMenu"};
    MenuEntry ToolsLanguage{*this, "ToolsLanguage", "ToolsMenu"};
    MenuEntry HelpMenu{*this, "HelpMenu"};
    MenuEntry HelpUsage{*this, "HelpUsage", "HelpMenu", "F1"};

    // Always in view
    Label Label_Car{*this, "Label_Car"};
    PickList Select_Car{*this, "Select_Car"};
    TabStrip Select_Page{*this, "Select_Page", 4};
    Label Zolv_version{*this, "Zolv_version", {.caption = WithVersion("v{version}")}};
    Picture TitleImage{*this, "TitleImage"};
    Picture TarmaqLogo{*this, "TarmaqLogo"};
    FieldArray<Panel, 4> Page{*this, "Page", [](int i) { return PanelState{.stack = 1, .front = i == 0}; }};

    // What is held beside the present set-up
    Label Label_Held{*this, "Label_Held", {.visible = false}};
    Button HeldSwap{*this, "HeldSwap", {.visible = false}};
    Button HeldRelease{*this, "HeldRelease", {.visible = false}};

    // Page 0: Info
    FieldArray<Panel, 4> InfoPanel{*this, "InfoPanel"};
    FieldArray<Label, 19> InfoLabel{*this, "InfoLabel"};
    Label Info_Mass{*this, "Info_Mass"};
    Label Info_Weight{*this, "Info_Weight"};
    Label Info_WD{*this, "Info_WD"};
    Label Info_P2W{*this, "Info_P2W"};
    Label Info_T2W{*this, "Info_T2W"};
    Label Info_Power{*this, "Info_Power"};
    Label Info_Torque{*this, "Info_Torque"};
    Label Info_DT{*this, "Info_DT"};
    Label Info_Gears{*this, "Info_Gears"};
    Label Info_Efficiency{*this, "Info_Efficiency"};
    Label Info_RimF{*this, "Info_RimF"}, Info_RimR{*this, "Info_RimR"};
    Label Info_TWF{*this, "Info_TWF"}, Info_TWR{*this, "Info_TWR"};
    Label Info_TPF{*this, "Info_TPF"}, Info_TPR{*this, "Info_TPR"};
    Label Info_THF{*this, "Info_THF"}, Info_THR{*this, "Info_THR"};
    Label Info_PRF{*this, "Info_PRF"}, Info_PRR{*this, "Info_PRR"};
    Label Info_TrackF{*this, "Info_TrackF"}, Info_TrackR{*this, "Info_TrackR"};
    Label Info_WB{*this, "Info_WB"};
    Label AboutZolv{*this, "AboutZolv"};
    Picture Info_CarPic{*this, "Info_CarPic"};
    CanvasField TorquePowerPlot{*this, "TorquePowerPlot", 4455, 2655};

    // Page 1: Gearing
    Panel GearingDirection{*this, "GearingDirection"};
    OptionButton Direction1{*this, "Direction1", {.checked = true, .group = 1}};
    OptionButton Direction2{*this, "Direction2", {.group = 1}};
    FieldArray<Label, 40> GearingLabel{*this, "GearingLabel",
                                       [](int i) { return Look{.caption = i == 35 ? "v-max" : ""}; }};
    GearingPanel Ratios{*this,
                        {"CalcSpeeds", "Gear", "Select_Ratio", "GearF", "Select_FinalDrive1", "Speed", "RPM", "RAC",
                         "Torque", "GearR", "RPMR", "SpeedR"},
                        true,
                        {{"4", 5}, {"3.5", 5}, {"2.4", 5}, {"1.7", 5}, {"1.35", 5}, {"1.15", 5}, {"1", 5}},
                        {{500, 7500, 4000, 100, 500, 500},
                         {500, 7500, 3500, 10, 100, 500},
                         {500, 7500, 2400, 10, 100, 500},
                         {500, 7500, 1700, 10, 100, 500},
                         {500, 7500, 1350, 10, 100, 500},
                         {500, 7500, 1150, 10, 100, 500},
                         {500, 7500, 1000, 10, 100, 500}}};
    GearingPanel Speeds{*this,
                        {"CalcRatios", "B_Speed", "Select_Speed", "B_Final", "Select_FinalDrive2", "B_Gear", "B_RPM",
                         "B_RAC", "B_Torque", "GearR2", "RPMR2", "SpeedR2"},
                        false,
                        {{"4", 5}, {"16", 5}, {"23", 5}, {"32", 5}, {"39", 5}, {"50", 5}, {"60", 5}},
                        {{500, 7500, 4000, 100, 500, 500},
                         {1, 200, 16, 1, 5, 36},
                         {1, 200, 23, 1, 5, 36},
                         {1, 200, 32, 1, 5, 36},
                         {1, 200, 39, 1, 5, 36},
                         {1, 200, 50, 1, 5, 36},
                         {1, 200, 60, 1, 5, 36}}};
    FieldRow<Label, 1, 6> Label_SPD{*this, "Label_SPD", [](int) { return Look{.caption = " m/s"}; }};
    PickList Select_Tyres2{*this, "Select_Tyres2"};
    TabStrip Select_RunView{*this, "Select_RunView", 3};
    PickList Select_Graphs{*this, "Select_Graphs"};
    Panel ShowAcc{*this, "ShowAcc"};
    FieldArray<Label, 10> AccDataLabel{*this, "AccDataLabel"};
    CanvasField SpeedPlot{*this, "SpeedPlot", 4635, 3015};
    CanvasField TorquePlot{*this, "TorquePlot", 4635, 3015};
    CanvasField TractiveEffortPlot{*this, "TractiveEffortPlot", 4635, 3015, {.visible = false}};
    CheckBox TimeDifference{*this, "TimeDifference", {.look = {.visible = false}}};  // over speed, in place of speed
    CanvasField SpeedTimeGraph{*this, "SpeedTimeGraph", 4635, 3015, {.visible = false}};
    TextBox AccelerationData{
        *this, "AccelerationData", {.locked = true, .multiLine = true, .look = {.visible = false}}};
    CanvasField ForcePlot{*this, "ForcePlot", 4635, 3015, {.visible = false}};
    TextBox RunLog{*this, "RunLog", {.locked = true, .multiLine = true, .look = {.visible = false}}};
    Label ShiftAdvice{*this, "ShiftAdvice"};

    // Page 2: Tyres
    FieldArray<Label, 19> TyreLabel{*this, "TyreLabel"};
    PickList Select_Tyres{*this, "Select_Tyres"};
    Label AeroSpeed_TyreTab{*this, "AeroSpeed_TyreTab"};
    Slider Select_AeroSpeed_TyreTab{*this, "Select_AeroSpeed_TyreTab", {.max = 200, .value = 40}};
    CheckBox BlowTyres{*this, "BlowTyres"};
    Label Label_PressureF{*this, "Label_PressureF"};
    Slider Select_PressureF{*this, "Select_PressureF", {.max = 500, .value = 175}};
    Label Label_PressureR{*this, "Label_PressureR"};
    Slider Select_PressureR{*this, "Select_PressureR", {.max = 500, .value = 175}};
    OptionButton FrontTyreAnal{*this, "FrontTyreAnal", {.checked = true, .group = 2}};
    OptionButton RearTyreAnal{*this, "RearTyreAnal", {.group = 2}};
    Panel TyreGraphAnal{*this, "TyreGraphAnal"};
    CanvasField CPS{*this, "CPS", 4335, 3135};
    Slider ZoomCPS{*this, "ZoomCPS", {.min = 10, .max = 100, .value = 40, .tick = 10}};
    CanvasField SV{*this, "SV", 3135, 3135};
    Slider ZoomSideOn{
        *this, "ZoomSideOn", {.min = 100, .max = 750, .value = 130, .smallStep = 25, .largeStep = 100, .tick = 50}};
    Panel TyreNumAnal{*this, "TyreNumAnal"};
    Label CPW{*this, "CPW"};
    Label CPL{*this, "CPL"};
    Label CPA{*this, "CPA"};
    Label CPAR{*this, "CPAR"};
    Label FRCPR{*this, "FRCPR"};
    Label MU{*this, "MU"};
    Label TS{*this, "TS"};
    Label TF{*this, "TF"};
    Label UTR{*this, "UTR"};
    Label TD{*this, "TD"};
    Label TRRC{*this, "TRRC"};
    Label TWH{*this, "TWH"};

    // Page 3: Aerodynamics
    FieldArray<Panel, 8> AeroPanel{*this, "AeroPanel"};
    FieldArray<Label, 39> AeroLabel{*this, "AeroLabel", [](int i) { return Look{.caption = CoefficientName(i)}; }};
    OptionButton UseFixedSpeed{*this, "UseFixedSpeed", {.group = 3}};
    OptionButton UseSliderSpeed{*this, "UseSliderSpeed", {.checked = true, .group = 3}};
    Label AeroSpeed{*this, "AeroSpeed"};
    Slider Select_AeroSpeed{*this, "Select_AeroSpeed", {.max = 200, .value = 40}};
    Label WingAngleFront{*this, "WingAngleFront"};
    Slider Select_FrontWingAngle{*this, "Select_FrontWingAngle", {.max = 15, .value = 7, .largeStep = 3}};
    Label WingAngleRear{*this, "WingAngleRear"};
    Slider Select_RearWingAngle{*this, "Select_RearWingAngle", {.max = 30, .value = 14, .largeStep = 3}};
    Label Aero_BodyCd{*this, "Aero_BodyCd"};
    Label Aero_BodyCl{*this, "Aero_BodyCl"};
    Label Aero_FrontalArea{*this, "Aero_FrontalArea"};
    Label Aero_BodyCdA{*this, "Aero_BodyCdA"};
    Label Aero_BodyAirDrag{*this, "Aero_BodyAirDrag"};
    Label Aero_BodyLift{*this, "Aero_BodyLift"};
    Label Aero_BodyLDR{*this, "Aero_BodyLDR"};
    FittingLabels Undertray{*this, "Aero_Undertray"};
    FittingLabels FrontWing{*this, "Aero_FrontWing"};
    FittingLabels RearWing{*this, "Aero_RearWing"};
    Label Aero_TotalDrag{*this, "Aero_TotalDrag"};
    Label Aero_TotalLift{*this, "Aero_TotalLift"};
    Label Aero_TotalLDR{*this, "Aero_TotalLDR"};
    Label Aero_DragSplit{*this, "Aero_DragSplit"};
    Label Aero_RR{*this, "Aero_RR"};
    Label Aero_TotalFriction{*this, "Aero_TotalFriction"};
    Label Aero_ForceFrontWheels{*this, "Aero_ForceFrontWheels"};
    Label Aero_ForceRearWheels{*this, "Aero_ForceRearWheels"};
    Label Aero_ForceDistribution{*this, "Aero_ForceDistribution"};
    Label Aero_AeroDistribution{*this, "Aero_AeroDistribution"};
    Label Aero_WeightMultiple{*this, "Aero_WeightMultiple"};
    Label Aero_TopSpeed{*this, "Aero_TopSpeed"};
    Label Aero_AirDensity{*this, "Aero_AirDensity"};
    Label Aero_AirTemp{*this, "Aero_AirTemp"};

    /// The panel of a direction: 0 ratios to speeds, 1 speeds to ratios.
    GearingPanel& GearingOf(int mode) { return mode == 0 ? Ratios : Speeds; }

private:
    /// Coefficients have the same name in every language, so that no language file holds these.
    static const char* CoefficientName(int aeroLabel) {
        switch (aeroLabel) {
            case 12: return "Cd:";
            case 13: return "Cl:";
            case 15:
            case 24:
            case 29:
            case 34: return "CdA:";
            case 25:
            case 30:
            case 35: return "ClA:";
            default: return "";
        }
    }
};
extern ZolvWindow Zolv;

}  // namespace zolv
