#include "shell/wiring.h"

#include "aero/aero_page.h"
#include "aero/aero_state.h"
#include "desk/held.h"
#include "desk/history.h"
#include "desk/present.h"
#include "fields/all_windows.h"
#include "fields/guards.h"
#include "files/file_state.h"
#include "files/options_file.h"
#include "files/preset_file.h"
#include "files/settings_file.h"
#include "gearing/acceleration_page.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_inputs.h"
#include "gearing/gearing_state.h"
#include "gearing/ratios_page.h"
#include "gearing/speeds_page.h"
#include "language/language_file.h"
#include "language/language_list.h"
#include "language/language_state.h"
#include "platform/dialogs.h"
#include "plots/engine_plot.h"
#include "plots/gearing_plots.h"
#include "plots/run_view.h"
#include "reports/sheet_file.h"
#include "shell/start_up.h"
#include "studies/finder_inputs.h"
#include "studies/finder_page.h"
#include "studies/straights_page.h"
#include "studies/sweep_inputs.h"
#include "studies/sweep_page.h"
#include "text/texts.h"
#include "tyres/tyre_drawings.h"
#include "tyres/tyre_state.h"
#include "tyres/tyres_page.h"
#include "units/apply_units.h"
#include "units/option_state.h"
#include "units/options_panel.h"
#include "units/unit_catalogue.h"
#include "units/unit_converter.h"
#include "units/unit_state.h"
#include "vehicle/car_selection.h"
#include "vehicle/custom_presets.h"
#include "vehicle/info_page.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

/// The windows of the finder and of the sweep write their words and numbers anew.
void ShowStudies() {
    ShowFinder();
    ShowSweep();
}

/// They say whether what they found is still for the set-up on the pages.
void FollowSetUpInStudies() {
    FollowSetUpInFinder();
    FollowSetUpInSweep();
}

/// What follows the procedures. AnalyseTyres comes behind CalcAeroForces, whose axle loads it reads, and before the
/// gearing, whose rolling radius rests on its stiffness.
void WireFollowUps() {
    vehicleFollowUps.CarChanged = [] {
        ShowCarInfo();
        CalcAeroCoefficients();
        AnalyseTyres();
        DrawEnginePlot();
        UpdateSpeeds();
        UpdateRatios();
        ShowCarPicture();
        ShowFinderInputs();
        ShowSweepInputs();
    };
    aeroFollowUps.TopSpeedFound = Recalculate;
    tyreFollowUps.TyreTypeTaken = [] {
        AnalyseTyres();
        RunAcceleration();
        DrawGearingPlots();
    };
    gearingFollowUps.SpeedsFound = gearingFollowUps.RatiosFound = [] {
        DrawGearingPlots();
        FollowSetUpInStudies();
    };
    optionFollowUps.GearingOptionChanged = [] {
        Recalculate();
        ShowHeld();
    };
    optionFollowUps.PlotOptionChanged = DrawGearingPlots;
    // Each unit of the file has been picked, with what follows it.
    fileFollowUps.OptionsLoaded = [] {
        CalcAeroForces();
        AnalyseTyres();
        Recalculate();
    };
    // The lists of units have been filled anew and picked from: what has a unit stands in the new words.
    languageFollowUps.LanguageChanged = [] {
        ShowConverterWords();
        ShowHistory();
    };
    // A car that was picked with it has brought its info and its engine's plot already.
    deskFollowUps.LaidOut = [] {
        ShowCarPicture();
        CalcAeroCoefficients();  // the wing angles come into force
        AnalyseTyres();
        Recalculate();
        ShowSweepInputs();  // the direction may be another
    };
    heldFollowUps.HeldChanged = [] {
        DrawEnginePlot();
        DrawTyres();
        DrawGearingPlots();
        if (!gearing.WrongOrder.empty()) ReportWrongOrder();
        FollowSetUpInFinder();
    };
}

/// The page beside the one in front; the first one follows the last.
void TurnPage(int direction) {
    const int pages = Zolv.Page.Size();
    Zolv.Select_Page.Pick((Zolv.Select_Page.Picked() + direction + pages) % pages);
}

