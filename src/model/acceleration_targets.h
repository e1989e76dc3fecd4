#pragma once

#include <array>
#include <optional>
#include <span>

#include "model/acceleration_run.h"

namespace zolv {

/// The fixed speeds and distances whose times are shown. They depend on the unit of speed, so that a user of miles per
/// hour sees 0-60 and the quarter mile. Stored as they stand, not computed.
struct AccelTargets {
    std::array<float, 5> Speeds;     // [m/s]
    std::array<float, 2> Distances;  // [m]; a run may end behind the second
};

// clang-format off
inline constexpr std::array<AccelTargets, 5> AccelTargetTable{{
    {{15,     30,     45,     60,     75},     {500,      1000}},      // m/s
    {{13.89F, 27.78F, 41.67F, 55.56F, 69.44F}, {500,      1000}},      // km/h
    {{13.41F, 26.82F, 44.7F,  55.88F, 67.06F}, {402.336F, 1609.34F}},  // mph
    {{15.43F, 30.87F, 51.44F, 64.31F, 77.17F}, {463,      1852}},      // knots
    {{15.24F, 30.48F, 45.72F, 60.96F, 76.2F},  {304.8F,   1828.8F}},   // ft/s
}};
// clang-format on

/// Times [s] to the speed targets, and time and speed [m/s] at the distance targets; 0 for a target that was not
/// passed.
struct AccelResults {
    std::array<float, 5> SpeedTimes{};
    std::array<float, 2> DistanceTimes{};
    std::array<float, 2> DistanceSpeeds{};

    bool operator==(const AccelResults&) const = default;
};

/// The first row that passes a target counts; there is no interpolation between rows.
/// @param rows  of the run, from its first to its last
[[nodiscard]] AccelResults ResultsOf(std::span<const AccelRow> rows, const AccelTargets& targets);

/// Where a run passes a value of one of its columns, on the straight line from the row before to the first row beyond.
/// The time is the table's, which has 0 s at row 0.
struct Passing {
    double Time = 0;      // [s], 0 or more
    double Distance = 0;  // [m]
    double Speed = 0;     // [m/s]
};
/// @param column  Distance or Speed
/// @return none where no row is beyond `value`
[[nodiscard]] std::optional<Passing> PassingOf(std::span<const AccelRow> rows, AccelColumn column, double value);

}  // namespace zolv
