#pragma once

#include <optional>
#include <span>
#include <vector>

#include "model/run_rows.h"

namespace zolv {

/// When a run reached each speed.
class RunTimes {
public:
    RunTimes() = default;

    /// @param rows  of the run, from its first to its last
    explicit RunTimes(std::span<const AccelRow> rows);

    /// The time [s], counted as the table counts it, at which the run first had a speed [m/s]: interpolated between two
    /// rows, and that of the first row for any speed below its own. None for a speed that the run does not reach.
    [[nodiscard]] std::optional<double> At(double speed) const;

private:
    std::vector<float> highest_;  // speed so far, row by row: a run may lose speed after a change of gear
};

}  // namespace zolv
