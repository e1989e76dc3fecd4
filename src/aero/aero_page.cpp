#include "aero/aero_page.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "aero/aero_state.h"
#include "fields/all_windows.h"
#include "fields/guards.h"
#include "model/air_sheet.h"
#include "model/whole_number.h"
#include "text/number_text.h"
#include "text/words.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

AirProfile AeroState::Profile() const { return ProfileOf(vehicle.CurrentCar, Parts); }

namespace {

/// Lift over drag, positive for a part that presses the car down.
std::string RatioText(float lift, float drag) {
    if (drag == 0) return "N/A";
    return WithUnit(static_cast<double>(lift) * -1 / drag, 2, " : 1");
}

std::string SplitText(double first, double second, int decimals) {
    if (!std::isfinite(first) || !std::isfinite(second)) return "N/A";
    return WithUnit(first, decimals, "% / ") + WithUnit(second, decimals, "%");
}

void ShowBody(Showing which, const CarRecord& car, const StoredForces& air) {
    Zolv.Aero_BodyCd.Write(which, NumberText(car.Cd));
    Zolv.Aero_BodyCl.Write(which, NumberText(car.Cl));
    Zolv.Aero_FrontalArea.Write(which, units.Area.Text(car.FrontalArea));
    Zolv.Aero_BodyCdA.Write(which, units.Area.NumberOf(static_cast<double>(car.Cd) * car.FrontalArea));
    Zolv.Aero_BodyAirDrag.Write(which, units.Force.Text(air.BodyDrag));
    Zolv.Aero_BodyLift.Write(which, units.Force.Text(air.BodyLift));
    Zolv.Aero_BodyLDR.Write(which, RatioText(air.BodyLift, air.BodyDrag));
}

void ShowFitting(Showing which, FittingLabels& labels, const Fitting& fitting, float drag, float lift) {
    labels.CdA.Write(which, units.Area.NumberOf(fitting.CdA));
    labels.ClA.Write(which, units.Area.NumberOf(fitting.ClA));
    labels.Drag.Write(which, units.Force.Text(drag));
    labels.Lift.Write(which, units.Force.Text(lift));
    labels.LDR.Write(which, RatioText(lift, drag));
}

void ShowTotals(Showing which, const StoredForces& air) {
    Zolv.Aero_TotalDrag.Write(which, units.Force.Text(air.TotalDrag));
    Zolv.Aero_TotalLift.Write(which, units.Force.Text(air.TotalLift));
    Zolv.Aero_TotalLDR.Write(which, RatioText(air.TotalLift, air.TotalDrag));
    const double friction = air.TotalFriction;
    Zolv.Aero_DragSplit.Write(which,
                              SplitText(air.TotalDrag / friction * 100, air.RollingResistance / friction * 100, 0));
    Zolv.Aero_RR.Write(which, units.Force.Text(air.RollingResistance));
    Zolv.Aero_TotalFriction.Write(which, units.Force.Text(air.TotalFriction));
}

void ShowBalance() {
    const auto show = [](const Rgb& colour, const std::string& word) {
        Zolv.Aero_AeroDistribution.SetColour(colour);
        Zolv.Aero_AeroDistribution.SetToolTip(word);
    };
    switch (aero.Balance) {
        case AirBalance::None: show(kBlack, "N/A"); break;
        case AirBalance::Understeer: show(kBlue, words["Understeer"]); break;
        case AirBalance::Neutral: show(kDarkGreen, words["Neutral"]); break;
        case AirBalance::Oversteer: show(kRed, words["Oversteer"]); break;
    }
}

void ShowAeroDistribution(Showing which, double share, double weightDist) {
    const AirBalance balance = BalanceOf(share, weightDist);
    if (which == Showing::Present) {
        aero.Balance = balance;
        ShowBalance();
    }
    Zolv.Aero_AeroDistribution.Write(
        which, balance == AirBalance::None ? "N/A" : SplitText(100 * share, (1 - share) * 100, 1));
}

void ShowDistribution(Showing which, const CarRecord& car, const AirSheet& sheet) {
    Zolv.Aero_ForceFrontWheels.Write(which, units.Force.Text(sheet.FrontWheelForce));
    Zolv.Aero_ForceRearWheels.Write(which, units.Force.Text(sheet.RearWheelForce));
    Zolv.Aero_ForceDistribution.Write(which,
                                      SplitText(100 * sheet.ForceDistribution, (1 - sheet.ForceDistribution) * 100, 1));
    ShowAeroDistribution(which, sheet.AeroDistribution, car.WeightDist);
    Zolv.Aero_WeightMultiple.Write(which, RoundedText(sheet.WeightMultiple, 2));
}

void ShowAeroSpeed(Showing which, double speed) {
    for (Label* label : {&Zolv.AeroSpeed, &Zolv.AeroSpeed_TyreTab}) label->Write(which, units.Speed.Text(speed));
}
void ShowAeroSpeed() { ShowAeroSpeed(Showing::Present, Zolv.Select_AeroSpeed.Value()); }

void ShowWingAngles(Showing which, int front, int rear) {
    const std::string degrees = ' ' + words["Degrees"];
    Zolv.WingAngleFront.Write(which, NumberText(front) + degrees);
    Zolv.WingAngleRear.Write(which, NumberText(rear) + degrees);
}

/// The air itself is the same for every set-up.
void ShowAirItself() {
    constexpr double kZeroCelsius = 273.15;  // [K]
    Zolv.Aero_AirDensity.SetCaption(WithUnit(aero.AirDensity, 3, " kg/m^3"));
    Zolv.Aero_AirTemp.SetCaption(WithUnit(aero.AirTemperature - kZeroCelsius, 2, "\u00B0C"));
}

void EnableSpeedSliders(bool enabled) {
    Zolv.Select_AeroSpeed.SetEnabled(enabled);
    Zolv.Select_AeroSpeed_TyreTab.SetEnabled(enabled);
}

}  // namespace

