#include "reports/sheet_document.h"

#include <algorithm>
#include <span>
#include <utility>

#include "desk/held.h"
#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "files/file_state.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "gearing/run_columns.h"
#include "gearing/run_log_page.h"
#include "model/acceleration_targets.h"
#include "platform/text_files.h"
#include "plots/force_plot.h"
#include "reports/page_figures.h"
#include "text/caption_name.h"
#include "text/messages.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "text/words.h"
#include "tyres/tyre_figures.h"
#include "tyres/tyre_state.h"
#include "units/option_state.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

/// A caption as a name: without its colon, and without the mark of a key.
std::string NameOf(const Field& field) { return CaptionName(WithoutKeyMark(InWords(field.Caption()))); }

/// A text of a page as all figures are written here, "12.5 %".
std::string InOneWay(const std::string& text) {
    const DocumentFigure figure = FigureOf("", text);
    return figure.Unit.empty() ? figure.Number : figure.Number + ' ' + figure.Unit;
}

/// A figure of a page, and beside it that of the held set-up.
DocumentFigure PageFigure(std::string name, const Field& value) {
    DocumentFigure figure = FigureOf(std::move(name), value.Caption());
    if (value.Kind() == FieldKind::Label) figure.Held = InOneWay(static_cast<const Label&>(value).Held());
    return figure;
}

/// What is hidden on its page is left out here too.
void AddFigures(DocumentSection& section, const std::vector<NamedFigure>& figures) {
    for (const NamedFigure& figure : figures) {
        if (figure.value->Visible()) section.Figures.push_back(PageFigure(NameOf(*figure.name), *figure.value));
    }
}

/// What is no label is told of the held set-up by `tell`.
template <class Tell>
std::string OfHeld(Tell tell) {
    return desk.Held != nullptr ? tell(*desk.Held) : std::string();
}

std::span<const AccelRow> PresentRun() {
    return std::span(gearing.AccelRows).first(static_cast<std::size_t>(gearing.AccelLastRow + 1));
}

bool HasRun() { return gearing.WrongOrder.empty() && options.AccelerationOn && gearing.AccelLastRow >= 0; }

bool HasHeldRun() { return desk.Held != nullptr && desk.Held->Sheet.WrongOrder.empty() && options.AccelerationOn; }

GearingPanel& PresentPanel() { return gearing.RatiosMode ? Zolv.Ratios : Zolv.Speeds; }

DocumentSection CarSection() {
    DocumentSection section{.Title = Zolv.Select_Page.Rows()[0]};
    section.Figures.push_back({.Name = NameOf(Zolv.Label_Car), .Number = Zolv.Select_Car.Text(), .Held = HeldName()});
    AddFigures(section, FiguresOfCar());
    return section;
}

