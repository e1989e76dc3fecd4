#include "aero/aero_page.h"

#include <cmath>
#include <string>

#include "aero/aero_state.h"
#include "fields/guards.h"
#include "fields/windows.h"
#include "model/aero_model.h"
#include "model/whole_number.h"
#include "text/number_text.h"
#include "text/words.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

AeroState aero;

AirProfile AeroState::Profile() const {
    return ProfileOf(vehicle.CurrentCar, Undertray, FrontWing, RearWing, AirDensity);
}

namespace {

void StoreForces(const AirForces& forces) {
    aero.BodyDrag = static_cast<float>(forces.BodyDrag);
    aero.BodyLift = static_cast<float>(forces.BodyLift);
    aero.UndertrayDrag = static_cast<float>(forces.UndertrayDrag);
    aero.UndertrayLift = static_cast<float>(forces.UndertrayLift);
    aero.FrontWingDrag = static_cast<float>(forces.FrontWingDrag);
    aero.FrontWingLift = static_cast<float>(forces.FrontWingLift);
    aero.RearWingDrag = static_cast<float>(forces.RearWingDrag);
    aero.RearWingLift = static_cast<float>(forces.RearWingLift);
    aero.TotalDrag = static_cast<float>(forces.TotalDrag);
    aero.TotalLift = static_cast<float>(forces.TotalLift);
    aero.RollingResistance = static_cast<float>(forces.RollingResistance);
    aero.TotalFriction = static_cast<float>(forces.TotalFriction);
}

/// At the slider's speed the sums are sums of stored values, unlike those at the top speed.
void StoreForcesAtSliderSpeed() {
    aero.AeroSpeedValue = ToInt16(Zolv.Select_AeroSpeed.Value());
    const double speed = aero.AeroSpeedValue;
    StoreForces(ForcesAt(speed, aero.Profile()));
    const auto sum = [](double a, double b, double c, double d) { return static_cast<float>(a + b + c + d); };
    aero.TotalDrag = sum(aero.BodyDrag, aero.UndertrayDrag, aero.FrontWingDrag, aero.RearWingDrag);
    aero.TotalLift = sum(aero.BodyLift, aero.UndertrayLift, aero.FrontWingLift, aero.RearWingLift);
    aero.RollingResistance = static_cast<float>(
        RollingCoefficient(speed) * (vehicle.CurrentCar.Mass * kGravity - static_cast<double>(aero.TotalLift)));
    aero.TotalFriction = static_cast<float>(static_cast<double>(aero.TotalDrag) + aero.RollingResistance);
}

/// What the page derives from the axle loads and lifts.
struct Distribution {
    double force = 0;           // share of the load on the front axle
    double aero = 0;            // share of the lift on the front axle; 0 when the front has none
    double weightMultiple = 0;  // load on the road over weight
};

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
    Zolv.Aero_BodyAirDrag.SetCaption(units.Force.Text(aero.BodyDrag));
    Zolv.Aero_BodyLift.SetCaption(units.Force.Text(aero.BodyLift));
    Zolv.Aero_BodyLDR.SetCaption(RatioText(aero.BodyLift, aero.BodyDrag));
}

void ShowFitting(FittingLabels& labels, const Fitting& fitting, float drag, float lift) {
    labels.CdA.SetCaption(units.Area.NumberOf(fitting.CdA));
    labels.ClA.SetCaption(units.Area.NumberOf(fitting.ClA));
    labels.Drag.SetCaption(units.Force.Text(drag));
    labels.Lift.SetCaption(units.Force.Text(lift));
    labels.LDR.SetCaption(RatioText(lift, drag));
}

