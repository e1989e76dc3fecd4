#pragma once

#include <vector>

#include "drawing/placed_words.h"

namespace zolv {

/// The stroke in front of a name in the legend, drawn as its curve is.
struct LegendStroke {
    Box box;
    Meaning meaning;
};

/// All words of a drawing but its prints: the numbers along its axes, their titles, the names of marks and curves, and
/// a legend of those curves whose names find no place beside them.
struct PlotLabels {
    std::vector<PlacedWords> words;
    std::vector<LegendStroke> strokes;
    Box veil{};  // behind a legend that stands on the plot; no width where there is none
};

[[nodiscard]] PlotLabels LabelsOf(const Canvas& canvas, const PlotPlace& place, const TextMeasure& measure);

}  // namespace zolv
