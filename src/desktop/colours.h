#pragma once

#include <QColor>
#include <QPalette>
#include <optional>

#include "drawing/colour.h"

/// Colours that follow from a palette, so that they suit its theme.
namespace zolv {

/// Whether `palette` is a dark one.
bool IsDark(const QPalette& palette);

/// A field's colour as text on this palette: black is the ordinary text, the others keep their hue and are light enough
/// on a dark ground and dark enough on a light one.
QColor TextColour(std::optional<Rgb> colour, const QPalette& palette);

/// The colour of a gear as a tint of the ground: `share` of it on a light one, more on a dark one, where it is seen
/// less.
/// @param gear   1 to 6
/// @param share  above 0, at most 0.5
QColor GearTint(int gear, double share, const QPalette& palette);

/// What stands for a fault that the user is to mend: the frame of a box, the ground of a line of words.
QColor FaultColour(const QPalette& palette);

/// Between two colours: `share` of the first, the rest of the second.
QColor Blend(const QColor& over, const QColor& under, double share);

}  // namespace zolv