DocumentSection InputSection() {
    DocumentSection section{.Title = words["SheetInputs"], .Beside = true};
    const auto direction = [](Direction from) {
        return NameOf(from == Direction::FromRatios ? Zolv.Direction1 : Zolv.Direction2);
    };
    section.Figures.push_back({.Name = Zolv.Select_Page.Rows()[1],
                               .Number = direction(gearing.From()),
                               .Held = OfHeld([&](const HeldSetUp& held) { return direction(held.SetUp.From); })});
    section.Figures.push_back(
        {.Name = NameOf(Zolv.GearingLabel[kGearingFinalDrive]),
         .Number = PresentPanel().FinalDrive.Text(),
         .Held = OfHeld([](const HeldSetUp& held) { return RoundedText(held.Sheet.Gears.FinalDrive, 3); })});
    section.Figures.push_back({.Name = NameOf(Zolv.GearingLabel[kGearingTyreType]),
                               .Number = Zolv.Select_Tyres.Text(),
                               .Held = OfHeld([](const HeldSetUp& held) {
                                   const std::vector<std::string>& types = Zolv.Select_Tyres.Rows();
                                   const int type = held.SetUp.TyreType;
                                   return type < 0 ? std::string() : types[static_cast<std::size_t>(type)];
                               })});
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

/// What the held set-up has in the lines of GearLines, for the gears that it has; none while its gears are in the wrong
/// order.
std::vector<std::vector<std::string>> HeldGearLines() {
    if (desk.Held == nullptr || !desk.Held->Sheet.WrongOrder.empty()) return {};
    const Gearbox& box = desk.Held->Sheet.Gears;
    GearingPanel& panel = Zolv.Ratios;
    const int last = std::min<int>(desk.Held->SetUp.Car.NumGears, kGears);
    std::vector<std::vector<std::string>> lines;
    for (int gear = 1; gear <= last; ++gear) {
        lines.push_back({GearName(gear), RoundedText(box.GearRatio[gear], 3), panel.Result[gear].Held(),
                         panel.RPM[gear].Held(), gear < last ? panel.RAC[gear].Held() : "", panel.Torque[gear].Held()});
    }
    const float reverse = desk.Held->SetUp.Car.Reverse;
    if (reverse != 1) {  // the car has one
        lines.push_back({Zolv.GearingLabel[kGearingReverse].Caption(), NumberText(reverse), panel.SpeedR.Held(),
                         panel.RPMR.Held(), "", panel.TorqueR.Held()});
    }
    return lines;
}

/// Below each gear that of the held set-up; a gear that only the held car has stands alone.
void AddGears(DocumentSection& section) {
    const auto held = HeldGearLines();
    if (!held.empty()) section.Held.emplace_back();  // of the head
    const auto lineOf = [](const auto& lines, const std::string& gear) {
        return std::ranges::find_if(lines, [&](const auto& line) { return line.front() == gear; });
    };
    auto present = GearLines();
    for (std::size_t i = 0; i < held.size(); ++i) {
        const auto at = present.begin() + static_cast<std::ptrdiff_t>(std::min(i, present.size()));
        if (lineOf(present, held[i].front()) == present.end()) present.insert(at, {held[i].front()});
    }
    for (std::vector<std::string>& line : present) {
        const auto beside = lineOf(held, line.front());
        line.front() = CaptionName(line.front());
        line.resize(section.Table.front().size());
        section.Table.push_back(std::move(line));
        if (held.empty()) continue;
        section.Held.push_back(beside == held.end() ? std::vector<std::string>() : *beside);
        if (beside != held.end()) section.Held.back().front() = words["SheetHeld"];
    }
}

DocumentSection GearSection() {
    DocumentSection section{.Title = Zolv.Select_Page.Rows()[1]};
    const OrderWords order = OrderWordsOf(gearing.From());
    for (const int gear : gearing.WrongOrder) {
        section.Figures.push_back({.Name = order.notUpdated, .Number = OrderSentence(order, gear)});
    }
    section.Table.push_back(GearTitles());
    AddGears(section);
    return section;
}

/// A target with the table's time and, beside it, the one interpolated between two rows.
void AddTarget(DocumentSection& section, int name, int value, AccelColumn column, double target) {
    const std::string title = NameOf(Zolv.GearingLabel[name]);
    const auto passing = PassingOf(PresentRun(), column, target);
    const auto held = HasHeldRun() ? PassingOf(desk.Held->Run(), column, target) : std::nullopt;
    section.Figures.push_back(PageFigure(title, Zolv.AccDataLabel[value]));
    if (!passing && !held) return;
    section.Figures.push_back({words.Sentence("SheetInterpolated", {title}),
                               passing ? RoundedText(passing->Time, 3) : "-", "s",
                               held ? WithUnit(held->Time, 3, " s") : ""});
    if (column == AccelColumn::Speed) return;
    section.Figures.push_back({title + ", " + texts.TextColSpeed, passing ? units.Speed.NumberOf(passing->Speed) : "-",
                               AxisUnit(units.Speed.Suffix), held ? units.Speed.Text(held->Speed) : ""});
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
    const auto row = [](const std::string& name, const TyreFigure& figure, const TyrePair& pair) {
        return std::vector{name, figure.text(pair.Front), figure.text(pair.Rear)};
    };
    section.Table.push_back({"", texts.TextFront, texts.TextRear});
    if (tyres.HeldSheets) section.Held.emplace_back();
    for (const TyreFigure& figure : TyreFigures()) {
        section.Table.push_back(row(NameOf(Zolv.TyreLabel[figure.name]), figure, tyres.Sheets));
        if (tyres.HeldSheets) section.Held.push_back(row(words["SheetHeld"], figure, *tyres.HeldSheets));
    }
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
                   .Subtitle = NameOfFile(files.CurrentFileName),  // where it lies is nobody else's
                   .LanguageCode = words["LocaleCode"],
                   .HeldTitle = words["SheetHeld"]};
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
