#include "model/acceleration_targets.h"

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

}  // namespace zolv
