#include "batch/report.h"

#include <initializer_list>
#include <string>
#include <utility>

#include "batch/output.h"
#include "batch/text_table.h"
#include "fields/windows.h"
#include "gearing/gearing_state.h"
#include "units/option_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

constexpr std::size_t kIndent = 2;

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

/// A caption on one line.
std::string Flat(const std::string& caption) {
    std::string flat;
    for (const char c : caption) {
        if (c == '\n') flat += ' ';
        if (c != '\n' && c != '\r') flat += c;
    }
    return flat;
}

void PrintHeading(const std::string& heading) {
    PrintLine("");
    PrintLine(heading);
    PrintLine(std::string(CharactersIn(heading), '-'));
}

/// Names and values side by side. A name that is hidden on its page, or whose value is, is left out here too.
using Pair = std::pair<const Field*, const Field*>;
void PrintPairs(std::initializer_list<Pair> pairs) {
    TextTable table;
    for (const auto& [name, value] : pairs) {
        if (value->Visible()) table.Add({Shown(name->Caption()), Flat(value->Caption())});
    }
    PrintTable(table);
}

void PrintCar() {
    PrintLine("Tarmaq Zolv: " + Zolv.Select_Car.Text());
    PrintLine(std::string(CharactersIn("Tarmaq Zolv: " + Zolv.Select_Car.Text()), '='));
    PrintPairs({{&Zolv.InfoLabel[5], &Zolv.Info_Power},
                {&Zolv.InfoLabel[6], &Zolv.Info_Torque},
                {&Zolv.InfoLabel[7], &Zolv.Info_DT},
                {&Zolv.InfoLabel[8], &Zolv.Info_Gears},
                {&Zolv.InfoLabel[0], &Zolv.Info_Mass},
                {&Zolv.InfoLabel[2], &Zolv.Info_WD},
                {&Zolv.InfoLabel[3], &Zolv.Info_P2W},
                {&Zolv.InfoLabel[4], &Zolv.Info_T2W}});
}

/// While numbers are in the wrong order the page shows its last results; the plot tells why.
void PrintOrderErrors() {
    const Canvas& plot = Zolv.TorquePlot.Drawing();
    for (const DrawingOperation& operation : plot.Operations()) {
        if (operation.kind == DrawingOperation::Kind::Text) PrintLine("  ! " + Flat(plot.TextOf(operation)));
    }
}

std::string GearName(int gear) { return Zolv.GearingLabel[7 + gear].Caption(); }

void PrintGears(GearingPanel& panel, bool ratiosAreInputs) {
    TextTable table;
    // Before the change and after it; the page has the two words the other way round, with the labels' numbers.
    table.Add({Zolv.GearingLabel[1].Caption(), Zolv.GearingLabel[2].Caption(), Zolv.GearingLabel[3].Caption(),
               Zolv.GearingLabel[6].Caption(), Zolv.GearingLabel[5].Caption(), Zolv.GearingLabel[7].Caption()});
    for (int gear = 1; gear <= vehicle.CurrentCar.NumGears && gear <= kGears; ++gear) {
        const std::string& input = panel.Input[gear].Text();
        const std::string& result = panel.Result[gear].Caption();
        const bool changesUp = gear < vehicle.CurrentCar.NumGears && gear < kGears;
        table.Add({GearName(gear), ratiosAreInputs ? input : result,
                   ratiosAreInputs ? result : input + Zolv.Label_SPD[gear].Caption(), panel.RPM[gear].Caption(),
                   changesUp ? panel.RAC[gear].Caption() : "", panel.Torque[gear].Caption()});
    }
    if (panel.GearR.Visible()) {
        table.Add({Zolv.GearingLabel[14].Caption(), panel.GearR.Caption(), panel.SpeedR.Caption(), panel.RPMR.Caption(),
                   "", panel.TorqueR.Caption()});
    }
    PrintTable(table);
}

void PrintGearing() {
    GearingPanel& panel = Zolv.GearingOf(gearing.Mode());
    const OptionButton& direction = gearing.RatiosMode ? Zolv.Direction1 : Zolv.Direction2;
    PrintHeading(Shown(Zolv.Select_Page.Rows()[1]) + ", " + Shown(direction.Caption()));
    PrintOrderErrors();
    PrintLine("  " + Zolv.GearingLabel[0].Caption() + ' ' + panel.FinalDrive.Text());
    PrintLine("");
    PrintGears(panel, gearing.RatiosMode);
}

void PrintAcceleration() {
    if (!options.AccelerationOn) return;
    PrintHeading(Shown(Zolv.ShowAcc.Caption()));
    TextTable table;
    for (int i = 0; i < 5; ++i) table.Add({Zolv.GearingLabel[30 + i].Caption(), Zolv.AccDataLabel[i].Caption()});
    for (int i = 0; i < 2; ++i) {
        table.Add({Zolv.GearingLabel[36 + i].Caption(), Zolv.AccDataLabel[6 + 2 * i].Caption(),
                   Zolv.AccDataLabel[7 + 2 * i].Caption()});
    }
    table.Add({Zolv.GearingLabel[35].Caption() + ':', Zolv.AccDataLabel[5].Caption()});
    PrintTable(table);
}

void PrintTyres() {
    const OptionButton& analysed = Zolv.FrontTyreAnal.Checked() ? Zolv.FrontTyreAnal : Zolv.RearTyreAnal;
    PrintHeading(Shown(Zolv.Select_Page.Rows()[2]) + ": " + Zolv.Select_Tyres.Text());
    PrintPairs({{&Zolv.TyreLabel[1], &Zolv.Label_PressureF},
                {&Zolv.TyreLabel[2], &Zolv.Label_PressureR},
                {&Zolv.TyreLabel[12], &Zolv.MU},
                {&Zolv.TyreLabel[11], &Zolv.FRCPR}});
    PrintLine("");
    PrintLine("  " + Shown(analysed.Caption()));
    PrintPairs({{&Zolv.TyreLabel[7], &Zolv.CPW},
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

void PrintAero() {
    PrintHeading(Shown(Zolv.Select_Page.Rows()[3]));
    const OptionButton& mode = Zolv.UseFixedSpeed.Checked() ? Zolv.UseFixedSpeed : Zolv.UseSliderSpeed;
    PrintPairs({{&mode, Zolv.UseFixedSpeed.Checked() ? &Zolv.Aero_TopSpeed : &Zolv.AeroSpeed},
                {&Zolv.AeroLabel[1], &Zolv.WingAngleFront},
                {&Zolv.AeroLabel[2], &Zolv.WingAngleRear},
                {&Zolv.AeroLabel[3], &Zolv.Aero_TotalDrag},
                {&Zolv.AeroLabel[4], &Zolv.Aero_TotalLift},
                {&Zolv.AeroLabel[5], &Zolv.Aero_TotalLDR},
                {&Zolv.AeroLabel[6], &Zolv.Aero_RR},
                {&Zolv.AeroLabel[8], &Zolv.Aero_TotalFriction},
                {&Zolv.AeroLabel[20], &Zolv.Aero_ForceFrontWheels},
                {&Zolv.AeroLabel[21], &Zolv.Aero_ForceRearWheels},
                {&Zolv.AeroLabel[22], &Zolv.Aero_ForceDistribution},
                {&Zolv.AeroLabel[23], &Zolv.Aero_AeroDistribution},
                {&Zolv.AeroLabel[9], &Zolv.Aero_TopSpeed}});
}

}  // namespace

void PrintReport() {
    PrintCar();
    PrintGearing();
    PrintAcceleration();
    PrintTyres();
    PrintAero();
}

}  // namespace zolv
