#pragma once

#include <optional>
#include <vector>

#include "model/run_setup.h"

/// The forces of a run as a function of the road speed alone: what each gear pulls, what the tyres can take, what holds
/// the car back. The gears, the tyres' radius, slip, efficiency and the clutch are those of the run.
///
/// Where a run knows its acceleration from the step before, these forces carry the acceleration that they themselves
/// give: a = (F - R) / m, with R the resistance. It moves the load  m a h / L = (F - R) h / L  from the front axle to
/// the rear, with h the height of the centre of gravity (kCentreOfGravity) and L the wheelbase; the mass falls out. A
/// car that does not accelerate (F <= R) moves none, as in the run.
///
/// The limit of grip is the force F that takes all of mu times the load on the driven axle, N being that load without
/// acceleration (weight and downforce at the speed) and c = h / L:
///
///     driven front      F = mu (Nf - c (F - R))     F = mu (Nf + c R) / (1 + mu c)
///     driven rear       F = mu (Nr + c (F - R))     F = mu (Nr - c R) / (1 - mu c)
///     all wheels        F = mu (Nf + Nr)            what one axle loses the other gains
///
/// F > R holds in the first two just where mu N > R; elsewhere there is no acceleration, and F = mu N. With mu c of 1
/// or more a rear-driven car that accelerates presses its tyres on faster than it loads them: it has no limit, and
/// infinity stands for that.
namespace zolv {

/// What does not depend on the gear, at one speed [N].
struct RoadForces {
    double FrontLoad = 0, RearLoad = 0;  // on the axles, without acceleration
    double Resistance = 0;               // drag and rolling resistance
    double GripLimit = 0;                // the largest driving force; infinite where there is none
};
/// @param speed  [m/s], 0 or more
[[nodiscard]] RoadForces RoadForcesAt(const AccelerationSetup& setup, double speed);

/// One gear at one speed.
struct WheelPoint {
    double Speed = 0;  // [m/s]
    double Revs = 0;   // [rpm] with the clutch closed; below its launch speed the engine turns at that, and the clutch
                       // slips
    double Force = 0;  // [N] at the wheels, as if the tyres could take any
    double Put = 0;    // [N] as the tyres take it: no more than the limit of grip
};
/// @param gear   1 to 6
/// @param speed  [m/s], 0 or more
[[nodiscard]] WheelPoint WheelAt(const AccelerationSetup& setup, int gear, double speed);
/// @param revs  engine speed with the clutch closed [rpm]
[[nodiscard]] WheelPoint WheelAtRevs(const AccelerationSetup& setup, int gear, double revs);

/// Forces of one gear from idle to the rev limit, both of the engine with the clutch closed.
struct GearForces {
    int Gear = 0;
    std::vector<WheelPoint> Points = {};      // with the speed rising
    std::optional<WheelPoint> Crossing = {};  // where the next gear begins to put more force on the road, this gear's
                                              // point; none where it does not up to the rev limit, and for the top gear
    std::optional<WheelPoint> Shift = {};     // where the driver changes up; none for the top gear
};

/// The speed at which the strongest gear meets the resistance.
struct ReachedSpeed {
    double Speed = 0;  // [m/s]
    double Force = 0;  // [N]
    bool AtRevLimit =
        false;  // the engine can turn no faster there, and what pulls beyond is weaker than the resistance
};

struct ForcesOverSpeed {
    std::vector<GearForces> Gears;        // those that the car has, without such as move it nowhere (a ratio of 0)
    std::optional<ReachedSpeed> Reached;  // none for a car that does not move off
};
[[nodiscard]] ForcesOverSpeed ForcesOver(const AccelerationSetup& setup);

/// The engine speed at which the run changes up out of each gear so that each change gains force at once: at its
/// crossing, or where it has none at the rev limit [rpm].
[[nodiscard]] ByGear CrossingRevs(const AccelerationSetup& setup, const ForcesOverSpeed& forces);

}  // namespace zolv