void WireMenus() {
    Zolv.FileOpen.OnClick = OpenSettings;
    Zolv.FileSave.OnClick = SaveSettings;
    Zolv.FileSaveAs.OnClick = SaveSettingsAs;
    Zolv.FileClose.OnClick = CloseSettings;
    Zolv.FileSheet.OnClick = OpenSheet;
    Zolv.FileExit.OnClick = ShutDown;
    Zolv.OnClose = ShutDown;
    Zolv.EditUndo.OnClick = Undo;
    Zolv.EditRedo.OnClick = Redo;
    Zolv.SetUpHold.OnClick = HoldPresent;
    Zolv.SetUpHoldFile.OnClick = HoldSettings;
    Zolv.SetUpSwap.OnClick = Zolv.HeldSwap.OnClick = SwapWithHeld;
    Zolv.SetUpRelease.OnClick = Zolv.HeldRelease.OnClick = ReleaseHeld;
    Zolv.ToolsCustom.OnClick = [] { CustomPresets.Show(); };
    Zolv.ToolsOptions.OnClick = [] { OptionsPanel.Show(); };
    Zolv.ToolsFinder.OnClick = [] {
        Finder.Show();
        FollowSetUpInFinder();
    };
    Zolv.ToolsSweep.OnClick = [] {
        SweepPanel.Show();
        FollowSetUpInSweep();
    };
    Zolv.ToolsLanguage.OnClick = [] { LanguageSelection.Show(); };
    Zolv.HelpUsage.OnClick = [] {
        if (!ShowManual()) ShowMessage(texts.TextManualHint);
    };
    Zolv.ViewNextPage.OnClick = [] { TurnPage(1); };
    Zolv.ViewPreviousPage.OnClick = [] { TurnPage(-1); };
}

void WireCarAndPages() {
    Zolv.Select_Car.OnClick = SelectCar;
    Zolv.Select_Page.OnClick = [] {
        Zolv.Page[Zolv.Select_Page.Picked()].BringToFront();
        RefreshRunView();
    };
    Zolv.Select_RunView.OnClick = ShowChosenRunView;
    Zolv.Select_Graphs.OnClick = ShowChosenGraph;
    Zolv.TimeDifference.OnClick = DrawGearingPlots;
    Zolv.Select_Tyres.OnClick = PickTyreType;
    Zolv.Select_Tyres2.OnClick = PickTyreTypeOnGearingPage;
}

void WireGearingPage() {
    Zolv.Direction1.OnClick = [] {
        ChooseRatiosPage();
        ShowSweepInputs();
    };
    Zolv.Direction2.OnClick = [] {
        ChooseSpeedsPage();
        ShowSweepInputs();
    };
    for (const GearingInputs& inputs : BothGearingInputs()) {
        GearingPanel& panel = inputs.panel;
        for (int gear = 1; gear <= kGears; ++gear) {
            panel.Input[gear].OnChange = [&inputs, gear] { InputChanged(inputs, gear); };
            panel.InputSlider[gear].OnChange = [&inputs, gear] { InputSliderMoved(inputs, gear); };
            panel.Input[gear].OnKeyPress = CommaToPoint;
        }
        panel.FinalDrive.OnChange = [&inputs] { FinalDriveChanged(inputs); };
        panel.FinalDriveSlider.OnChange = [&inputs] { FinalDriveSliderMoved(inputs); };
        panel.FinalDrive.OnKeyPress = CommaToPoint;
    }
}

void WireTyresPage() {
    const auto analyseAndRecalculate = [] {
        AnalyseTyres();
        Recalculate();
    };
    Zolv.Select_PressureF.OnChange = analyseAndRecalculate;
    Zolv.Select_PressureR.OnChange = analyseAndRecalculate;
    Zolv.BlowTyres.OnClick = [analyseAndRecalculate] {
        tyres.BlowTyresOn = Zolv.BlowTyres.Checked();
        analyseAndRecalculate();
    };
    Zolv.FrontTyreAnal.OnClick = Zolv.RearTyreAnal.OnClick = [] {
        AnalyseTyres();
        ShowHeld();
    };
    Zolv.ZoomCPS.OnChange = DrawTyres;
    Zolv.ZoomSideOn.OnChange = DrawTyres;
}

