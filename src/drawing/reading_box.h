#pragma once

#include "drawing/occupancy.h"

namespace zolv {

/// Where the box of a crosshair's values stands: at one of the four sides of the pointer, up and right of it where
/// nothing speaks against that, or in a corner of the ground, wherever it covers least of the curves. It never covers
/// the pointer unless it is larger than the room on every side.
/// @param pointer  on the ground, in the view
/// @param size     of the box
/// @param bounds   the view, which the box stays in where the ground is too small for it
[[nodiscard]] Box ReadingBox(const Canvas& canvas, const PlotPlace& place, ViewPoint pointer, ViewSize size,
                             const Box& bounds);

}  // namespace zolv
