#pragma once

#include <QColor>
#include <QPalette>
#include <optional>

#include "drawing/colour.h"

namespace zolv {

/// Spacing of every layout: one grid.
inline constexpr int kGap = 8;       // between rows and columns
inline constexpr int kMargin = 12;   // around a page or inside a frame
inline constexpr int kSection = 16;  // between groups

/// Sets the style and the light or dark colours, whichever the system has at start. A QApplication must exist.
void ApplyTheme();

/// Whether `palette` is a dark one.
bool IsDark(const QPalette& palette);

/// A field's colour as text on this palette: black is the ordinary text, the others keep their hue and are light enough
/// on a dark ground and dark enough on a light one.
QColor TextColour(std::optional<Rgb> colour, const QPalette& palette);

/// A field's colour on a canvas, which is white in every theme.
QColor InkColour(Rgb colour);

}  // namespace zolv
