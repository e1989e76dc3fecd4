#pragma once

#include <optional>

#include "model/aero_model.h"
#include "model/shift_points.h"

namespace zolv {

/// One axle's tyres under vertical load.
struct AxleTyres {
    double UnloadedRadius = 0;  // [m]
    double Stiffness = 0;       // [N/m] of one tyre
    double MaxDeformation = 0;  // [m]
};

/// What decides how far the car moves for each turn of its driven wheels.
struct RollingCar {
    AirProfile Air;
    AxleTyres Front, Rear;
    bool RearDriven = false;  // all wheel drive counts as front
    double TyreSlip = 0;      // share of the road speed

    [[nodiscard]] const AxleTyres& Driven() const { return RearDriven ? Rear : Front; }
};

/// Vertical axle loads at a speed as they are stored [N].
struct StoredLoads {
    float front = 0;
    float rear = 0;

    bool operator==(const StoredLoads&) const = default;
};
[[nodiscard]] StoredLoads GearAxleLoadsAt(const RollingCar& car, double speed);

/// Deformation of a driven tyre under its axle's load [m].
[[nodiscard]] double DrivenDeformation(const RollingCar& car, const StoredLoads& loads);

/// Road speed in m/s for each rev/min of a wheel that rolls on `radius` [m], less the slip.
[[nodiscard]] float SpeedFactorOn(const RollingCar& car, double radius);

/// One gear settled: speed sets the downforce, the downforce the load, the load the tyre's deformation, the deformation
/// the rolling radius, and that the speed.
struct SettledGear {
    StoredLoads Loads;       // of the last round [N]
    float SpeedFactor = 0;   // [m/s for each rev/min of the wheel]
    double Deformation = 0;  // of the driven tyre [m]
    float Speed = 0;         // [m/s]
};

/// Rounds that settle the forward gears and reverse. A fixed number, so that every set-up takes the same path.
inline constexpr int kForwardRounds = 4;
inline constexpr int kReverseRounds = 3;

/// Settles a gear, starting from undeformed tyres.
/// @param revs        engine speed [rpm]
/// @param ratio, finalDrive  above 0
/// @param rounds      1 or more
/// @param loadSpeed   a speed [m/s] that sets the loads in place of the gear's own
[[nodiscard]] SettledGear SettleGear(const RollingCar& car, double revs, double ratio, double finalDrive, int rounds,
                                     std::optional<double> loadSpeed = {});

/// Engine speed just after changing up, at the same road speed [rpm].
[[nodiscard]] float RevsAfterChangeOf(double speed, double speedFactor, double nextRatio, double finalDrive);

}  // namespace zolv
