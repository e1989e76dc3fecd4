#pragma once

#include <vector>

#include "drawing/placed_words.h"

namespace zolv {

/// The names of marks and curves on the plot, and what found no place there.
struct NamesOnPlot {
    std::vector<PlacedWords> words;
    std::vector<PartName> left;  // curves that are seen but not named
};

/// Puts each mark's name at the end of its line, on the right or at the top, and each curve's beside a piece of it that
/// is seen, away from other curves as far as there is room; a gear's is shortened to its number where that helps. No
/// name lies on another. What is not seen has no name, nor has a curve that is called as its axis is. Curves of a held
/// set-up, which run beside the present ones, are told by the legend alone.
[[nodiscard]] NamesOnPlot PlaceNames(const Canvas& canvas, const PlotPlace& place, const TextMeasure& measure);

}  // namespace zolv
