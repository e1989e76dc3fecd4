#include "reports/sheet_document.h"

#include <algorithm>
#include <initializer_list>
#include <span>
#include <utility>

#include "fields/label_names.h"
#include "fields/windows.h"
#include "files/file_state.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "gearing/run_columns.h"
#include "gearing/run_log_page.h"
#include "model/acceleration_targets.h"
#include "plots/force_plot.h"
#include "text/messages.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

/// A caption as a name: without its colon, and without the mark of a key.
std::string NameOf(const Field& field) {
    std::string name;
    const std::string caption = InWords(field.Caption());
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size()) break;
        name += caption[i];
    }
    return TitleOf(name);
}

/// A name and its figure. What is hidden on its page is left out here too.
struct Entry {
    const Field* name;
    const Field* value;
};

void AddEntries(DocumentSection& section, std::initializer_list<Entry> entries) {
    for (const Entry& entry : entries) {
        if (entry.value->Visible()) section.Figures.push_back(FigureOf(NameOf(*entry.name), entry.value->Caption()));
    }
}

std::span<const AccelRow> PresentRun() {
    return std::span(gearing.AccelRows).first(static_cast<std::size_t>(gearing.AccelLastRow + 1));
}

bool HasRun() { return gearing.WrongOrder.empty() && options.AccelerationOn && gearing.AccelLastRow >= 0; }

GearingPanel& PresentPanel() { return gearing.RatiosMode ? Zolv.Ratios : Zolv.Speeds; }

DocumentSection CarSection() {
    DocumentSection section{.Title = Zolv.Select_Page.Rows()[0]};
    section.Figures.push_back({.Name = NameOf(Zolv.Label_Car), .Number = Zolv.Select_Car.Text()});
    AddEntries(section, {{&Zolv.InfoLabel[kInfoPower], &Zolv.Info_Power},
                         {&Zolv.InfoLabel[kInfoTorque], &Zolv.Info_Torque},
                         {&Zolv.InfoLabel[kInfoDrivetrain], &Zolv.Info_DT},
                         {&Zolv.InfoLabel[kInfoGears], &Zolv.Info_Gears},
                         {&Zolv.InfoLabel[kInfoEfficiency], &Zolv.Info_Efficiency},
                         {&Zolv.InfoLabel[kInfoMass], &Zolv.Info_Mass},
                         {&Zolv.InfoLabel[kInfoWeightDist], &Zolv.Info_WD},
                         {&Zolv.InfoLabel[kInfoP2W], &Zolv.Info_P2W},
                         {&Zolv.InfoLabel[kInfoT2W], &Zolv.Info_T2W},
                         {&Zolv.InfoLabel[kInfoWheelbase], &Zolv.Info_WB}});
    return section;
}

DocumentSection InputSection() {
    DocumentSection section{.Title = words["SheetInputs"], .Beside = true};
    const OptionButton& direction = gearing.RatiosMode ? Zolv.Direction1 : Zolv.Direction2;
    section.Figures.push_back({.Name = Zolv.Select_Page.Rows()[1], .Number = NameOf(direction)});
    section.Figures.push_back(
        {.Name = NameOf(Zolv.GearingLabel[kGearingFinalDrive]), .Number = PresentPanel().FinalDrive.Text()});
    section.Figures.push_back({.Name = NameOf(Zolv.GearingLabel[38]), .Number = Zolv.Select_Tyres.Text()});
    AddEntries(section, {{&Zolv.TyreLabel[kTyrePressureF], &Zolv.Label_PressureF},
                         {&Zolv.TyreLabel[kTyrePressureR], &Zolv.Label_PressureR},
                         {&Zolv.AeroLabel[kAeroFrontWingAngle], &Zolv.WingAngleFront},
                         {&Zolv.AeroLabel[kAeroRearWingAngle], &Zolv.WingAngleRear},
                         {&Zolv.AeroLabel[kAeroCarSpeed],
                          Zolv.UseFixedSpeed.Checked() ? &Zolv.Aero_TopSpeed : &Zolv.AeroSpeed}});
    return section;
}

int GearsOfCar() { return vehicle.CurrentCar.NumGears < kGears ? vehicle.CurrentCar.NumGears : kGears; }

