#include "batch/report.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "batch/output.h"
#include "batch/text_table.h"
#include "fields/windows.h"
#include "files/file_state.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/option_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

constexpr std::size_t kIndent = 2;
constexpr const char* kNotKnown = "-";

void PrintTable(const TextTable& table) {
    for (const std::string& line : table.Lines(kIndent)) PrintLine(line);
}

/// A caption as it reads on the screen: "&&" is one ampersand, a single "&" marks a key and is not shown.
std::string Shown(const std::string& caption) {
    std::string shown;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size()) break;
        shown += caption[i];
    }
    return shown;
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

void AddEntries(TextTable& table, std::initializer_list<Entry> entries) {
    for (const Entry& entry : entries) {
        if (!entry.value->Visible()) continue;
        std::vector<std::string> row{Shown(entry.name->Caption()), entry.value->Caption()};
        if (entry.second != nullptr) row.push_back(entry.second->Caption());
        table.Add(std::move(row));
    }
}

void PrintEntries(std::initializer_list<Entry> entries) {
    TextTable table(TextTable::Values::Left);
    AddEntries(table, entries);
    PrintTable(table);
}

void PrintCar() {
    PrintUnderlined("Tarmaq Zolv: " + Zolv.Select_Car.Text(), '=');
    if (!files.CurrentFileName.empty()) Print("  " + files.CurrentFileName);
    PrintEntries({{&Zolv.InfoLabel[5], &Zolv.Info_Power},
                  {&Zolv.InfoLabel[6], &Zolv.Info_Torque},
                  {&Zolv.InfoLabel[7], &Zolv.Info_DT},
                  {&Zolv.InfoLabel[8], &Zolv.Info_Gears},
                  {&Zolv.InfoLabel[9], &Zolv.Info_Efficiency},
                  {&Zolv.InfoLabel[0], &Zolv.Info_Mass},
                  {&Zolv.InfoLabel[2], &Zolv.Info_WD},
                  {&Zolv.InfoLabel[3], &Zolv.Info_P2W},
                  {&Zolv.InfoLabel[4], &Zolv.Info_T2W},
                  {&Zolv.InfoLabel[18], &Zolv.Info_WB}});
    PrintLine("");
    TextTable wheels;
    wheels.Add({Shown(Zolv.InfoPanel[3].Caption()), texts.TextFront, texts.TextRear});
    AddEntries(wheels, {{&Zolv.InfoLabel[12], &Zolv.Info_RimF, &Zolv.Info_RimR},
                        {&Zolv.InfoLabel[13], &Zolv.Info_TWF, &Zolv.Info_TWR},
                        {&Zolv.InfoLabel[14], &Zolv.Info_TPF, &Zolv.Info_TPR},
                        {&Zolv.InfoLabel[15], &Zolv.Info_THF, &Zolv.Info_THR},
                        {&Zolv.InfoLabel[16], &Zolv.Info_PRF, &Zolv.Info_PRR},
                        {&Zolv.InfoLabel[17], &Zolv.Info_TrackF, &Zolv.Info_TrackR}});
    PrintTable(wheels);
}

int GearsOfCar() { return vehicle.CurrentCar.NumGears < kGears ? vehicle.CurrentCar.NumGears : kGears; }

std::string GearName(int gear) { return texts.GearNames[static_cast<std::size_t>(gear)]; }

void PrintOrderErrors(const std::vector<int>& wrong) {
    const OrderWords words = OrderWordsOf(gearing.From());
    Print("  " + words.notUpdated + ' ' + texts.TextBecauseOfThe + ' ' + NumberText(static_cast<int>(wrong.size())) +
          ' ' + texts.TextErrors);
    for (const int gear : wrong) {
        Print("    " + words.theNumberFor + ' ' + GearName(gear + 1) + ' ' + words.isWrongAgainst + ' ' +
              GearName(gear));
    }
    PrintLine("");
}

/// @param known  whether the results belong to the inputs; if not, a dash stands in their place
void PrintGears(GearingPanel& panel, bool known) {
    const auto result = [&](const Label& label) { return known ? label.Caption() : std::string(kNotKnown); };
    const auto title = [](int label) { return Zolv.GearingLabel[label].Caption(); };
    TextTable table;
    table.Add({"", "", "", title(4), "", ""});
    table.Add({title(1), title(2), title(3), title(6), title(5), title(7)});
    for (int gear = 1; gear <= GearsOfCar(); ++gear) {
        const std::string& input = panel.Input[gear].Text();
        const std::string found = result(panel.Result[gear]);
        table.Add({GearName(gear), gearing.RatiosMode ? input : found,
                   gearing.RatiosMode ? found : input + Zolv.Label_SPD[gear].Caption(), result(panel.RPM[gear]),
                   gear < GearsOfCar() ? result(panel.RAC[gear]) : "", result(panel.Torque[gear])});
    }
    if (panel.GearR.Visible()) {
        table.Add(
            {title(14), panel.GearR.Caption(), result(panel.SpeedR), result(panel.RPMR), "", result(panel.TorqueR)});
    }
    PrintTable(table);
}

