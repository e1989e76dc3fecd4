#pragma once

#include "fields/kinds.h"
#include "model/acceleration_targets.h"

namespace zolv {

/// Drives the car in use through the gears of the page that is the input, and shows the run: the table of
/// AccelerationData and the figures of ShowAcc.
/// Reads:  gearing, vehicle, tyres, aero, units
/// Writes: gearing.AccelRows/AccelLastRow/LastRun, aero.FrontWheelForce/RearWheelForce (those of the last step),
///         AccelerationData, GearingLabel(30) to (34), (36), (37), AccDataLabel
void RunAcceleration();

/// Writes the figures of ShowAcc for any run.
/// @param endSpeed  [m/s]
void ShowRunOf(Showing which, const AccelResults& results, double endSpeed);

}  // namespace zolv
