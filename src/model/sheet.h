#pragma once

#include <vector>

#include "model/acceleration_run.h"
#include "model/acceleration_targets.h"
#include "model/aero_model.h"
#include "model/air_sheet.h"
#include "model/engine_curve.h"
#include "model/gearbox.h"
#include "model/set_up.h"
#include "model/tyre_sheet.h"

namespace zolv {

/// The acceleration run without its rows.
struct RunSheet {
    int LastRow = -1;  // of the rows; -1 where there was no run
    double Speed = 0;  // [m/s] at the end
    AccelResults Results;
};

/// What follows from a set-up, in base units. The pages write it, with the car's own figures and what is one step from
/// both: shares, lift over drag, power to weight.
struct Sheet {
    TyreSheet Front, Rear;
    double PatchRatio = 0;  // front patch area over rear patch area
    AirSheet Air;
    TopSpeedResult Top;
    EngineCurve Curve;
    std::vector<int> WrongOrder;  // gears whose next gear is out of order; with any, Gears and Run stay empty
    Gearbox Gears;                // in the direction of the set-up; the final drive may have been raised
    RunSheet Run;
};

/// The sheet but for its run, which is most of the work.
[[nodiscard]] Sheet EvaluateStill(const SetUp& setUp);

/// What the run of a set-up starts with.
/// @param still  of the set-up; with a wrong order the start has no gears
[[nodiscard]] AccelerationSetup StartOf(const SetUp& setUp, const Sheet& still);

/// Works a set-up out from nothing but itself: any number at once on several threads, each with rows of its own. The
/// pages' procedures are made of the same functions, so that a set-up laid onto them reads what this gives.
/// @param rows  takes the run; those behind Run.LastRow keep what they hold
[[nodiscard]] Sheet Evaluate(const SetUp& setUp, RunRows& rows);

}  // namespace zolv
