#pragma once

#include "model/by_gear.h"
#include "model/engine_curve.h"
#include "model/gear_speeds.h"

namespace zolv {

inline constexpr double kCentreOfGravity = 0.45;  // [m] above the road, for every car
inline constexpr double kLaunchFactor = 2.5;      // launch speed of the engine over idle speed

/// Share of the torque that a slipping clutch passes on: half of it from a car that stands, all of it where the road
/// speed turns the engine at its launch speed, at which the clutch holds it until then.
/// @param revs  engine speed that the road speed would give with the clutch closed [rpm], up to `launchRevs`
[[nodiscard]] inline float ClutchShare(double revs, double launchRevs) {
    return static_cast<float>(0.5 + (revs / launchRevs) / 2);
}

/// A car with its gearbox, ready to start.
struct AccelerationSetup {
    RollingCar Car;
    Engine Motor;
    EngineCurve Curve;
    double Efficiency = 0;  // share of the engine's power that reaches the wheels
    double Wheelbase = 0;   // [m]
    int NumGears = 0;
    int DrivetrainType = 0;  // 0 front, 1 rear, 2 all wheel drive
    double TyreMu = 0;
    ByGear Ratios{};  // 1 to 6
    double FinalDrive = 0;
    ByGear ShiftRevs{};       // [rpm] 1 to 6
    double LongDistance = 0;  // [m] behind which a run may end
};

}  // namespace zolv
