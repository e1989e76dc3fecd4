#include "batch/report.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "batch/output.h"
#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "files/file_state.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "reports/page_figures.h"
#include "text/aligned_table.h"
#include "text/caption_name.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/option_state.h"

namespace zolv {
namespace {

constexpr std::size_t kIndent = 2;

void PrintTable(const AlignedTable& table) {
    for (const std::string& line : table.Lines(kIndent)) PrintLine(line);
}

/// One line of the report, whatever line ends its captions bring.
void Print(const std::string& line) { PrintLine(Flat(line)); }

void PrintUnderlined(const std::string& heading, char line) {
    Print(heading);
    PrintLine(std::string(ColumnsOf(Flat(heading)), line));
}

void PrintHeading(const std::string& heading) {
    PrintLine("");
    PrintUnderlined(heading, '-');
}

/// A name, and one value or two. What is hidden on its page is left out here too.
struct Entry {
    const Field* name;
    const Field* value;
    const Field* second = nullptr;
};

void AddEntries(AlignedTable& table, std::initializer_list<Entry> entries) {
    for (const Entry& entry : entries) {
        if (!entry.value->Visible()) continue;
        std::vector<std::string> row{WithoutKeyMark(entry.name->Caption()), entry.value->Caption()};
        if (entry.second != nullptr) row.push_back(entry.second->Caption());
        table.Add(std::move(row));
    }
}

/// Names and one value each.
void PrintFigures(const std::vector<NamedFigure>& figures) {
    AlignedTable table(AlignedTable::Values::Left);
    for (const NamedFigure& figure : figures) AddEntries(table, {{figure.name, figure.value}});
    PrintTable(table);
}

void PrintEntries(std::initializer_list<Entry> entries) {
    AlignedTable table(AlignedTable::Values::Left);
    AddEntries(table, entries);
    PrintTable(table);
}

void PrintCar() {
    PrintUnderlined("Tarmaq Zolv: " + Zolv.Select_Car.Text(), '=');
    if (!files.CurrentFileName.empty()) Print("  " + files.CurrentFileName);
    PrintFigures(FiguresOfCar());
    PrintLine("");
    AlignedTable wheels;
    wheels.Add({WithoutKeyMark(Zolv.InfoPanel[kInfoWheels].Caption()), texts.TextFront, texts.TextRear});
    AddEntries(wheels, {{&Zolv.InfoLabel[kInfoRim], &Zolv.Info_RimF, &Zolv.Info_RimR},
                        {&Zolv.InfoLabel[kInfoTyreWidth], &Zolv.Info_TWF, &Zolv.Info_TWR},
                        {&Zolv.InfoLabel[kInfoTyreProfile], &Zolv.Info_TPF, &Zolv.Info_TPR},
                        {&Zolv.InfoLabel[kInfoTyreHeight], &Zolv.Info_THF, &Zolv.Info_THR},
                        {&Zolv.InfoLabel[kInfoPressures], &Zolv.Info_PRF, &Zolv.Info_PRR},
                        {&Zolv.InfoLabel[kInfoTrack], &Zolv.Info_TrackF, &Zolv.Info_TrackR}});
    PrintTable(wheels);
}

void PrintOrderErrors(const std::vector<int>& wrong) {
    const OrderWords words = OrderWordsOf(gearing.From());
    Print("  " + words.notUpdated + ' ' + texts.TextBecauseOfThe + ' ' + NumberText(static_cast<int>(wrong.size())) +
          ' ' + texts.TextErrors);
    for (const int gear : wrong) Print("    " + OrderSentence(words, gear));
    PrintLine("");
}

void PrintGears() {
    const auto title = [](int label) { return Zolv.GearingLabel[label].Caption(); };
    AlignedTable table;
    table.Add({"", "", "", title(kGearingEngineSpeed), "", ""});
    table.Add({title(kGearingGear), title(kGearingRatio), title(kGearingSpeed), title(kGearingBefore),
               title(kGearingAfter), title(kGearingTorque)});
    for (std::vector<std::string>& line : GearLines()) table.Add(std::move(line));
    PrintTable(table);
}

void PrintAcceleration() {
    PrintHeading(WithoutKeyMark(Zolv.ShowAcc.Caption()));
    AlignedTable table;
    for (int i = 0; i < 5; ++i)
        AddEntries(table, {{&Zolv.GearingLabel[kGearingSpeedTime + i], &Zolv.AccDataLabel[kAccSpeedTime + i]}});
    for (int i = 0; i < 2; ++i) {
        AddEntries(table, {{&Zolv.GearingLabel[kGearingDistanceTime + i], &Zolv.AccDataLabel[kAccDistanceTime + 2 * i],
                            &Zolv.AccDataLabel[kAccDistanceSpeed + 2 * i]}});
    }
    table.Add({Zolv.GearingLabel[kGearingEndSpeed].Caption() + ':', Zolv.AccDataLabel[kAccEndSpeed].Caption()});
    PrintTable(table);
}

void PrintGearing() {
    GearingPanel& panel = gearing.RatiosMode ? Zolv.Ratios : Zolv.Speeds;
    const OptionButton& direction = gearing.RatiosMode ? Zolv.Direction1 : Zolv.Direction2;
    PrintHeading(WithoutKeyMark(Zolv.Select_Page.Rows()[1]) + ": " + WithoutKeyMark(direction.Caption()));
    const std::vector<int>& wrong = gearing.WrongOrder;
    if (!wrong.empty()) PrintOrderErrors(wrong);
    Print("  " + Zolv.GearingLabel[kGearingFinalDrive].Caption() + ' ' + panel.FinalDrive.Text());
    PrintLine("");
    PrintGears();
    if (wrong.empty() && options.AccelerationOn) PrintAcceleration();
}

void PrintTyres() {
    PrintHeading(WithoutKeyMark(Zolv.Select_Page.Rows()[2]) + ": " + Zolv.Select_Tyres.Text());
    PrintEntries({{&Zolv.TyreLabel[kTyrePressureF], &Zolv.Label_PressureF},
                  {&Zolv.TyreLabel[kTyrePressureR], &Zolv.Label_PressureR},
                  {&Zolv.TyreLabel[kTyreGrip], &Zolv.MU},
                  {&Zolv.TyreLabel[kTyrePatchRatio], &Zolv.FRCPR}});
    PrintLine("");
    // The tyre page analyses one axle at a time.
    Print("  " + (Zolv.FrontTyreAnal.Checked() ? texts.TextFront : texts.TextRear));
    PrintFigures(FiguresOfTyre());
}

/// The body and the fittings that the car has, side by side.
void PrintAeroParts() {
    const auto withoutColon = [](const std::string& name) { return name.substr(0, name.find(':')); };
    AlignedTable table;
    table.Add({"", withoutColon(Zolv.AeroLabel[kAeroDrag].Caption()), withoutColon(Zolv.AeroLabel[kAeroLift].Caption()),
               withoutColon(Zolv.AeroLabel[kAeroLiftDragRatio].Caption())});
    const auto add = [&](int panel, const Label& drag, const Label& lift, const Label& ratio) {
        if (!Zolv.AeroPanel[panel].Visible()) return;
        table.Add({WithoutKeyMark(Zolv.AeroPanel[panel].Caption()), drag.Caption(), lift.Caption(), ratio.Caption()});
    };
    add(kAeroBody, Zolv.Aero_BodyAirDrag, Zolv.Aero_BodyLift, Zolv.Aero_BodyLDR);
    add(kAeroUndertray, Zolv.Undertray.Drag, Zolv.Undertray.Lift, Zolv.Undertray.LDR);
    add(kAeroFrontWing, Zolv.FrontWing.Drag, Zolv.FrontWing.Lift, Zolv.FrontWing.LDR);
    add(kAeroRearWing, Zolv.RearWing.Drag, Zolv.RearWing.Lift, Zolv.RearWing.LDR);
    add(kAeroTotals, Zolv.Aero_TotalDrag, Zolv.Aero_TotalLift, Zolv.Aero_TotalLDR);
    PrintTable(table);
}

void PrintAero() {
    PrintHeading(WithoutKeyMark(Zolv.Select_Page.Rows()[3]));
    PrintEntries(
        {{&Zolv.AeroLabel[kAeroTopSpeed], &Zolv.Aero_TopSpeed},
         {&Zolv.AeroLabel[kAeroCarSpeed], Zolv.UseFixedSpeed.Checked() ? &Zolv.Aero_TopSpeed : &Zolv.AeroSpeed},
         {&Zolv.AeroLabel[kAeroFrontWingAngle], &Zolv.WingAngleFront},
         {&Zolv.AeroLabel[kAeroRearWingAngle], &Zolv.WingAngleRear}});
    PrintLine("");
    PrintAeroParts();
    PrintLine("");
    PrintEntries({{&Zolv.AeroLabel[kAeroRollingResistance], &Zolv.Aero_RR},
                  {&Zolv.AeroLabel[kAeroFriction], &Zolv.Aero_TotalFriction},
                  {&Zolv.AeroLabel[kAeroFrontWheels], &Zolv.Aero_ForceFrontWheels},
                  {&Zolv.AeroLabel[kAeroRearWheels], &Zolv.Aero_ForceRearWheels},
                  {&Zolv.AeroLabel[kAeroForceDistribution], &Zolv.Aero_ForceDistribution},
                  {&Zolv.AeroLabel[kAeroDistribution], &Zolv.Aero_AeroDistribution}});
}

}  // namespace

void PrintReport() {
    PrintCar();
    PrintGearing();
    PrintTyres();
    PrintAero();
}

}  // namespace zolv
