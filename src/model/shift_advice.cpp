#include "model/shift_advice.h"

#include "model/run_steps.h"
#include "model/wheel_forces.h"

namespace zolv {

std::optional<double> TimeOver(const AccelerationSetup& setup, double distance) {
    RunSteps run(setup);
    double before = 0;
    for (int step = 0; step < kAccelRows && run.GoesOn(); ++step) {
        run.Step();
        if (run.Distance() > distance) {
            return (step + (distance - before) / (run.Distance() - before)) * kTimeStep;
        }
        before = run.Distance();
    }
    return {};
}

std::optional<double> LossOfShiftPoints(const AccelerationSetup& setup) {
    AccelerationSetup advised = setup;
    advised.ShiftRevs = CrossingRevs(setup, ForcesOver(setup));
    const std::optional<double> present = TimeOver(setup, setup.LongDistance);
    const std::optional<double> best = TimeOver(advised, setup.LongDistance);
    if (!present || !best) return {};
    return *present - *best;
}

}  // namespace zolv
