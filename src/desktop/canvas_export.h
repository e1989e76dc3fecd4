#pragma once

#include <QFont>
#include <QImage>
#include <QPainter>

#include "drawing/svg.h"

namespace zolv {

/// Inks around the white ground of a canvas.
struct CanvasInks {
    QColor words;  // numbers, titles and legend
    QColor frame;
    double frameWidth = 1;  // in pixels of the layout
    double strokes = 1;     // how much of the lines shows, 0 to 1; words are to be read all the same
};

/// Paints a drawing with its numbers and names as it stands in a view.
/// @param font  of the view
void PaintPicture(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QFont& font,
                  const CanvasInks& inks);

/// Paints a drawing as it stands in a view of that size, in dark words on white with a margin around.
/// @param font  of the view, with a size in pixels where the device is none of the screen's
void PaintOnPaper(QPainter& painter, const Canvas& canvas, const SvgSize& size, const QFont& font);

/// How large that is, in pixels of the layout.
[[nodiscard]] QSizeF SizeOnPaper(const SvgSize& size);

/// The same as an image of twice the resolution.
[[nodiscard]] QImage PictureOf(const Canvas& canvas, const SvgSize& size, const QFont& font);

/// Ask for a file and write a drawing into it; say so where that fails.
void SaveAsSvg(const Canvas& canvas, const SvgSize& size);
void SaveAsPng(const QImage& picture);

}  // namespace zolv
