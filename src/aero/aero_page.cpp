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

void ShowBody(const CarRecord& car) {
    Zolv.Aero_BodyCd.SetCaption(NumberText(car.Cd));
    Zolv.Aero_BodyCl.SetCaption(NumberText(car.Cl));
    Zolv.Aero_FrontalArea.SetCaption(units.Area.Text(car.FrontalArea));
    Zolv.Aero_BodyCdA.SetCaption(units.Area.NumberOf(static_cast<double>(car.Cd) * car.FrontalArea));
    Zolv.Aero_BodyAirDrag.SetCaption(units.Force.Text(aero.Forces.BodyDrag));
    Zolv.Aero_BodyLift.SetCaption(units.Force.Text(aero.Forces.BodyLift));
    Zolv.Aero_BodyLDR.SetCaption(RatioText(aero.Forces.BodyLift, aero.Forces.BodyDrag));
}

void ShowFitting(FittingLabels& labels, const Fitting& fitting, float drag, float lift) {
    labels.CdA.SetCaption(units.Area.NumberOf(fitting.CdA));
    labels.ClA.SetCaption(units.Area.NumberOf(fitting.ClA));
    labels.Drag.SetCaption(units.Force.Text(drag));
    labels.Lift.SetCaption(units.Force.Text(lift));
    labels.LDR.SetCaption(RatioText(lift, drag));
}

void ShowTotals() {
    Zolv.Aero_TotalDrag.SetCaption(units.Force.Text(aero.Forces.TotalDrag));
    Zolv.Aero_TotalLift.SetCaption(units.Force.Text(aero.Forces.TotalLift));
    Zolv.Aero_TotalLDR.SetCaption(RatioText(aero.Forces.TotalLift, aero.Forces.TotalDrag));
    const double friction = aero.Forces.TotalFriction;
    Zolv.Aero_DragSplit.SetCaption(
        SplitText(aero.Forces.TotalDrag / friction * 100, aero.Forces.RollingResistance / friction * 100, 0));
    Zolv.Aero_RR.SetCaption(units.Force.Text(aero.Forces.RollingResistance));
    Zolv.Aero_TotalFriction.SetCaption(units.Force.Text(aero.Forces.TotalFriction));
}

/// What counts as neutral, either side of the weight's distribution.
constexpr double kNeutralBand = 0.005;

/// The balance of the lift against that of the weight.
AirBalance BalanceOf(double share, double weightDist) {
    if (share == 0 || !std::isfinite(share)) return AirBalance::None;
    if (share < weightDist - kNeutralBand) return AirBalance::Understeer;
    return share > weightDist + kNeutralBand ? AirBalance::Oversteer : AirBalance::Neutral;
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

void ShowAeroDistribution(double share, double weightDist) {
    aero.Balance = BalanceOf(share, weightDist);
    ShowBalance();
    Zolv.Aero_AeroDistribution.SetCaption(
        aero.Balance == AirBalance::None ? "N/A" : SplitText(100 * share, (1 - share) * 100, 1));
}

void ShowDistribution(const AirSheet& air) {
    Zolv.Aero_ForceFrontWheels.SetCaption(units.Force.Text(aero.FrontWheelForce));
    Zolv.Aero_ForceRearWheels.SetCaption(units.Force.Text(aero.RearWheelForce));
    Zolv.Aero_ForceDistribution.SetCaption(
        SplitText(100 * air.ForceDistribution, (1 - air.ForceDistribution) * 100, 1));
    ShowAeroDistribution(air.AeroDistribution, vehicle.CurrentCar.WeightDist);
    Zolv.Aero_WeightMultiple.SetCaption(RoundedText(air.WeightMultiple, 2));
}

void ShowAeroSpeed() {
    const std::string speed = units.Speed.Text(Zolv.Select_AeroSpeed.Value());
    Zolv.AeroSpeed.SetCaption(speed);
    Zolv.AeroSpeed_TyreTab.SetCaption(speed);
}

void ShowWingAngles() {
    const std::string degrees = ' ' + words["Degrees"];
    Zolv.WingAngleFront.SetCaption(NumberText(Zolv.Select_FrontWingAngle.Value()) + degrees);
    Zolv.WingAngleRear.SetCaption(NumberText(Zolv.Select_RearWingAngle.Value()) + degrees);
}

void ShowGeneral() {
    constexpr double kZeroCelsius = 273.15;  // [K]
    Zolv.Aero_TopSpeed.SetCaption(units.Speed.Text(aero.TopSpeed));
    Zolv.Aero_AirDensity.SetCaption(WithUnit(aero.AirDensity, 3, " kg/m^3"));
    Zolv.Aero_AirTemp.SetCaption(WithUnit(aero.AirTemperature - kZeroCelsius, 2, "\u00B0C"));
    ShowWingAngles();
    ShowAeroSpeed();
}

void ShowAeroPage(const AirSheet& air) {
    ShowBody(vehicle.CurrentCar);
    ShowFitting(Zolv.Undertray, aero.Parts.Undertray, aero.Forces.UndertrayDrag, aero.Forces.UndertrayLift);
    ShowFitting(Zolv.FrontWing, aero.Parts.FrontWing, aero.Forces.FrontWingDrag, aero.Forces.FrontWingLift);
    ShowFitting(Zolv.RearWing, aero.Parts.RearWing, aero.Forces.RearWingDrag, aero.Forces.RearWingLift);
    ShowTotals();
    ShowDistribution(air);
    ShowGeneral();
}

void EnableSpeedSliders(bool enabled) {
    Zolv.Select_AeroSpeed.SetEnabled(enabled);
    Zolv.Select_AeroSpeed_TyreTab.SetEnabled(enabled);
}

}  // namespace

void FindTopSpeed() {
    const CarRecord& car = vehicle.CurrentCar;
    const TopSpeedResult top = TopSpeedOf(aero.Profile(), static_cast<double>(car.Power) * car.Efficiency);
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
    ShowAeroPage(air);
}

BalanceMarks PresentBalanceMarks() {
    constexpr double kReach = 0.1;
    const auto onBar = [](double fromWeight) { return std::clamp(0.5 + fromWeight / (2 * kReach), 0.0, 1.0); };
    BalanceMarks marks{.BandFrom = onBar(-kNeutralBand), .BandTo = onBar(kNeutralBand)};
    if (aero.Balance == AirBalance::None) return marks;
    marks.Here = onBar(aero.AeroDistribution - static_cast<double>(vehicle.CurrentCar.WeightDist));
    return marks;
}

void ShowAeroWords() {
    ShowBalance();
    ShowWingAngles();
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
