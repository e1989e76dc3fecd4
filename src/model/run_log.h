#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "model/acceleration_targets.h"
#include "model/run_events.h"
#include "model/run_setup.h"

namespace zolv {

/// One event of a run. Events of a step are dated like its row: the time is the table's, which has 0 s at row 0.
struct RunEvent {
    enum class Kind : std::uint8_t {
        ClutchCloses,
        LargestAcceleration,
        GripLeft,  // the force falls below what the tyres can take; of several in a row, the last
        ChangesUp,
        SpeedTarget,     // passed; interpolated between two rows
        DistanceTarget,  // the same
        Ends,
    };

    Kind What = Kind::Ends;
    double Time = 0;      // [s]
    double Distance = 0;  // [m]
    double Speed = 0;     // [m/s]
    int Gear = 0;         // in which it happens; of a change up, the one that is left

    double Before = 0, After = 0;         // [rpm] ChangesUp: in the gear that is left and in the next one
    std::optional<double> Crossing = {};  // [m/s] ChangesUp: from where the next gear would have pulled harder; none
                                          // where it does not up to the rev limit
    std::size_t Target = 0;               // of AccelTargets
    double Acceleration = 0;              // [m/s^2] LargestAcceleration
    RunEnd Why = {};                      // Ends
};

/// What happens in a run, in the order of its time; the last event is its end. Drives the run anew, digit for digit the
/// one that Accelerate drives.
[[nodiscard]] std::vector<RunEvent> LogOf(const AccelerationSetup& setup, const AccelTargets& targets);

}  // namespace zolv
