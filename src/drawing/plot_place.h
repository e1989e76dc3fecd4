#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/plot_axes.h"

/// Where the ground of a drawing and the numbers of its axes stand in a view. View units are the pixels of the layout.
namespace zolv {

/// How a canvas is fitted into its view: each direction stretched for itself, or in its own proportions and centred.
enum class CanvasShape { Stretched, Proportional };

inline constexpr double kFrame = 1;      // around the ground
inline constexpr double kTick = 4;       // length of the mark at a number
inline constexpr double kNumberGap = 3;  // between the mark and its number

/// A rectangle of a view.
struct Box {
    double left = 0, top = 0, width = 0, height = 0;

    [[nodiscard]] double Right() const { return left + width; }
    [[nodiscard]] double Bottom() const { return top + height; }
    [[nodiscard]] double CentreX() const { return left + width / 2; }
    [[nodiscard]] double CentreY() const { return top + height / 2; }
    [[nodiscard]] bool Meets(const Box& other) const {
        return left < other.Right() && other.left < Right() && top < other.Bottom() && other.top < Bottom();
    }

    bool operator==(const Box&) const = default;
};

struct ViewSize {
    double width = 0, height = 0;
};

/// How large words come out in the font of the numbers along the axes.
struct TextMeasure {
    double height = 0;  // of a line
    std::function<double(std::string_view)> width;
};

/// Where the parts of a canvas stand in a view.
struct PlotPlace {
    CanvasPart part;  // of the canvas
    Box ground{};     // its white ground, in the view
    bool hasAxes = false;
    AxisNumbers xNumbers{}, yNumbers{};
    Box scale{};  // the bar of a map's colours, in the view, the lightest on top; without width where there is none

    [[nodiscard]] CanvasMapping Mapping() const {
        return MapOnto(part, ground.left, ground.top, ground.width, ground.height);
    }
};

/// The numbers along the bar of a map's colours.
[[nodiscard]] std::vector<double> NumbersOfScale(const ColourScale& scale);
[[nodiscard]] std::string ScaleText(const ColourScale& scale, double value);  // with the digits that tell them apart

/// The shape in which a drawing is shown where no view says so: with axes that have different scales it is stretched.
[[nodiscard]] CanvasShape ShapeOf(const Canvas& canvas);

/// Finds the place of a drawing in a view of that size. A plot keeps room for its titles and its numbers, of five
/// digits at least, also while it has no axes, so that it stands still while a slider moves.
[[nodiscard]] PlotPlace PlaceOf(const Canvas& canvas, CanvasShape shape, ViewSize size, const TextMeasure& measure);

}  // namespace zolv
