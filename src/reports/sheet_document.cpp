#include "reports/sheet_document.h"

#include <span>
#include <utility>

#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "files/file_state.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "gearing/run_columns.h"
#include "gearing/run_log_page.h"
#include "model/acceleration_targets.h"
#include "plots/force_plot.h"
#include "reports/page_figures.h"
#include "text/caption_name.h"
#include "text/messages.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/option_state.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

/// A caption as a name: without its colon, and without the mark of a key.
std::string NameOf(const Field& field) { return CaptionName(WithoutKeyMark(InWords(field.Caption()))); }

/// What is hidden on its page is left out here too.
void AddFigures(DocumentSection& section, const std::vector<NamedFigure>& figures) {
    for (const NamedFigure& figure : figures) {
        if (figure.value->Visible()) section.Figures.push_back(FigureOf(NameOf(*figure.name), figure.value->Caption()));
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
    AddFigures(section, FiguresOfCar());
    return section;
}

DocumentSection InputSection() {
    DocumentSection section{.Title = words["SheetInputs"], .Beside = true};
    const OptionButton& direction = gearing.RatiosMode ? Zolv.Direction1 : Zolv.Direction2;
    section.Figures.push_back({.Name = Zolv.Select_Page.Rows()[1], .Number = NameOf(direction)});
    section.Figures.push_back(
        {.Name = NameOf(Zolv.GearingLabel[kGearingFinalDrive]), .Number = PresentPanel().FinalDrive.Text()});
    section.Figures.push_back({.Name = NameOf(Zolv.GearingLabel[38]), .Number = Zolv.Select_Tyres.Text()});
    AddFigures(section, {{&Zolv.TyreLabel[kTyrePressureF], &Zolv.Label_PressureF},
                         {&Zolv.TyreLabel[kTyrePressureR], &Zolv.Label_PressureR},
                         {&Zolv.AeroLabel[kAeroFrontWingAngle], &Zolv.WingAngleFront},
                         {&Zolv.AeroLabel[kAeroRearWingAngle], &Zolv.WingAngleRear},
                         {&Zolv.AeroLabel[kAeroCarSpeed],
                          Zolv.UseFixedSpeed.Checked() ? &Zolv.Aero_TopSpeed : &Zolv.AeroSpeed}});
    return section;
}

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
    const OrderWords order = OrderWordsOf(gearing.From());
    for (const int gear : gearing.WrongOrder) {
        section.Figures.push_back({.Name = order.notUpdated, .Number = OrderSentence(order, gear)});
    }
    section.Table.push_back(GearTitles());
    for (std::vector<std::string>& line : GearLines()) {
        line.front() = CaptionName(line.front());
        section.Table.push_back(std::move(line));
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
    AddFigures(section, {{&Zolv.GearingLabel[kGearingEndSpeed], &Zolv.AccDataLabel[kAccEndSpeed]}});
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
    AddFigures(section, {{&Zolv.TyreLabel[kTyreGrip], &Zolv.MU}, {&Zolv.TyreLabel[kTyrePatchRatio], &Zolv.FRCPR}});
    // The tyre page analyses one axle at a time.
    section.Figures.push_back(
        {.Name = NameOf(Zolv.TyreNumAnal), .Number = Zolv.FrontTyreAnal.Checked() ? texts.TextFront : texts.TextRear});
    AddFigures(section, FiguresOfTyre());
    return section;
}

DocumentSection AirSection() {
    DocumentSection section{.Title = Zolv.Select_Page.Rows()[3], .Beside = true};
    AddFigures(section, {{&Zolv.AeroLabel[kAeroTopSpeed], &Zolv.Aero_TopSpeed},
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
