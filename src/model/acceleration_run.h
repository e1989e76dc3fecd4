#pragma once

#include <span>

#include "model/engine_curve.h"
#include "model/gear_speeds.h"
#include "model/gearbox.h"
#include "model/run_rows.h"
#include "model/run_setup.h"
#include "model/run_steps.h"

namespace zolv {

/// @param tyreMu        friction coefficient of the tyres
/// @param longDistance  [m]
[[nodiscard]] AccelerationSetup RunOf(const RollingCar& rolling, const CarRecord& car, const EngineCurve& curve,
                                      double tyreMu, const Gearbox& gears, double longDistance);

struct AccelerationResult {
    int LastRow = -1;     // of the rows written
    double Speed = 0;     // [m/s] at the end of the run
    float FrontLoad = 0;  // [N] of the last step
    float RearLoad = 0;   // [N]
};

/// Drives the car from a standing start flat out through its gears along a straight, level road, in steps of 0.05 s,
/// until it stops gaining speed: until the long distance is behind it and the net force is below 5 N, until it stands
/// still, or until the rows are full.
/// Speed and distance are doubles; the rows are rounded to single precision, and their rounding does not feed back.
/// The wheels do not spin (a driving force above the grip limit is cut to it), there is no rev limiter, and gears are
/// never changed down. A car that cannot move off counts two rows.
/// @param rows  those behind the last row keep what they hold
/// @param secondOfStanding  the second row of a car that cannot move off
AccelerationResult Accelerate(const AccelerationSetup& setup, std::span<AccelRow, kAccelRows> rows,
                              const AccelRow& secondOfStanding = {});

/// The same run, step by step before the eyes of `sink`, which is told what happens (see Unwatched), gets each row by
/// Takes(row), and at last why the run ended by Ends(why).
/// @return the last row
template <class Sink>
int DriveBefore(Sink& sink, const AccelerationSetup& setup) {
    RunSteps run(setup);
    int last = -1;
    do {
        run.Step(sink);
        sink.Takes(run.Row());
        ++last;
    } while (run.GoesOn() && last < kAccelRows - 1);
    sink.Ends(run.Stands() ? RunEnd::Stands : run.GoesOn() ? RunEnd::TimeIsOver : RunEnd::GainsNoMore);
    return last;
}

}  // namespace zolv
