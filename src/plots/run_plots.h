#pragma once

/// The graphs of the acceleration run. The run's rows are thinned for them, and both stop short of the last rows by up
/// to one stride. A run of no length leaves them empty.
namespace zolv {

/// Driving force, resistance and net force against time, with options.VLoadsOn also the vertical loads of both axles.
/// Draws on the cleared canvas.
/// Reads:  gearing.AccelRows, GearRatio and FinalDrive in the mode in force, vehicle, aero.FrontWheelForce and
///         RearWheelForce as they stand, options, units.Force
/// Writes: TractiveEffortPlot
void DrawTractiveEffortPlot();

/// Road speed against time. Draws on the cleared canvas.
/// Reads:  gearing.AccelRows, options, units.Speed
/// Writes: SpeedTimeGraph
void DrawSpeedTimeGraph();

}  // namespace zolv
