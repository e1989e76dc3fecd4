#pragma once

#include <vector>

#include "drawing/plot_place.h"

/// How windows and pictures draw what a canvas records.
namespace zolv {

struct StrokeStyle {
    Rgb colour;
    double width = 1;  // [px]
    bool dashed = false;

    bool operator==(const StrokeStyle&) const = default;
};

// A dash and the gap behind it, in widths of the stroke
inline constexpr double kDash = 5;
inline constexpr double kDashGap = 4;

/// A line by what it means: curves are 2 px wide in the colours of the palette, those of a held set-up thin and dashed;
/// marks are thin. Shapes keep what is recorded, in a softer colour.
[[nodiscard]] StrokeStyle StyleOf(const DrawingOperation& line);
[[nodiscard]] StrokeStyle StyleOf(Meaning curveOrMark);

/// The filling of a rectangle or a circle. The grid is seen through an area.
struct Fill {
    Rgb colour;
    double opacity = 1;
};
[[nodiscard]] Fill FillOf(const DrawingOperation& filled);

/// The grid of a drawing as it is shown: it steps back behind the curves, and one too dense to be told from a grey
/// ground is thinned.
class ShownGrid {
public:
    ShownGrid(const Canvas& canvas, const PlotPlace& place);  // which live longer

    [[nodiscard]] bool Shows(const DrawingOperation& gridLine) const;

    /// The lines at round numbers of an axis that is shown with a grid of its own.
    [[nodiscard]] std::vector<DrawingOperation> RoundLines() const;

    /// The line of the value zero is darker, except on the edge of the ground, where the frame is.
    [[nodiscard]] Rgb ColourOf(const DrawingOperation& gridLine) const;

private:
    const Canvas::Axes& axes_;
    const PlotPlace& place_;
    CanvasPart part_;
    double stepX_ = 1, stepY_ = 1;
};

}  // namespace zolv
