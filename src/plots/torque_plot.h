#pragma once

namespace zolv {

/// Torque at the wheels against the speed of the wheels, a curve for each gear; with options.EngineTorqueOn also the
/// engine's own torque against its own speed. Draws on the cleared canvas.
/// Reads:  gearing in the mode in force, gearing.Curve, vehicle.CurrentCar, options, units.Torque
/// Writes: TorquePlot
void DrawTorquePlot();

}  // namespace zolv