void WireAeroPage() {
    const auto moveWing = [] {
        if (guards.Busy) return;
        CalcAeroCoefficients();
        AnalyseTyres();
    };
    Zolv.Select_FrontWingAngle.OnChange = moveWing;
    Zolv.Select_RearWingAngle.OnChange = moveWing;

    // The speed sliders follow each other in code, so that only the user's own move counts. The gearing does not
    // follow: its axle loads rest on each gear's own speed.
    const auto analyseAtSliderSpeed = [] {
        if (!aero.FixedSpeedMode) AnalyseTyres();
        FollowSetUpInStudies();
    };
    Zolv.Select_AeroSpeed.OnScroll = [analyseAtSliderSpeed] {
        MoveAeroSpeed();
        analyseAtSliderSpeed();
    };
    Zolv.Select_AeroSpeed_TyreTab.OnScroll = [analyseAtSliderSpeed] {
        MoveAeroSpeedOfTyreTab();
        analyseAtSliderSpeed();
    };
    Zolv.UseSliderSpeed.OnClick = [] {
        ChooseSliderSpeed();
        AnalyseTyres();
        Recalculate();
    };
    Zolv.UseFixedSpeed.OnClick = [] {
        ChooseFixedSpeed();
        AnalyseTyres();
        Recalculate();
    };
}

/// What a change of unit writes anew.
void WireUnits() {
    unitFollowUps.Speed = [] {
        CalcAeroForces();
        Recalculate();
        ShowStudies();
    };
    unitFollowUps.Distance = [] {
        AnalyseTyres();
        ShowCarInfo();
    };
    unitFollowUps.Pressure = [] {
        AnalyseTyres();
        ShowCarInfo();
        ShowSweep();
    };
    unitFollowUps.Area = [] {
        CalcAeroForces();
        AnalyseTyres();
        ShowSweep();
    };
    unitFollowUps.Mass = unitFollowUps.P2W = unitFollowUps.T2W = ShowCarInfo;
    unitFollowUps.Force = [] {
        CalcAeroForces();
        ShowCarInfo();
        RunAcceleration();
        DrawGearingPlots();
        ShowStudies();
    };
    unitFollowUps.Stiffness = AnalyseTyres;
    unitFollowUps.Acc = [] {
        RunAcceleration();
        RefreshRunView();
    };
    unitFollowUps.Power = [] {
        ShowCarInfo();
        DrawEnginePlot();
    };
    unitFollowUps.Torque = [] {
        ShowCarInfo();
        DrawEnginePlot();
        Recalculate();
        ShowSweep();
    };
}

void WireOptionsPanel() {
    OptionsPanel.Select_Options.OnClick = [] {
        OptionsPanel.OptionsPage[OptionsPanel.Select_Options.Picked()].BringToFront();
    };
    for (int quantity = 0; quantity < kQuantities; ++quantity) {
        OptionsPanel.Units[static_cast<std::size_t>(quantity)].Select.OnClick = [quantity] {
            PickUnit(quantity);
            ShowHeld();
        };
    }
    for (const PlotFlag& flag : PlotFlags()) flag.box.OnClick = [&flag] { SwitchPlotFlag(flag); };
    for (const PlotScale& scale : PlotScales()) scale.slider.OnChange = [&scale] { MovePlotScale(scale); };
    OptionsPanel.RevsP.OnClick = ChoosePeakPowerRevs;
    OptionsPanel.RevsR.OnClick = ChooseRedlineRevs;
    OptionsPanel.RevLimitEnable.OnClick = SwitchRevLimit;
    OptionsPanel.RC_Auto.OnClick = ChooseAutoRevs;
    OptionsPanel.RC_Fixed.OnClick = ChooseFixedRevs;
    OptionsPanel.RC_FixedVal.OnChange = ChangeFixedRevs;
    OptionsPanel.AccelerationTestingEnable.OnClick = [] {
        SwitchAcceleration();
        RefreshRunView();  // without runs there is no log
    };
    OptionsPanel.OptionsLoad.OnClick = LoadOptions;
    OptionsPanel.OptionsSave.OnClick = SaveOptions;
}

void WireCustomPresets() {
    CustomPresets.OnLoad = LoadCustomPresets;
    CustomPresets.NewCar.OnClick = ChooseBaseCar;
    CustomPresets.AddCar.OnClick = AddPreset;
    CustomPresets.CP_Load.OnClick = LoadPresetFrom;
    CustomPresets.EditName.OnClick = ShowPresetForEditing;
    CustomPresets.EditUpdate.OnClick = UpdatePreset;
    CustomPresets.CP_Save.OnClick = SavePresetAs;
    CustomPresets.LoadUnitConv.OnClick = [] { UnitConv.Show(); };
}

