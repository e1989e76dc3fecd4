#pragma once

#include <QFont>
#include <QPainter>

#include "drawing/plot_labels.h"

namespace zolv {

/// The font of the numbers along the axes, a little smaller than the view's.
[[nodiscard]] QFont NumberFont(QFont font);

/// How large words come out in that font.
[[nodiscard]] TextMeasure MeasureOf(const QFont& numberFont);

/// Paints the marks at the numbers of a plot's axes, its words and its legend, in the painter's font.
/// @param ink  of what stands around the plot; on it words are dark
void PaintLabels(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QColor& ink);

/// Paints a crosshair where the mouse points, or the upright line of one that stands in the plot beside it, and a box
/// with the values there: of the axes, and of each curve at this x.
struct Crosshair {
    double x = 0;         // in the view
    double y = 0;         // in the view; not used where `shared`
    bool shared = false;  // the mouse is in another plot
};
void PaintCrosshair(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const Crosshair& crosshair,
                    const QRectF& bounds);

}  // namespace zolv
