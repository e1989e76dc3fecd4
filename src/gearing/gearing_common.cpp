#include "gearing/gearing_common.h"

#include "fields/windows.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "tyres/tyre_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

void KeepDrivenDeformation(double deformation) {
    if (vehicle.CurrentCar.IsRearDriven()) {
        tyres.RearDeformation = static_cast<float>(deformation);
    } else {
        tyres.FrontDeformation = deformation;
    }
}

void CalcReverse() {
    const auto mode = static_cast<std::size_t>(gearing.Mode());
    const double revs = PresentShiftRules().TopRevs();
    gearing.GearRevs[0][0] = static_cast<float>(revs);
    const SettledGear reverse = SettleGear(PresentRollingCar(), gearing.GearRevs[0][0], gearing.GearRatio[0][0],
                                           gearing.FinalDrive[mode], kReverseRounds);
    gearing.GearSpeed[0][0] = reverse.Speed;
    gearing.GearAxleLoads[0] = reverse.Loads;
    gearing.GearSpeedFactor[0] = reverse.SpeedFactor;
}

void CalcGearAxleLoads() {
    const RollingCar car = PresentRollingCar();
    const ByGear& speeds = gearing.GearSpeed[static_cast<std::size_t>(gearing.Mode())];
    for (std::size_t gear = 1; gear <= kGears; ++gear) {
        gearing.GearAxleLoads[gear] = GearAxleLoadsAt(car, speeds[gear]);
    }
}

void CalcGearSpeedFactors() {
    const RollingCar car = PresentRollingCar();
    for (std::size_t gear = 0; gear <= kGears; ++gear) {
        const double deformation = DrivenDeformation(car, gearing.GearAxleLoads[gear]);
        KeepDrivenDeformation(deformation);
        gearing.GearSpeedFactor[gear] = SpeedFactorOn(car, car.Driven().UnloadedRadius - deformation);
    }
}

void CalcGearTorque(int mode) {
    const auto m = static_cast<std::size_t>(mode);
    const CarRecord& car = vehicle.CurrentCar;
    for (std::size_t gear = 0; gear <= kGears; ++gear) {
        const double ratio = gear == 0 ? gearing.GearRatio[0][0] : gearing.GearRatio[m][gear];
        gearing.GearTorque[m][gear] =
            static_cast<float>(static_cast<double>(car.Torque) * car.Efficiency * ratio * gearing.FinalDrive[m]);
    }
}

void ReportOrder(const OrderReport& report, std::span<const int> wrong) {
    constexpr const char* kLineBreak = "\r\n";
    Canvas& plot = Zolv.TorquePlot.Draw();
    plot.Clear();
    plot.SetInk(kRed);
    plot.Print(report.notUpdated + kLineBreak + texts.TextBecauseOfThe + ' ' +
               NumberText(static_cast<int>(wrong.size())) + ' ' + texts.TextErrors + kLineBreak);
    for (const int gear : wrong) {
        const auto k = static_cast<std::size_t>(gear);
        plot.Print(report.theNumberFor + ' ' + texts.GearNames[k + 1] + ' ' + report.isWrongAgainst + ' ' +
                   texts.GearNames[k] + kLineBreak);
    }
    plot.SetInk(kBlack);
    if (Zolv.Select_Graphs.Text() != texts.GraphNames[0]) Zolv.Select_Graphs.SetText(texts.GraphNames[0]);
}

void ShowGearRevs(GearingPanel& panel, int mode) {
    const auto m = static_cast<std::size_t>(mode);
    const double limit = PresentShiftRules().RevLimit();
    const double torqueRevs = vehicle.CurrentCar.TorqueRPM;
    for (int gear = 1; gear <= kGears; ++gear) {
        const double revs = gearing.GearRevs[m][static_cast<std::size_t>(gear)];
        if (gear < kGears) panel.RPM[gear].SetColour(ColourIf(revs > limit, kRed));
        panel.RPM[gear].SetCaption(WithUnit(revs, 0, texts.RpmSuffix));
    }
    for (int gear = 1; gear < kGears; ++gear) {
        const double revs = gearing.RevsAfterChange[m][static_cast<std::size_t>(gear)];
        panel.RAC[gear].SetColour(ColourIf(revs < torqueRevs, kBlue));
        panel.RAC[gear].SetCaption(WithUnit(revs, 0, texts.RpmSuffix));
    }
}

void ShowGearTorque(GearingPanel& panel, int mode) {
    const ByGear& torque = gearing.GearTorque[static_cast<std::size_t>(mode)];
    for (int gear = 1; gear <= kGears; ++gear) {
        panel.Torque[gear].SetCaption(units.Torque.Text(torque[static_cast<std::size_t>(gear)]));
    }
    panel.TorqueR.SetCaption(units.Torque.Text(torque[0]));
}

void ShowReverseSpeed() {
    const std::string speed = units.Speed.Text(gearing.GearSpeed[0][0]);
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) panel->SpeedR.SetCaption(speed);
}

}  // namespace zolv
