#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "model/engine_curve.h"
#include "model/gear_speeds.h"
#include "model/gearbox.h"

namespace zolv {

/// One row of the run, 0.05 s after the one before: what column holds what.
enum class AccelColumn : std::uint8_t {
    Distance,      // [m] at the end of the step
    Speed,         // [m/s] at the end of the step
    Revs,          // [rpm] used in the step
    Gear,          // used in the step
    DrivingForce,  // [N]
    Resistance,    // [N]
    NetForce,      // [N]
    Acceleration,  // [m/s^2]
    FrontLoad,     // [N] vertical, on the axle
    RearLoad,      // [N]
};
inline constexpr int kAccelColumns = 10;
inline constexpr int kAccelRows = 1801;    // 90 seconds
inline constexpr double kTimeStep = 0.05;  // [s]

struct AccelRow {
    std::array<float, kAccelColumns> values{};

    float operator[](AccelColumn column) const { return values[static_cast<std::size_t>(column)]; }

    bool operator==(const AccelRow&) const = default;
};
using RunRows = std::array<AccelRow, kAccelRows>;

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

/// @param tyreMu        friction coefficient of the tyres
/// @param longDistance  [m]
[[nodiscard]] AccelerationSetup RunOf(const RollingCar& rolling, const CarRecord& car, const EngineCurve& curve,
                                      double tyreMu, const Gearbox& gears, double longDistance);

struct AccelerationResult {
    int LastRow = -1;     // of the rows written
    double Speed = 0;     // [m/s] at the end of the run
    float FrontLoad = 0;  // [N] of the last step
    float RearLoad = 0;   // [N]
};

/// Drives the car from a standing start flat out through its gears along a straight, level road, in steps of 0.05 s,
/// until it stops gaining speed: until the long distance is behind it and the net force is below 5 N, until it stands
/// still, or until the rows are full.
/// Speed and distance are doubles; the rows are rounded to single precision, and their rounding does not feed back.
/// The wheels do not spin (a driving force above the grip limit is cut to it), there is no rev limiter, and gears are
/// never changed down. A car that cannot move off counts two rows.
/// @param rows  those behind the last row keep what they hold
/// @param secondOfStanding  the second row of a car that cannot move off
AccelerationResult Accelerate(const AccelerationSetup& setup, std::span<AccelRow, kAccelRows> rows,
                              const AccelRow& secondOfStanding = {});

}  // namespace zolv
