#pragma once

#include "drawing/colour.h"
#include "drawing/role.h"

/// The colours in which windows and pictures show drawings. What a canvas records is older and plainer: pure colours,
/// and black for every gear.
namespace zolv {

/// The colour of a gear wherever it is shown, and in both themes: its curves, its row, its lines of the run's table.
/// The six can be told apart with any colour blindness, and each has a contrast of 4.5 : 1 at least to white, so that
/// it can be the colour of words on a canvas.
/// @param gear  1 to 6; another number is taken for the nearest of them
[[nodiscard]] Rgb GearColour(int gear);

/// The colour of a mark, a curve or an area on a canvas, which is white in every theme. Contrast as with the gears.
[[nodiscard]] Rgb ColourOf(Meaning meaning);

/// The colour of a shade of a map, 0 to kShades - 1: its lightness rises evenly, so that it reads in grey and with any
/// colour blindness; and the ink of a contour line on it.
[[nodiscard]] Rgb ShadeColour(int shade);
[[nodiscard]] Rgb ContourInk(int shade);

/// A pure colour, as old drawings record, made dark enough for thin lines and words on white. Others stay.
[[nodiscard]] Rgb Softened(Rgb colour);

// Inks of what stands around and behind the curves, on white
inline constexpr Rgb kGridInk{224, 227, 231};
inline constexpr Rgb kZeroInk{150, 156, 164};  // the grid line of the value zero
inline constexpr Rgb kFrameInk{150, 156, 164};
inline constexpr Rgb kWordsInk{40, 45, 52};

/// Contrast of two colours, 1 to 21, by the relative luminances of sRGB as WCAG 2.1 defines them.
[[nodiscard]] double Contrast(Rgb one, Rgb other);

}  // namespace zolv