void PrintAcceleration() {
    PrintHeading(Shown(Zolv.ShowAcc.Caption()));
    TextTable table;
    for (int i = 0; i < 5; ++i) AddEntries(table, {{&Zolv.GearingLabel[30 + i], &Zolv.AccDataLabel[i]}});
    for (int i = 0; i < 2; ++i) {
        AddEntries(table, {{&Zolv.GearingLabel[36 + i], &Zolv.AccDataLabel[6 + 2 * i], &Zolv.AccDataLabel[7 + 2 * i]}});
    }
    table.Add({Zolv.GearingLabel[35].Caption() + ':', Zolv.AccDataLabel[5].Caption()});
    PrintTable(table);
}

void PrintGearing() {
    GearingPanel& panel = gearing.RatiosMode ? Zolv.Ratios : Zolv.Speeds;
    const OptionButton& direction = gearing.RatiosMode ? Zolv.Direction1 : Zolv.Direction2;
    PrintHeading(Shown(Zolv.Select_Page.Rows()[1]) + ": " + Shown(direction.Caption()));
    const std::vector<int>& wrong = gearing.WrongOrder;
    if (!wrong.empty()) PrintOrderErrors(wrong);
    Print("  " + Zolv.GearingLabel[0].Caption() + ' ' + panel.FinalDrive.Text());
    PrintLine("");
    PrintGears(panel, wrong.empty());
    if (wrong.empty() && options.AccelerationOn) PrintAcceleration();
}

void PrintTyres() {
    PrintHeading(Shown(Zolv.Select_Page.Rows()[2]) + ": " + Zolv.Select_Tyres.Text());
    PrintEntries({{&Zolv.TyreLabel[1], &Zolv.Label_PressureF},
                  {&Zolv.TyreLabel[2], &Zolv.Label_PressureR},
                  {&Zolv.TyreLabel[12], &Zolv.MU},
                  {&Zolv.TyreLabel[11], &Zolv.FRCPR}});
    PrintLine("");
    // The tyre page analyses one axle at a time.
    Print("  " + (Zolv.FrontTyreAnal.Checked() ? texts.TextFront : texts.TextRear));
    PrintEntries({{&Zolv.TyreLabel[7], &Zolv.CPW},
                  {&Zolv.TyreLabel[8], &Zolv.CPL},
                  {&Zolv.TyreLabel[9], &Zolv.CPA},
                  {&Zolv.TyreLabel[10], &Zolv.CPAR},
                  {&Zolv.TyreLabel[13], &Zolv.TS},
                  {&Zolv.TyreLabel[14], &Zolv.TF},
                  {&Zolv.TyreLabel[15], &Zolv.UTR},
                  {&Zolv.TyreLabel[16], &Zolv.TD},
                  {&Zolv.TyreLabel[17], &Zolv.TRRC},
                  {&Zolv.TyreLabel[18], &Zolv.TWH}});
}

/// The body and the fittings that the car has, side by side.
void PrintAeroParts() {
    const auto withoutColon = [](const std::string& name) { return name.substr(0, name.find(':')); };
    TextTable table;
    table.Add({"", withoutColon(Zolv.AeroLabel[3].Caption()), withoutColon(Zolv.AeroLabel[4].Caption()),
               withoutColon(Zolv.AeroLabel[5].Caption())});
    const auto add = [&](int panel, const Label& drag, const Label& lift, const Label& ratio) {
        if (!Zolv.AeroPanel[panel].Visible()) return;
        table.Add({Shown(Zolv.AeroPanel[panel].Caption()), drag.Caption(), lift.Caption(), ratio.Caption()});
    };
    add(3, Zolv.Aero_BodyAirDrag, Zolv.Aero_BodyLift, Zolv.Aero_BodyLDR);
    add(5, Zolv.Undertray.Drag, Zolv.Undertray.Lift, Zolv.Undertray.LDR);
    add(6, Zolv.FrontWing.Drag, Zolv.FrontWing.Lift, Zolv.FrontWing.LDR);
    add(7, Zolv.RearWing.Drag, Zolv.RearWing.Lift, Zolv.RearWing.LDR);
    add(1, Zolv.Aero_TotalDrag, Zolv.Aero_TotalLift, Zolv.Aero_TotalLDR);
    PrintTable(table);
}

void PrintAero() {
    PrintHeading(Shown(Zolv.Select_Page.Rows()[3]));
    PrintEntries({{&Zolv.AeroLabel[9], &Zolv.Aero_TopSpeed},
                  {&Zolv.AeroLabel[0], Zolv.UseFixedSpeed.Checked() ? &Zolv.Aero_TopSpeed : &Zolv.AeroSpeed},
                  {&Zolv.AeroLabel[1], &Zolv.WingAngleFront},
                  {&Zolv.AeroLabel[2], &Zolv.WingAngleRear}});
    PrintLine("");
    PrintAeroParts();
    PrintLine("");
    PrintEntries({{&Zolv.AeroLabel[6], &Zolv.Aero_RR},
                  {&Zolv.AeroLabel[8], &Zolv.Aero_TotalFriction},
                  {&Zolv.AeroLabel[20], &Zolv.Aero_ForceFrontWheels},
                  {&Zolv.AeroLabel[21], &Zolv.Aero_ForceRearWheels},
                  {&Zolv.AeroLabel[22], &Zolv.Aero_ForceDistribution},
                  {&Zolv.AeroLabel[23], &Zolv.Aero_AeroDistribution}});
}

}  // namespace

void PrintReport() {
    PrintCar();
    PrintGearing();
    PrintTyres();
    PrintAero();
}

}  // namespace zolv
