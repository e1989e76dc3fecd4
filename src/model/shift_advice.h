#pragma once

#include <optional>

#include "model/run_setup.h"

namespace zolv {

/// Time to a distance from a standing start [s], counted from the start of the first step and interpolated in the step
/// that passes it; none where the car does not get there in 90 s.
[[nodiscard]] std::optional<double> TimeOver(const AccelerationSetup& setup, double distance);

/// What the shift points of a set-up lose over its long distance [s] against changing up where the next gear begins to
/// pull harder, found by driving both: the steps and the drive cut for each change are those of the run. Zero or below
/// where there is nothing to gain; none where one of the two does not get there.
[[nodiscard]] std::optional<double> LossOfShiftPoints(const AccelerationSetup& setup);

}  // namespace zolv
