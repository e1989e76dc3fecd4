#pragma once

#include "drawing/canvas.h"

namespace zolv {

/// Draws the present acceleration run small: the road speed against time, each gear's piece of it in the gear's colour.
/// A run of no length leaves the canvas empty.
/// Reads:  gearing.AccelRows, units.Speed, texts
void DrawRunStrip(Canvas& strip);

}  // namespace zolv