void ShowTotals() {
    Zolv.Aero_TotalDrag.SetCaption(units.Force.Text(aero.TotalDrag));
    Zolv.Aero_TotalLift.SetCaption(units.Force.Text(aero.TotalLift));
    Zolv.Aero_TotalLDR.SetCaption(RatioText(aero.TotalLift, aero.TotalDrag));
    const double friction = aero.TotalFriction;
    Zolv.Aero_DragSplit.SetCaption(
        SplitText(aero.TotalDrag / friction * 100, aero.RollingResistance / friction * 100, 0));
    Zolv.Aero_RR.SetCaption(units.Force.Text(aero.RollingResistance));
    Zolv.Aero_TotalFriction.SetCaption(units.Force.Text(aero.TotalFriction));
}

/// The balance of the lift against that of the weight: within half a per cent either side counts as neutral.
AirBalance BalanceOf(double share, double weightDist) {
    constexpr double kNeutralBand = 0.005;
    if (share == 0 || !std::isfinite(share)) return AirBalance::None;
    if (share < weightDist - kNeutralBand) return AirBalance::Understeer;
    return share > weightDist + kNeutralBand ? AirBalance::Oversteer : AirBalance::Neutral;
}

void ShowBalance() {
    Label& field = Zolv.Aero_AeroDistribution;
    const auto show = [&field](const Rgb& colour, const std::string& word) {
        field.SetColour(colour);
        field.SetToolTip(word);
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

void ShowDistribution(const Distribution& distribution) {
    Zolv.Aero_ForceFrontWheels.SetCaption(units.Force.Text(aero.FrontWheelForce));
    Zolv.Aero_ForceRearWheels.SetCaption(units.Force.Text(aero.RearWheelForce));
    Zolv.Aero_ForceDistribution.SetCaption(SplitText(100 * distribution.force, (1 - distribution.force) * 100, 1));
    ShowAeroDistribution(distribution.aero, vehicle.CurrentCar.WeightDist);
    Zolv.Aero_WeightMultiple.SetCaption(RoundedText(distribution.weightMultiple, 2));
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

void ShowAeroPage(const Distribution& distribution) {
    ShowBody(vehicle.CurrentCar);
    ShowFitting(Zolv.Undertray, aero.Undertray, aero.UndertrayDrag, aero.UndertrayLift);
    ShowFitting(Zolv.FrontWing, aero.FrontWing, aero.FrontWingDrag, aero.FrontWingLift);
    ShowFitting(Zolv.RearWing, aero.RearWing, aero.RearWingDrag, aero.RearWingLift);
    ShowTotals();
    ShowDistribution(distribution);
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
    if (aero.FixedSpeedMode) StoreForces(top.forces);
}

void CalcAeroCoefficients() {
    const CarRecord& car = vehicle.CurrentCar;
    aero.FrontWingAngle = ToInt16(Zolv.Select_FrontWingAngle.Value());
    aero.RearWingAngle = ToInt16(Zolv.Select_RearWingAngle.Value());
    aero.Undertray = UndertrayOf(car.UndertrayType);
    aero.FrontWing = FrontWingOf(car.FrontWingType, aero.FrontWingAngle);
    aero.RearWing = RearWingOf(car.RearWingType, aero.RearWingAngle);
    FindTopSpeed();
    if (guards.Loading) return;
    aero.TopSpeedFound();
    CalcAeroForces();
}

void CalcAeroForces() {
    if (!aero.FixedSpeedMode) StoreForcesAtSliderSpeed();

    const AirProfile car = aero.Profile();
    const AxleLoads lift = LiftOnAxles(aero.BodyLift, aero.UndertrayLift, aero.FrontWingLift, aero.RearWingLift, car,
                                       car.Undertray.Position);
    const AxleLoads loads = LoadsUnder(lift, car);
    aero.FrontWheelForce = static_cast<float>(loads.front);
    aero.RearWheelForce = static_cast<float>(loads.rear);

    const double front = aero.FrontWheelForce;
    const double weight = car.Mass * kGravity;
    ShowAeroPage({.force = front / (static_cast<double>(aero.RearWheelForce) + front),
                  .aero = lift.front == 0 ? 0 : lift.front / (lift.front + lift.rear),
                  .weightMultiple = (weight - aero.TotalLift) / weight});
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
