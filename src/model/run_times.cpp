#include "model/run_times.h"

#include <algorithm>
#include <cstddef>

namespace zolv {

RunTimes::RunTimes(std::span<const AccelRow> rows) {
    highest_.reserve(rows.size());
    float highest = 0;
    for (const AccelRow& row : rows) highest_.push_back(highest = std::max(highest, row[AccelColumn::Speed]));
}

std::optional<double> RunTimes::At(double speed) const {
    const auto after = std::ranges::lower_bound(highest_, speed);
    if (after == highest_.end()) return {};
    const auto row = static_cast<double>(after - highest_.begin());
    if (after == highest_.begin()) return row * kTimeStep;
    const double before = *(after - 1);
    return (row - 1 + (speed - before) / (*after - before)) * kTimeStep;
}

}  // namespace zolv