void WireUnitConverter() {
    UnitConv.OnLoad = ConvertTyre;
    for (ConverterRow* row : {&UnitConv.Distance, &UnitConv.Mass, &UnitConv.Power, &UnitConv.Torque}) {
        row->Input.OnChange = row->Select.OnClick = [row] { ConvertUnits(*row); };
    }
    for (TextBox* box : {&UnitConv.TyreWidthInput, &UnitConv.TyreHeightInput, &UnitConv.RimSizeInput}) {
        box->OnChange = ConvertTyre;
    }
}

/// A comma typed into a box of the window is a point.
void TakeNumbers(Window& window) {
    for (Field* field : window.Fields()) {
        if (field->Kind() == FieldKind::TextBox) static_cast<TextBox&>(*field).OnKeyPress = CommaToPoint;
    }
}

void WireFinder() {
    Finder.Goal.OnClick = ShowGoalBoxes;
    for (TextBox* box :
         {&Finder.FromSpeed, &Finder.ToSpeed, &Finder.TopSpeed, &Finder.Downforce, &Finder.DownforceSpeed}) {
        box->OnChange = TakeTyped;
    }
    for (CheckBox* box : {&Finder.FreeFrontWing, &Finder.FreeRearWing, &Finder.WishDownforce}) {
        box->OnClick = ShowWingNote;
    }
    TakeNumbers(Finder);
    Finder.Straights.OnKeyPress = {};  // a table, whose commas part its columns
    Finder.Start.OnClick = StartFinder;
    Finder.Stop.OnClick = StopFinder;
    Finder.HoldOld.OnClick = HoldSought;
    Finder.TakeOver.OnClick = TakeOverFind;
    Finder.Straights.OnChange = ReadTrack;
    Finder.StraightsOpen.OnClick = OpenStraights;
    Finder.StraightsSave.OnClick = SaveStraightsAs;
}

void WireSweep() {
    SweepPanel.First.Input.OnClick = [] { PickSweepInput(0); };
    SweepPanel.Second.Input.OnClick = [] { PickSweepInput(1); };
    for (TextBox* box : {&SweepPanel.First.From, &SweepPanel.First.To}) box->OnChange = [] { TakeSweepEnds(0); };
    for (TextBox* box : {&SweepPanel.Second.From, &SweepPanel.Second.To}) box->OnChange = [] { TakeSweepEnds(1); };
    for (TextBox* box : {&SweepPanel.Point, &SweepPanel.Point2}) box->OnChange = TakeSweepPoint;
    TakeNumbers(SweepPanel);
    SweepPanel.Start.OnClick = StartSweep;
    SweepPanel.Stop.OnClick = StopSweep;
    SweepPanel.TakeOver.OnClick = TakeOverSweepPoint;
    SweepPanel.SaveCsv.OnClick = SaveSweepCsv;
    SweepPanel.SaveSvg.OnClick = SaveSweepSvg;
}

void WireLanguageSelection() {
    LanguageSelection.LanguageList.OnClick = ChangeLanguage;
    LanguageSelection.SaveLanguage.OnClick = [] {
        SaveLanguageChoice();
        LanguageSelection.SetVisible(false);
        Zolv.SetVisible(true);
    };
    // On a first run the main window waits behind this one.
    LanguageSelection.OnClose = [] {
        LanguageSelection.SetVisible(false);
        Zolv.SetVisible(true);
    };
}

/// Secondary windows are hidden and keep their fields.
void WireClosing() {
    OptionsPanel.OnClose = OptionsPanel.CloseOptions.OnClick = [] { OptionsPanel.SetVisible(false); };
    CustomPresets.OnClose = CustomPresets.CloseCustom.OnClick = [] { CustomPresets.SetVisible(false); };
    UnitConv.OnClose = UnitConv.CloseConv.OnClick = [] { UnitConv.SetVisible(false); };
    Finder.OnClose = Finder.CloseFinder.OnClick = [] { Finder.SetVisible(false); };
    SweepPanel.OnClose = SweepPanel.CloseSweep.OnClick = [] { SweepPanel.SetVisible(false); };
}

}  // namespace

void WireEvents() {
    WireFollowUps();
    WireMenus();
    WireCarAndPages();
    WireGearingPage();
    WireTyresPage();
    WireAeroPage();
    WireUnits();
    WireOptionsPanel();
    WireCustomPresets();
    WireUnitConverter();
    WireFinder();
    WireSweep();
    WireLanguageSelection();
    WireClosing();
}

}  // namespace zolv