std::vector<std::string> GearTitles() {
    std::vector<std::string> titles;
    for (const int label :
         {kGearingGear, kGearingRatio, kGearingSpeed, kGearingBefore, kGearingAfter, kGearingTorque}) {
        titles.push_back(NameOf(Zolv.GearingLabel[label]));
    }
    return titles;
}

DocumentSection GearSection() {
    DocumentSection section{.Title = Zolv.Select_Page.Rows()[1]};
    GearingPanel& panel = PresentPanel();
    const bool known = gearing.WrongOrder.empty();
    const auto result = [known](const Label& label) { return known ? label.Caption() : std::string("-"); };
    const OrderWords order = OrderWordsOf(gearing.From());
    for (const int gear : gearing.WrongOrder) {
        section.Figures.push_back({.Name = order.notUpdated, .Number = OrderSentence(order, gear)});
    }
    section.Table.push_back(GearTitles());
    for (int gear = 1; gear <= GearsOfCar(); ++gear) {
        const std::string& input = panel.Input[gear].Text();
        const std::string found = result(panel.Result[gear]);
        section.Table.push_back({texts.GearNames[static_cast<std::size_t>(gear)], gearing.RatiosMode ? input : found,
                                 gearing.RatiosMode ? found : input + Zolv.Label_SPD[gear].Caption(),
                                 result(panel.RPM[gear]), gear < GearsOfCar() ? result(panel.RAC[gear]) : "",
                                 result(panel.Torque[gear])});
    }
    if (panel.GearR.Visible()) {
        section.Table.push_back({NameOf(Zolv.GearingLabel[kGearingReverse]), panel.GearR.Caption(),
                                 result(panel.SpeedR), result(panel.RPMR), "", result(panel.TorqueR)});
    }
    return section;
}

/// A target with the table's time and, beside it, the one interpolated between two rows.
void AddTarget(DocumentSection& section, int name, int value, AccelColumn column, double target) {
    const std::string title = NameOf(Zolv.GearingLabel[name]);
    const auto passing = PassingOf(PresentRun(), column, target);
    section.Figures.push_back(FigureOf(title, Zolv.AccDataLabel[value].Caption()));
    if (!passing) return;
    section.Figures.push_back({words.Sentence("SheetInterpolated", {title}), RoundedText(passing->Time, 3), "s"});
    if (column == AccelColumn::Speed) return;
    section.Figures.push_back(
        {title + ", " + texts.TextColSpeed, units.Speed.NumberOf(passing->Speed), AxisUnit(units.Speed.Suffix)});
}

DocumentSection RunSection() {
    DocumentSection section{.Title = NameOf(Zolv.ShowAcc), .Beside = true};
    const AccelTargets& targets = PresentTargets();
    for (int k = 0; k < 5; ++k) {
        AddTarget(section, kGearingSpeedTime + k, kAccSpeedTime + k, AccelColumn::Speed,
                  targets.Speeds[static_cast<std::size_t>(k)]);
    }
    for (int k = 0; k < 2; ++k) {
        AddTarget(section, kGearingDistanceTime + k, kAccDistanceTime + 2 * k, AccelColumn::Distance,
                  targets.Distances[static_cast<std::size_t>(k)]);
    }
    AddEntries(section, {{&Zolv.GearingLabel[kGearingEndSpeed], &Zolv.AccDataLabel[kAccEndSpeed]}});
    return section;
}

DocumentSection LogSection() {
    DocumentSection section{.Title = Zolv.Select_RunView.Rows()[2]};
    const LogLine titles = LogTitles();
    section.Table.emplace_back(titles.begin(), titles.end());
    for (const LogLine& line : LogLines()) section.Table.emplace_back(line.begin(), line.end());
    return section;
}

