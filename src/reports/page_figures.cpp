#include "reports/page_figures.h"

#include <algorithm>

#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "gearing/gearing_state.h"
#include "text/texts.h"
#include "tyres/tyre_figures.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

std::vector<NamedFigure> FiguresOfCar() {
    return {{&Zolv.InfoLabel[kInfoPower], &Zolv.Info_Power},
            {&Zolv.InfoLabel[kInfoTorque], &Zolv.Info_Torque},
            {&Zolv.InfoLabel[kInfoDrivetrain], &Zolv.Info_DT},
            {&Zolv.InfoLabel[kInfoGears], &Zolv.Info_Gears},
            {&Zolv.InfoLabel[kInfoEfficiency], &Zolv.Info_Efficiency},
            {&Zolv.InfoLabel[kInfoMass], &Zolv.Info_Mass},
            {&Zolv.InfoLabel[kInfoWeightDist], &Zolv.Info_WD},
            {&Zolv.InfoLabel[kInfoP2W], &Zolv.Info_P2W},
            {&Zolv.InfoLabel[kInfoT2W], &Zolv.Info_T2W},
            {&Zolv.InfoLabel[kInfoWheelbase], &Zolv.Info_WB}};
}

std::vector<NamedFigure> FiguresOfTyre() {
    std::vector<NamedFigure> figures;
    for (const TyreFigure& figure : TyreFigures()) figures.push_back({&Zolv.TyreLabel[figure.name], figure.value});
    return figures;
}

std::vector<std::vector<std::string>> GearLines() {
    const bool ratios = gearing.RatiosMode;
    GearingPanel& panel = ratios ? Zolv.Ratios : Zolv.Speeds;
    const bool known = gearing.WrongOrder.empty();
    const auto result = [known](const Label& label) { return known ? label.Caption() : std::string("-"); };
    const int last = std::min<int>(vehicle.CurrentCar.NumGears, kGears);
    std::vector<std::vector<std::string>> lines;
    for (int gear = 1; gear <= last; ++gear) {
        const std::string& input = panel.Input[gear].Text();
        const std::string found = result(panel.Result[gear]);
        lines.push_back({GearName(gear), ratios ? input : found,
                         ratios ? found : input + Zolv.Label_SPD[gear].Caption(), result(panel.RPM[gear]),
                         gear < last ? result(panel.RAC[gear]) : "", result(panel.Torque[gear])});
    }
    if (panel.GearR.Visible()) {
        lines.push_back({Zolv.GearingLabel[kGearingReverse].Caption(), panel.GearR.Caption(), result(panel.SpeedR),
                         result(panel.RPMR), "", result(panel.TorqueR)});
    }
    return lines;
}

}  // namespace zolv
