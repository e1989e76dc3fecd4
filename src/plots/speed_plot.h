#pragma once

namespace zolv {

/// Engine speed against road speed: a ray for each gear, or in the alternate style the saw-tooth of a run through the
/// gears. Draws on the cleared canvas.
/// Reads:  gearing in the mode in force, vehicle.CurrentCar, options, units.Speed
/// Writes: SpeedPlot
void DrawSpeedPlot();

}  // namespace zolv
