#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

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
};
using RunRows = std::array<AccelRow, kAccelRows>;

}  // namespace zolv
