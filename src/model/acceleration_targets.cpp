#include "model/acceleration_targets.h"

#include <algorithm>

namespace zolv {

AccelResults ResultsOf(std::span<const AccelRow> rows, const AccelTargets& targets) {
    AccelResults results;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const AccelRow& row = rows[i];
        const auto time = static_cast<float>(static_cast<double>(i) * kTimeStep);
        for (std::size_t k = 0; k < targets.Speeds.size(); ++k) {
            if (results.SpeedTimes[k] == 0 && row[AccelColumn::Speed] > targets.Speeds[k]) results.SpeedTimes[k] = time;
        }
        for (std::size_t k = 0; k < targets.Distances.size(); ++k) {
            if (results.DistanceTimes[k] != 0 || !(row[AccelColumn::Distance] > targets.Distances[k])) continue;
            results.DistanceTimes[k] = time;
            results.DistanceSpeeds[k] = row[AccelColumn::Speed];
        }
    }
    return results;
}

std::optional<Passing> PassingOf(std::span<const AccelRow> rows, AccelColumn column, double value) {
    const auto beyond = std::ranges::find_if(rows, [&](const AccelRow& row) { return row[column] > value; });
    if (beyond == rows.end()) return {};
    const auto index = static_cast<double>(beyond - rows.begin());
    const AccelRow before = beyond == rows.begin() ? AccelRow{} : *(beyond - 1);
    const double share = (value - before[column]) / (static_cast<double>((*beyond)[column]) - before[column]);
    const auto between = [&](AccelColumn of) {
        return before[of] + share * (static_cast<double>((*beyond)[of]) - before[of]);
    };
    return Passing{std::max(0.0, (index - 1 + share) * kTimeStep), between(AccelColumn::Distance),
                   between(AccelColumn::Speed)};
}

}  // namespace zolv
