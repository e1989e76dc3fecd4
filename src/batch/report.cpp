#include "batch/report.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "batch/output.h"
#include "fields/label_names.h"
#include "fields/windows.h"
#include "files/file_state.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "text/aligned_table.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/option_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

constexpr std::size_t kIndent = 2;
constexpr const char* kNotKnown = "-";

void PrintTable(const AlignedTable& table) {
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

void AddEntries(AlignedTable& table, std::initializer_list<Entry> entries) {
    for (const Entry& entry : entries) {
        if (!entry.value->Visible()) continue;
        std::vector<std::string> row{Shown(entry.name->Caption()), entry.value->Caption()};
        if (entry.second != nullptr) row.push_back(entry.second->Caption());
        table.Add(std::move(row));
    }
}

void PrintEntries(std::initializer_list<Entry> entries) {
    AlignedTable table(AlignedTable::Values::Left);
    AddEntries(table, entries);
    PrintTable(table);
}

void PrintCar() {
    PrintUnderlined("Tarmaq Zolv: " + Zolv.Select_Car.Text(), '=');
    if (!files.CurrentFileName.empty()) Print("  " + files.CurrentFileName);
    PrintEntries({{&Zolv.InfoLabel[kInfoPower], &Zolv.Info_Power},
                  {&Zolv.InfoLabel[kInfoTorque], &Zolv.Info_Torque},
                  {&Zolv.InfoLabel[kInfoDrivetrain], &Zolv.Info_DT},
                  {&Zolv.InfoLabel[kInfoGears], &Zolv.Info_Gears},
                  {&Zolv.InfoLabel[kInfoEfficiency], &Zolv.Info_Efficiency},
                  {&Zolv.InfoLabel[kInfoMass], &Zolv.Info_Mass},
                  {&Zolv.InfoLabel[kInfoWeightDist], &Zolv.Info_WD},
                  {&Zolv.InfoLabel[kInfoP2W], &Zolv.Info_P2W},
                  {&Zolv.InfoLabel[kInfoT2W], &Zolv.Info_T2W},
                  {&Zolv.InfoLabel[kInfoWheelbase], &Zolv.Info_WB}});
    PrintLine("");
    AlignedTable wheels;
    wheels.Add({Shown(Zolv.InfoPanel[kInfoWheels].Caption()), texts.TextFront, texts.TextRear});
    AddEntries(wheels, {{&Zolv.InfoLabel[kInfoRim], &Zolv.Info_RimF, &Zolv.Info_RimR},
                        {&Zolv.InfoLabel[kInfoTyreWidth], &Zolv.Info_TWF, &Zolv.Info_TWR},
                        {&Zolv.InfoLabel[kInfoTyreProfile], &Zolv.Info_TPF, &Zolv.Info_TPR},
                        {&Zolv.InfoLabel[kInfoTyreHeight], &Zolv.Info_THF, &Zolv.Info_THR},
                        {&Zolv.InfoLabel[kInfoPressures], &Zolv.Info_PRF, &Zolv.Info_PRR},
                        {&Zolv.InfoLabel[kInfoTrack], &Zolv.Info_TrackF, &Zolv.Info_TrackR}});
    PrintTable(wheels);
}

int GearsOfCar() { return vehicle.CurrentCar.NumGears < kGears ? vehicle.CurrentCar.NumGears : kGears; }

std::string GearName(int gear) { return texts.GearNames[static_cast<std::size_t>(gear)]; }

void PrintOrderErrors(const std::vector<int>& wrong) {
    const OrderWords words = OrderWordsOf(gearing.From());
    Print("  " + words.notUpdated + ' ' + texts.TextBecauseOfThe + ' ' + NumberText(static_cast<int>(wrong.size())) +
          ' ' + texts.TextErrors);
    for (const int gear : wrong) Print("    " + OrderSentence(words, gear));
    PrintLine("");
}

/// @param known  whether the results belong to the inputs; if not, a dash stands in their place
void PrintGears(GearingPanel& panel, bool known) {
    const auto result = [&](const Label& label) { return known ? label.Caption() : std::string(kNotKnown); };
    const auto title = [](int label) { return Zolv.GearingLabel[label].Caption(); };
    AlignedTable table;
    table.Add({"", "", "", title(kGearingEngineSpeed), "", ""});
    table.Add({title(kGearingGear), title(kGearingRatio), title(kGearingSpeed), title(kGearingBefore),
               title(kGearingAfter), title(kGearingTorque)});
    for (int gear = 1; gear <= GearsOfCar(); ++gear) {
        const std::string& input = panel.Input[gear].Text();
        const std::string found = result(panel.Result[gear]);
        table.Add({GearName(gear), gearing.RatiosMode ? input : found,
                   gearing.RatiosMode ? found : input + Zolv.Label_SPD[gear].Caption(), result(panel.RPM[gear]),
                   gear < GearsOfCar() ? result(panel.RAC[gear]) : "", result(panel.Torque[gear])});
    }
    if (panel.GearR.Visible()) {
        table.Add({title(kGearingReverse), panel.GearR.Caption(), result(panel.SpeedR), result(panel.RPMR), "",
                   result(panel.TorqueR)});
    }
    PrintTable(table);
}

void PrintAcceleration() {
    PrintHeading(Shown(Zolv.ShowAcc.Caption()));
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
    PrintHeading(Shown(Zolv.Select_Page.Rows()[1]) + ": " + Shown(direction.Caption()));
    const std::vector<int>& wrong = gearing.WrongOrder;
    if (!wrong.empty()) PrintOrderErrors(wrong);
    Print("  " + Zolv.GearingLabel[kGearingFinalDrive].Caption() + ' ' + panel.FinalDrive.Text());
    PrintLine("");
    PrintGears(panel, wrong.empty());
    if (wrong.empty() && options.AccelerationOn) PrintAcceleration();
}

void PrintTyres() {
    PrintHeading(Shown(Zolv.Select_Page.Rows()[2]) + ": " + Zolv.Select_Tyres.Text());
    PrintEntries({{&Zolv.TyreLabel[kTyrePressureF], &Zolv.Label_PressureF},
                  {&Zolv.TyreLabel[kTyrePressureR], &Zolv.Label_PressureR},
                  {&Zolv.TyreLabel[kTyreGrip], &Zolv.MU},
                  {&Zolv.TyreLabel[kTyrePatchRatio], &Zolv.FRCPR}});
    PrintLine("");
    // The tyre page analyses one axle at a time.
    Print("  " + (Zolv.FrontTyreAnal.Checked() ? texts.TextFront : texts.TextRear));
    PrintEntries({{&Zolv.TyreLabel[kTyrePatchWidth], &Zolv.CPW},
                  {&Zolv.TyreLabel[kTyrePatchLength], &Zolv.CPL},
                  {&Zolv.TyreLabel[kTyrePatchArea], &Zolv.CPA},
                  {&Zolv.TyreLabel[kTyrePatchAspect], &Zolv.CPAR},
                  {&Zolv.TyreLabel[kTyreStiffness], &Zolv.TS},
                  {&Zolv.TyreLabel[kTyreFrequency], &Zolv.TF},
                  {&Zolv.TyreLabel[kTyreUnloadedRadius], &Zolv.UTR},
                  {&Zolv.TyreLabel[kTyreDeformation], &Zolv.TD},
                  {&Zolv.TyreLabel[kTyreRollingRadius], &Zolv.TRRC},
                  {&Zolv.TyreLabel[kTyreWallHeight], &Zolv.TWH}});
}

/// The body and the fittings that the car has, side by side.
void PrintAeroParts() {
    const auto withoutColon = [](const std::string& name) { return name.substr(0, name.find(':')); };
    AlignedTable table;
    table.Add({"", withoutColon(Zolv.AeroLabel[kAeroDrag].Caption()), withoutColon(Zolv.AeroLabel[kAeroLift].Caption()),
               withoutColon(Zolv.AeroLabel[kAeroLiftDragRatio].Caption())});
    const auto add = [&](int panel, const Label& drag, const Label& lift, const Label& ratio) {
        if (!Zolv.AeroPanel[panel].Visible()) return;
        table.Add({Shown(Zolv.AeroPanel[panel].Caption()), drag.Caption(), lift.Caption(), ratio.Caption()});
    };
    add(kAeroBody, Zolv.Aero_BodyAirDrag, Zolv.Aero_BodyLift, Zolv.Aero_BodyLDR);
    add(kAeroUndertray, Zolv.Undertray.Drag, Zolv.Undertray.Lift, Zolv.Undertray.LDR);
    add(kAeroFrontWing, Zolv.FrontWing.Drag, Zolv.FrontWing.Lift, Zolv.FrontWing.LDR);
    add(kAeroRearWing, Zolv.RearWing.Drag, Zolv.RearWing.Lift, Zolv.RearWing.LDR);
    add(kAeroTotals, Zolv.Aero_TotalDrag, Zolv.Aero_TotalLift, Zolv.Aero_TotalLDR);
    PrintTable(table);
}

void PrintAero() {
    PrintHeading(Shown(Zolv.Select_Page.Rows()[3]));
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
