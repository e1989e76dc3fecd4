#pragma once

#include <QPainter>

#include "desktop/plot_place.h"

namespace zolv {

/// Paints the numbers along the axes of a plot and their units, outside the ground, in `ink`.
void PaintNumbers(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QColor& ink);

/// Paints which curve is which: in a line above the ground where there is room, else inside at its top right. Curves of
/// one colour, which a legend cannot tell apart, have their names at their highest points.
/// @param ink  above the ground; on it words are dark
void PaintLegend(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QColor& ink);

/// Paints a crosshair at `pointer`, which lies on the ground, and beside it a box with the values there.
/// @param bounds  where the box must stay
void PaintCrosshair(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QPointF& pointer,
                    const QRectF& bounds);

}  // namespace zolv
