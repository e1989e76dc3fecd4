#pragma once

#include "model/shift_points.h"

namespace zolv {

/// Gearbox that reaches wanted speeds.
struct FoundRatios {
    ByGear Revs{};         // shift points [rpm], 1 to 6
    ByGear Ratios{};       // 1 to 6
    float FinalDrive = 0;  // raised where first gear would need a ratio above kHighestRatio
    bool Raised = false;   // whether it was
};

/// The range of the ratio sliders.
inline constexpr double kHighestRatio = 7.5;
inline constexpr double kLowestRatio = 0.5;

/// Finds the ratios that reach the wanted speeds at the top of each gear. A gear's automatic shift point depends on the
/// ratio of the next gear, and its ratio on the shift point, so that they are found by repeated substitution: a seed, a
/// first round upward through the gears, and 39 passes. An excess of first gear above kHighestRatio goes to the final
/// drive. With fixed shift points there is nothing to search.
/// @param speeds        wanted [m/s], 1 to 6, above 0
/// @param speedFactors  road speed for each rev/min of the wheel at those speeds, 1 to 6
/// @param finalDrive    to start from, above 0
[[nodiscard]] FoundRatios SearchRatios(const ShiftRules& rules, const ByGear& speeds, const ByGear& speedFactors,
                                       float finalDrive);

}  // namespace zolv
