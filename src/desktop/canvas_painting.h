#pragma once

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRectF>

#include "drawing/stroke_style.h"

namespace zolv {

/// Within its life a painter's units are the pixels of its device, whatever the display's scale and wherever the widget
/// stands on it, so that what is painted on whole numbers is sharp.
class DevicePixels {
public:
    explicit DevicePixels(QPainter& painter);
    ~DevicePixels() { painter_.restore(); }
    DevicePixels(const DevicePixels&) = delete;
    DevicePixels& operator=(const DevicePixels&) = delete;

    /// Device pixels for one pixel of the layout.
    [[nodiscard]] double Scale() const { return toDevice_.m11(); }

    /// A rectangle of the layout on whole device pixels.
    [[nodiscard]] QRect Snapped(const QRectF& rectangle) const;

private:
    QPainter& painter_;
    QTransform toDevice_;
};

/// Paints the white ground of a drawing and a frame around it, in `frame`.
/// @param frameWidth  in pixels of the layout, one device pixel at least
void PaintGround(QPainter& painter, const Box& ground, const QColor& frame, double frameWidth);

/// A box of a view as Qt takes it.
[[nodiscard]] inline QRectF ToQt(const Box& box) { return {box.left, box.top, box.width, box.height}; }

[[nodiscard]] inline QColor ToQt(Rgb colour) { return {colour.red, colour.green, colour.blue}; }

[[nodiscard]] inline QColor ToQt(const Fill& fill) {
    QColor colour = ToQt(fill.colour);
    colour.setAlphaF(static_cast<float>(fill.opacity));
    return colour;
}

/// Paints what is drawn on a canvas, except for prints: lines at least one device pixel wide, those of the grid, marks
/// and other straight rules on whole device pixels, curves smooth. Nothing leaves the ground.
void PaintStrokes(QPainter& painter, const Canvas& canvas, const PlotPlace& place);

/// Paints the bar of a map's colours with a frame around it; nothing without a width.
void PaintScale(QPainter& painter, const Box& bar, const QColor& frame);

/// Paints the prints on a canvas, wrapped, one below the other, in a font that is made smaller until they fit.
void PaintPrints(QPainter& painter, const Canvas& canvas, const Box& ground);

/// The pen of a stroke, for a painter with `scale` units for one pixel of the layout.
[[nodiscard]] QPen PenOf(const StrokeStyle& style, double scale);

}  // namespace zolv