void FindTopSpeed() {
    const CarRecord& car = vehicle.CurrentCar;
    const TopSpeedResult top = TopSpeedOf(aero.Profile(), PowerAtWheels(car));
    aero.TopSpeed = top.speed;
    if (aero.FixedSpeedMode) aero.Forces = RoundedForces(top.forces);
}

void CalcAeroCoefficients() {
    aero.FrontWingAngle = ToInt16(Zolv.Select_FrontWingAngle.Value());
    aero.RearWingAngle = ToInt16(Zolv.Select_RearWingAngle.Value());
    aero.Parts = FittingsOf(vehicle.CurrentCar, aero.FrontWingAngle, aero.RearWingAngle);
    FindTopSpeed();
    if (guards.Loading) return;
    aeroFollowUps.TopSpeedFound();
    CalcAeroForces();
}

void CalcAeroForces() {
    if (!aero.FixedSpeedMode) {
        aero.AeroSpeedValue = ToInt16(Zolv.Select_AeroSpeed.Value());
        aero.Forces = ForcesAtChosenSpeed(aero.AeroSpeedValue, aero.Profile());
    }
    const AirSheet air = StandUnder(aero.Forces, aero.Parts, aero.Profile());
    aero.AeroDistribution = air.AeroDistribution;
    aero.FrontWheelForce = air.FrontWheelForce;
    aero.RearWheelForce = air.RearWheelForce;
    ShowAirOf(Showing::Present, vehicle.CurrentCar, air,
              {.topSpeed = aero.TopSpeed,
               .speed = static_cast<double>(Zolv.Select_AeroSpeed.Value()),
               .frontWing = Zolv.Select_FrontWingAngle.Value(),
               .rearWing = Zolv.Select_RearWingAngle.Value()});
    ShowAirItself();
}

void ShowAirOf(Showing which, const CarRecord& car, const AirSheet& air, const AirChoices& choices) {
    const StoredForces& forces = air.Forces;
    ShowBody(which, car, forces);
    ShowFitting(which, Zolv.Undertray, air.Parts.Undertray, forces.UndertrayDrag, forces.UndertrayLift);
    ShowFitting(which, Zolv.FrontWing, air.Parts.FrontWing, forces.FrontWingDrag, forces.FrontWingLift);
    ShowFitting(which, Zolv.RearWing, air.Parts.RearWing, forces.RearWingDrag, forces.RearWingLift);
    ShowTotals(which, forces);
    ShowDistribution(which, car, air);
    Zolv.Aero_TopSpeed.Write(which, units.Speed.Text(choices.topSpeed));
    ShowWingAngles(which, choices.frontWing, choices.rearWing);
    ShowAeroSpeed(which, choices.speed);
}

BalanceMarks PresentBalanceMarks() {
    constexpr double kReach = 0.1;
    const auto onBar = [](double fromWeight) { return std::clamp(0.5 + fromWeight / (2 * kReach), 0.0, 1.0); };
    BalanceMarks marks{.BandFrom = onBar(-kNeutralBand), .BandTo = onBar(kNeutralBand)};
    if (aero.Balance == AirBalance::None) return marks;
    marks.Here = onBar(aero.AeroDistribution - static_cast<double>(vehicle.CurrentCar.WeightDist));
    return marks;
}

void MoveAeroSpeed() {
    ShowAeroSpeed();
    Zolv.Select_AeroSpeed_TyreTab.SetValue(Zolv.Select_AeroSpeed.Value());
    if (!aero.FixedSpeedMode) CalcAeroForces();
}

void MoveAeroSpeedOfTyreTab() {
    Zolv.Select_AeroSpeed.SetValue(Zolv.Select_AeroSpeed_TyreTab.Value());
    MoveAeroSpeed();
}

void ChooseSliderSpeed() {
    aero.FixedSpeedMode = false;
    EnableSpeedSliders(true);
    CalcAeroForces();
}

void ChooseFixedSpeed() {
    aero.FixedSpeedMode = true;
    EnableSpeedSliders(false);
    CalcAeroCoefficients();
}

}  // namespace zolv
