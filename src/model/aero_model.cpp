#include "model/aero_model.h"

#include <cmath>

namespace zolv {
namespace {

/// Of a wing: drag area at angle 0 and per degree squared, lift area at angle 0 and per degree, position.
struct WingRow {
    float CdABase, CdAPerDegree2, ClABase, ClAPerDegree, Position;
};

// clang-format off
constexpr Fitting kUndertrayTable[] = {
    {0,      0,       0.5F},
    {0.199F, -1.196F, 0.47F},
    {0.266F, -1.595F, 0.47F},
    {0.266F, -1.595F, 0.45F},
};
constexpr WingRow kFrontWingTable[] = {
    {0,       0,          0,        0,         1.0F},
    {0.04F,   0.000428F,  -0.12F,   -0.04329F, 1.1F},
    {0.0532F, 0.00057F,   -0.1595F, -0.0578F,  1.1F},
    {0.0332F, 0.000358F,  -0.0997F, -0.03615F, 1.05F},
    {0.0365F, 0.0003955F, -0.1827F, -0.0662F,  1.1F},
};
constexpr WingRow kRearWingTable[] = {
    {0,       0,         0,        0,         1.0F},
    {0.035F,  0.000365F, -0.1047F, -0.0379F,  1.1F},
    {0.047F,  0.00049F,  -0.1395F, -0.05055F, 1.1F},
    {0.0249F, 0.00026F,  -0.1246F, -0.04515F, 1.11F},
};
// clang-format on

/// A type that its table lacks, as in a preset file of another hand, counts as none.
template <class Row, std::size_t Rows>
const Row& RowOf(const Row (&table)[Rows], int type) {
    return table[type >= 0 && static_cast<std::size_t>(type) < Rows ? type : 0];
}

Fitting WingAt(const WingRow& wing, int angle) {
    constexpr double kCurvature = 0.000193;  // per degree squared
    const double theta = angle;
    return {static_cast<float>(theta * theta * wing.CdAPerDegree2 + wing.CdABase),
            static_cast<float>((1 - theta * theta * kCurvature) * (theta * wing.ClAPerDegree) + wing.ClABase),
            wing.Position};
}

double DynamicPressure(double speed, const AirProfile& car) { return 0.5 * car.AirDensity * (speed * speed); }

}  // namespace

Fitting UndertrayOf(int type) { return RowOf(kUndertrayTable, type); }
Fitting FrontWingOf(int type, int angle) { return WingAt(RowOf(kFrontWingTable, type), angle); }
Fitting RearWingOf(int type, int angle) { return WingAt(RowOf(kRearWingTable, type), angle); }

AirProfile ProfileOf(const CarRecord& car, const Fitting& undertray, const Fitting& frontWing, const Fitting& rearWing,
                     double airDensity) {
    return {.Mass = static_cast<double>(car.Mass),
            .WeightDist = car.WeightDist,
            .Cd = car.Cd,
            .FrontalArea = car.FrontalArea,
            .Cl = car.Cl,
            .Undertray = undertray,
            .FrontWing = frontWing,
            .RearWing = rearWing,
            .AirDensity = airDensity};
}

double RollingCoefficient(double speed) {
    constexpr double kBase = 0.009999999776482582;
    constexpr double kSlope = 3.6375000316184017e-07;
    return kBase + kSlope * std::pow(speed, 2.5);
}

namespace {

inline AirForces ForcesWith(double q, double bodyDrag, double speed, const AirProfile& car) {
    AirForces forces;
    forces.BodyDrag = bodyDrag;
    forces.BodyLift = q * car.Cl;
    forces.UndertrayDrag = q * car.Undertray.CdA;
    forces.UndertrayLift = q * car.Undertray.ClA;
    forces.FrontWingDrag = q * car.FrontWing.CdA;
    forces.FrontWingLift = q * car.FrontWing.ClA;
    forces.RearWingDrag = q * car.RearWing.CdA;
    forces.RearWingLift = q * car.RearWing.ClA;
    forces.TotalDrag = forces.BodyDrag + forces.UndertrayDrag + forces.FrontWingDrag + forces.RearWingDrag;
    forces.TotalLift = forces.BodyLift + forces.UndertrayLift + forces.FrontWingLift + forces.RearWingLift;
    forces.RollingResistance = RollingCoefficient(speed) * (car.Mass * kGravity - forces.TotalLift);
    forces.TotalFriction = forces.TotalDrag + forces.RollingResistance;
    return forces;
}

}  // namespace

AirForces ForcesAt(double speed, const AirProfile& car) {
    const double q = DynamicPressure(speed, car);
    return ForcesWith(q, q * car.Cd * car.FrontalArea, speed, car);
}

AirForces ForcesInRunAt(double speed, const AirProfile& car) {
    const double q = DynamicPressure(speed, car);
    return ForcesWith(q, car.Cd * car.FrontalArea * q, speed, car);
}

AxleLoads LiftOnAxles(double bodyLift, double undertrayLift, double frontWingLift, double rearWingLift,
                      const AirProfile& car, double undertrayShare) {
    const double frontWing = car.FrontWing.Position;
    const double rearWing = car.RearWing.Position;
    return {bodyLift * car.WeightDist + undertrayLift * undertrayShare + frontWingLift * frontWing +
                rearWingLift * (1 - rearWing),
            bodyLift * (1 - car.WeightDist) + undertrayLift * (1 - undertrayShare) + frontWingLift * (1 - frontWing) +
                rearWingLift * rearWing};
}

AxleLoads LoadsUnder(const AxleLoads& lift, const AirProfile& car) {
    return {car.Mass * kGravity * car.WeightDist - lift.front, car.Mass * kGravity * (1 - car.WeightDist) - lift.rear};
}

AxleLoads AxleLoadsAt(double speed, const AirProfile& car) {
    const double q = DynamicPressure(speed, car);
    return LoadsUnder(LiftOnAxles(q * car.Cl, q * car.Undertray.ClA, q * car.FrontWing.ClA, q * car.RearWing.ClA, car,
                                  car.WeightDist),
                      car);
}

AirBalance BalanceOf(double share, double weightDist) {
    if (share == 0 || !std::isfinite(share)) return AirBalance::None;
    if (share < weightDist - kNeutralBand) return AirBalance::Understeer;
    return share > weightDist + kNeutralBand ? AirBalance::Oversteer : AirBalance::Neutral;
}

TopSpeedResult TopSpeedOf(const AirProfile& car, double power_kW) {
    constexpr float kHighest = 20'000;
    TopSpeedResult top;
    double demand = 0;
    while (demand < power_kW && top.speed < kHighest) {
        top.speed = static_cast<float>(top.speed + (demand < power_kW / 3 ? 5.0 : 0.05));
        top.forces = ForcesAt(top.speed, car);
        demand = top.forces.TotalFriction * top.speed / 1000;
    }
    return top;
}

}  // namespace zolv
