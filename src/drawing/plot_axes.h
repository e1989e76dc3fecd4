#pragma once

#include <functional>
#include <string>
#include <vector>

#include "drawing/canvas.h"

/// What a view of a canvas works out before it paints: the part shown, where it lands, the numbers along its axes.
/// View units are the pixels of the layout.
namespace zolv {

/// A part of a canvas, in canvas units.
struct CanvasPart {
    double left = 0, top = 0, right = 0, bottom = 0;

    [[nodiscard]] double Width() const { return right - left; }
    [[nodiscard]] double Height() const { return bottom - top; }

    bool operator==(const CanvasPart&) const = default;
};

/// The part of the canvas that is worth showing. With axes it is the room between their ends; where a curve leaves that
/// room, it goes to the edge of the canvas on that side. Without axes it is all.
[[nodiscard]] CanvasPart UsedPart(const Canvas& canvas);

/// From the canvas to the view: view coordinate = offset + scale * canvas coordinate, each direction for itself.
struct CanvasMapping {
    double offsetX = 0, scaleX = 1;
    double offsetY = 0, scaleY = 1;

    [[nodiscard]] double X(double canvasX) const { return offsetX + (scaleX * canvasX); }
    [[nodiscard]] double Y(double canvasY) const { return offsetY + (scaleY * canvasY); }
    [[nodiscard]] double CanvasX(double x) const { return (x - offsetX) / scaleX; }
    [[nodiscard]] double CanvasY(double y) const { return (y - offsetY) / scaleY; }
};

/// Lays `part` over the rectangle of the view that starts at (x, y).
[[nodiscard]] CanvasMapping MapOnto(const CanvasPart& part, double x, double y, double width, double height);

/// Cuts a line at the edges of `part`, so that coordinates far outside never reach a painter.
/// @return whether something of it is left
[[nodiscard]] bool CutLine(DrawingOperation& line, const CanvasPart& part);

/// A number along an axis.
struct AxisNumber {
    double coordinate = 0;  // canvas units
    std::string text;

    bool operator==(const AxisNumber&) const = default;
};

struct AxisNumbers {
    std::vector<AxisNumber> numbers;
    double every = 1;    // grid lines from number to number
    bool onGrid = true;  // otherwise the numbers stand on steps of their own
};

/// The numbers along an axis: at each grid line where they have room, otherwise at every 2nd, 4th, 5th, 10th and so
/// on, as keeps them round. An axis without a grid, or with a grid wider than itself, has steps of 1, 2 or 5 times a
/// power of ten.
/// @param from, to   ends of what is shown, in canvas units, in either order
/// @param viewScale  view units for one canvas unit
/// @param room       room that a number takes along the axis, with the gap to the next, in view units
[[nodiscard]] AxisNumbers NumbersAlong(const PlotAxis& axis, double from, double to, double viewScale,
                                       const std::function<double(const std::string&)>& room);

/// How many grid lines to go on from a painted one: 1, or where the grid is too dense to be told from a grey ground,
/// to the next line with a number.
[[nodiscard]] double PaintedGridStep(const PlotAxis& axis, const AxisNumbers& numbers, double viewScale);

/// Whether a grid line of the axis at this canvas coordinate is one that is painted.
[[nodiscard]] bool IsPaintedGridLine(const PlotAxis& axis, double coordinate, double paintedStep);

/// What an axis reads at a canvas coordinate, with its unit, as exactly as one view unit tells: "123.4 km/h".
[[nodiscard]] std::string ReadingAt(const PlotAxis& axis, double coordinate, double viewScale);

}  // namespace zolv
