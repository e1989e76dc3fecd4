#pragma once

#include <string_view>

#include "drawing/plot_place.h"

namespace zolv {

/// How wide words come out in a common sans-serif font, where none is at hand: by classes of letters, a little
/// generous. A letter of East Asia is as wide as the font is high.
/// @param fontSize  in view units
[[nodiscard]] double EstimatedWidth(std::string_view text, double fontSize);

/// The measure of such a font.
[[nodiscard]] TextMeasure EstimatedMeasure(double fontSize);

}  // namespace zolv