DocumentSection TyreSection() {
    DocumentSection section{.Title = Zolv.Select_Page.Rows()[2]};
    AddEntries(section, {{&Zolv.TyreLabel[kTyreGrip], &Zolv.MU}, {&Zolv.TyreLabel[kTyrePatchRatio], &Zolv.FRCPR}});
    // The tyre page analyses one axle at a time.
    section.Figures.push_back(
        {.Name = NameOf(Zolv.TyreNumAnal), .Number = Zolv.FrontTyreAnal.Checked() ? texts.TextFront : texts.TextRear});
    AddEntries(section, {{&Zolv.TyreLabel[kTyrePatchWidth], &Zolv.CPW},
                         {&Zolv.TyreLabel[kTyrePatchLength], &Zolv.CPL},
                         {&Zolv.TyreLabel[kTyrePatchArea], &Zolv.CPA},
                         {&Zolv.TyreLabel[kTyrePatchAspect], &Zolv.CPAR},
                         {&Zolv.TyreLabel[kTyreStiffness], &Zolv.TS},
                         {&Zolv.TyreLabel[kTyreFrequency], &Zolv.TF},
                         {&Zolv.TyreLabel[kTyreUnloadedRadius], &Zolv.UTR},
                         {&Zolv.TyreLabel[kTyreDeformation], &Zolv.TD},
                         {&Zolv.TyreLabel[kTyreRollingRadius], &Zolv.TRRC},
                         {&Zolv.TyreLabel[kTyreWallHeight], &Zolv.TWH}});
    return section;
}

DocumentSection AirSection() {
    DocumentSection section{.Title = Zolv.Select_Page.Rows()[3], .Beside = true};
    AddEntries(section, {{&Zolv.AeroLabel[kAeroTopSpeed], &Zolv.Aero_TopSpeed},
                         {&Zolv.AeroLabel[kAeroDrag], &Zolv.Aero_TotalDrag},
                         {&Zolv.AeroLabel[kAeroLift], &Zolv.Aero_TotalLift},
                         {&Zolv.AeroLabel[kAeroLiftDragRatio], &Zolv.Aero_TotalLDR},
                         {&Zolv.AeroLabel[kAeroRollingResistance], &Zolv.Aero_RR},
                         {&Zolv.AeroLabel[kAeroFriction], &Zolv.Aero_TotalFriction},
                         {&Zolv.AeroLabel[kAeroFrontWheels], &Zolv.Aero_ForceFrontWheels},
                         {&Zolv.AeroLabel[kAeroRearWheels], &Zolv.Aero_ForceRearWheels},
                         {&Zolv.AeroLabel[kAeroForceDistribution], &Zolv.Aero_ForceDistribution},
                         {&Zolv.AeroLabel[kAeroDistribution], &Zolv.Aero_AeroDistribution}});
    return section;
}

DocumentSection PlotSection() {
    DocumentSection section{.Title = Zolv.Select_RunView.Rows()[0], .OnNewPage = true};
    const auto add = [&](std::string title, const Canvas& drawing) {
        if (!drawing.PresentAxes().present) return;
        section.PictureTitles.push_back(std::move(title));
        section.Pictures.push_back(drawing);
    };
    add(NameOf(Zolv.InfoLabel[kInfoPower]) + ", " + NameOf(Zolv.InfoLabel[kInfoTorque]),
        Zolv.TorquePowerPlot.Drawing());
    if (!gearing.WrongOrder.empty()) return section;
    Canvas forces(Zolv.ForcePlot.Drawing().Width(), Zolv.ForcePlot.Drawing().Height());
    DrawForcePlot(forces);
    add(Zolv.Select_RunView.Rows()[1], forces);
    add(texts.TextColEngineRpm, Zolv.SpeedPlot.Drawing());
    add(NameOf(Zolv.GearingLabel[kGearingTorque]), Zolv.TorquePlot.Drawing());
    add(texts.TextColDrivingForce, Zolv.TractiveEffortPlot.Drawing());
    add(texts.TextColSpeed, Zolv.SpeedTimeGraph.Drawing());
    return section;
}

}  // namespace

Document SetUpSheet() {
    Document sheet{.Title = "Tarmaq Zolv: " + Zolv.Select_Car.Text(),
                   .Subtitle = files.CurrentFileName,
                   .LanguageCode = words["LocaleCode"]};
    sheet.Sections = {CarSection(), InputSection(), GearSection()};
    if (HasRun()) {
        sheet.Sections.push_back(RunSection());
        sheet.Sections.push_back(LogSection());
    }
    sheet.Sections.push_back(TyreSection());
    sheet.Sections.push_back(AirSection());
    sheet.Sections.push_back(PlotSection());
    return sheet;
}

}  // namespace zolv
