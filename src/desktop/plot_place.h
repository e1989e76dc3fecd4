#pragma once

#include <QFontMetricsF>
#include <QRectF>
#include <QSizeF>

#include "desktop/plot_axes.h"

namespace zolv {

/// How a canvas is fitted into its view: each direction stretched for itself, or in its own proportions and centred.
enum class CanvasShape { Stretched, Proportional };

inline constexpr double kTick = 4;       // length of the mark at a number
inline constexpr double kNumberGap = 3;  // between the mark and its number

/// Where the parts of a canvas stand in a view.
struct PlotPlace {
    CanvasPart part;  // of the canvas
    QRectF ground{};  // its white ground, in the view
    bool hasAxes = false;
    AxisNumbers xNumbers{}, yNumbers{};

    [[nodiscard]] CanvasMapping Mapping() const {
        return MapOnto(part, ground.x(), ground.y(), ground.width(), ground.height());
    }
};

/// The font of the numbers along the axes, a little smaller than the view's.
[[nodiscard]] QFont NumberFont(QFont font);

/// Finds the place of a drawing in a view of that size. A plot keeps room for its numbers, of five digits at least,
/// also while it has no axes, so that it stands still while a slider moves.
/// @param metrics  of the NumberFont
[[nodiscard]] PlotPlace PlaceOf(const Canvas& canvas, CanvasShape shape, QSizeF size, const QFontMetricsF& metrics);

}  // namespace zolv
