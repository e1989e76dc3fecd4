#pragma once

#include "drawing/canvas.h"

namespace zolv {

/// Drag and downforce over the road speed, from standstill to the top speed, or to the speed in force where that is
/// higher. The speed in force is marked.
/// Reads:  aero, vehicle.CurrentCar, units, texts, words
void DrawAirPlot(Canvas& plot);

}  // namespace zolv
