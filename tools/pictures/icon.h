#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>

class QPainter;

namespace zolv::pictures {

/// The application's icon, a gear wheel with a rising curve, at a size in pixels. Small ones are fitted to the pixels:
/// fewer teeth, thicker lines.
QImage IconOf(int size);

/// The icon of a kind of file: a sheet with a folded corner and the wheel on it, a stripe in the kind's own colour.
QImage SheetIconOf(int size, const QColor& stripe);

/// Paints the icon into a square.
void PaintIcon(QPainter& painter, const QRectF& square);

/// The icon as an SVG document, from the same figures.
QByteArray IconAsSvg();

}  // namespace zolv::pictures
