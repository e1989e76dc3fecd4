#pragma once

#include <QPainter>

#include "desktop/plot_place.h"

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
void PaintGround(QPainter& painter, const QRectF& ground, const QColor& frame, double frameWidth);

/// Paints what is drawn on a canvas, except for prints: lines at least one device pixel wide, those of the grid and
/// other straight rules on whole device pixels, curves smooth. Nothing leaves the ground.
void PaintStrokes(QPainter& painter, const Canvas& canvas, const PlotPlace& place);

/// Paints the prints on a canvas, wrapped, one below the other, in a font that is made smaller until they fit.
void PaintPrints(QPainter& painter, const Canvas& canvas, const QRectF& ground);

}  // namespace zolv
