#pragma once

namespace zolv {

/// Drives the car in use through the gears of the page that is the input, and shows the run: the table of
/// AccelerationData and the figures of ShowAcc.
/// Reads:  gearing, vehicle, tyres, aero, units
/// Writes: gearing.AccelRows/AccelLastRow/LastRun, aero.FrontWheelForce/RearWheelForce (those of the last step),
///         AccelerationData, GearingLabel(30) to (34), (36), (37), AccDataLabel
void RunAcceleration();

}  // namespace zolv
