#pragma once

#include "model/aero_model.h"
#include "model/car_record.h"

namespace zolv {

/// A car's undertray and wings at their angles.
struct Fittings {
    Fitting Undertray, FrontWing, RearWing;
};
/// @param frontWingAngle, rearWingAngle  [degrees], whole
[[nodiscard]] Fittings FittingsOf(const CarRecord& car, int frontWingAngle, int rearWingAngle);
[[nodiscard]] AirProfile ProfileOf(const CarRecord& car, const Fittings& fittings);

/// Each force rounded by itself, the sums too: the forces at the top speed.
[[nodiscard]] StoredForces RoundedForces(const AirForces& forces);

/// The forces at a chosen speed [m/s], where the sums are sums of the rounded forces.
[[nodiscard]] StoredForces ForcesAtChosenSpeed(double speed, const AirProfile& car);

/// How the car stands on the road under its forces.
struct AirSheet {
    StoredForces Forces;
    Fittings Parts;
    float FrontWheelForce = 0, RearWheelForce = 0;  // [N] vertical, on the whole axle
    double ForceDistribution = 0;                   // share of the load on the front axle
    double AeroDistribution = 0;                    // share of the lift on the front axle; 0 where the front has none
    double WeightMultiple = 0;                      // load on the road over weight
};
[[nodiscard]] AirSheet StandUnder(const StoredForces& forces, const Fittings& fittings, const AirProfile& car);

}  // namespace zolv
