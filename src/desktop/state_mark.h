#pragma once

#include <QIcon>
#include <QPainterPath>
#include <QRectF>
#include <optional>

#include "drawing/colour.h"

namespace zolv {

/// A coloured state of a figure is never told by colour alone: a small mark says the same. A triangle up is red, a
/// triangle down blue, a dot green.
bool HasMark(std::optional<Rgb> colour);

/// The mark's outline in `box`.
QPainterPath MarkOf(Rgb colour, const QRectF& box);

/// The mark as an icon, painted in `ink`.
QIcon MarkIcon(Rgb colour, const QColor& ink);

}  // namespace zolv
