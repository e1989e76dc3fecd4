#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace zolv {

/// The nearest whole number, half to even, limited to the range of the type. What is not a number gives 0.
template <class Whole>
[[nodiscard]] Whole NearestWhole(double value) {
    const double nearest = std::nearbyint(value);
    if (std::isnan(nearest)) return 0;
    if (nearest <= static_cast<double>(std::numeric_limits<Whole>::min())) return std::numeric_limits<Whole>::min();
    if (nearest >= static_cast<double>(std::numeric_limits<Whole>::max())) return std::numeric_limits<Whole>::max();
    return static_cast<Whole>(nearest);
}

[[nodiscard]] inline std::int16_t ToInt16(double value) { return NearestWhole<std::int16_t>(value); }
[[nodiscard]] inline std::int32_t ToInt32(double value) { return NearestWhole<std::int32_t>(value); }

}  // namespace zolv
