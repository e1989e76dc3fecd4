#pragma once

#include <cstdint>
#include <vector>

#include "model/by_gear.h"
#include "model/car_record.h"
#include "model/gear_speeds.h"
#include "model/ratio_search.h"
#include "model/shift_points.h"

/// The gearbox in both directions: ratios given and speeds found, or speeds wanted and ratios found.
namespace zolv {

/// Which of the two the driver gives; the other follows.
enum class Direction : std::uint8_t { FromRatios, FromSpeeds };

/// One gearbox with all that follows from it. Entry 0 of each is reverse, which the driver cannot change.
struct Gearbox {
    ByGear GearRatio;
    ByGear GearRevs;         // [rpm] at the top of the gear: the shift point
    ByGear GearSpeed;        // [m/s] at GearRevs
    ByGear RevsAfterChange;  // [rpm] just after changing up out of the gear, 1 to 5
    ByGear GearTorque;       // [Nm] at the driven wheels, at peak engine torque
    float FinalDrive = 0;

    bool operator==(const Gearbox&) const = default;
};

/// What a gearbox works with: how the car rolls, when its driver changes up, what its engine gives.
struct GearedCar {
    RollingCar Rolling;
    ShiftRules Rules;
    double Torque = 0;      // [Nm] of the engine, peak
    double Efficiency = 0;  // share of it that reaches the wheels
};

/// With the lowest of the sliders' ratios a gear that the car lacks passes the order check behind any other.
inline constexpr auto kLackingRatio = static_cast<float>(kLowestRatio);
/// The same for a wanted speed [m/s].
inline constexpr float kLackingSpeed = 200;

/// What a gear counts as in a calculation: gears 3 to 6 that the car lacks stand at `lacking`.
[[nodiscard]] ByGear WithoutLackingGears(ByGear values, int numGears, float lacking);

/// The gears whose next gear is out of order, upward: a ratio must not be above that of the gear below it, a speed not
/// below it. Equal ones pass.
/// @param given  what the driver gives in that direction, 1 to 6
[[nodiscard]] std::vector<int> GearsInWrongOrder(const ByGear& given, Direction direction);

/// How the gears roll: at the speed of each, 0 to 6.
struct GearLoads {
    PerGear<StoredLoads> GearAxleLoads;  // [N]
    ByGear GearSpeedFactor;              // [m/s for each rev/min of the wheel]
    double Deformation = 0;              // of the driven tyre in gear 6 [m]
};

/// Reverse with its revs and speed in entry 0. One gear, whichever direction is in force.
/// @param box  GearRatio[0] above 0
/// @param finalDrive  above 0
void SettleReverse(const GearedCar& car, double finalDrive, Gearbox& box, GearLoads& loads);

/// Shift points and speeds of gears 1 to 6 for the ratios and the final drive of `box`, then RevsAfterChange.
/// @param loadSpeeds  speeds [m/s] that set the axle loads in place of the gears' own; nullptr for none
void FindSpeeds(const GearedCar& car, const ByGear* loadSpeeds, Gearbox& box, GearLoads& loads);

/// Axle loads of gears 1 to 6 at given speeds; and the speed factors that follow from the loads. With the speeds given,
/// the two settle the gears at once.
void FindAxleLoads(const RollingCar& car, const ByGear& speeds, GearLoads& loads);
void FindSpeedFactors(const RollingCar& car, GearLoads& loads);

/// Ratios and shift points of gears 1 to 6 that reach the speeds of `box`, at the speed factors of those speeds.
/// @return whether the final drive of `box` was raised
bool FindRatios(const GearedCar& car, const GearLoads& loads, Gearbox& box);

/// Engine speeds just after each change up, for wanted speeds.
void FindRevsAfterChange(const GearLoads& loads, Gearbox& box);

/// Torque at the wheels in all gears.
void FindTorque(const GearedCar& car, Gearbox& box);

}  // namespace zolv
