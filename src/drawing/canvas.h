#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "drawing/colour.h"
#include "drawing/role.h"

namespace zolv {

/// One operation of a drawing, in canvas units: origin at the top left, y growing downward. Colour and width are what
/// is recorded and printed; windows and pictures paint by what it means.
struct DrawingOperation {
    enum class Kind : std::uint8_t { Line, Rectangle, Circle, Text };

    Kind kind = Kind::Line;
    Rgb colour;
    std::uint16_t width = 1;  // of a line, in pixels
    Meaning meaning;
    std::uint32_t text = 0;  // of a Text: which of Canvas::Texts
    double x1 = 0, y1 = 0;   // a line's start, a rectangle's first corner, a circle's centre
    double x2 = 0, y2 = 0;   // a line's end, a rectangle's other corner; x2 is a circle's radius
};

/// One axis of a plot, so that a window can put numbers on it and read values under the mouse:
/// canvas coordinate = origin + scale * value, with the value in the unit that the user reads.
struct PlotAxis {
    double origin = 0;       // canvas coordinate of the value zero
    double scale = 0;        // canvas units for one unit of the value; negative on a y axis, which grows downward
    double step = 0;         // from grid line to grid line, in the unit; 0 where there is no grid
    bool roundGrid = false;  // shown with a grid of round numbers instead of the one that is recorded
    double start = 0;        // canvas coordinate of the axis's near end
    double end = 0;          // and of its far end
    std::string title = {};  // "Engine speed"; empty where the unit says enough
    std::string unit = {};   // "m/s"; empty where the values have none
};

/// "Engine speed [rpm]", as it stands at an axis.
[[nodiscard]] std::string TitleWithUnit(const PlotAxis& axis);

/// The unit of an axis, from the suffix that stands behind numbers: without its leading blank.
[[nodiscard]] std::string AxisUnit(std::string_view suffix);

/// Calls draw(offset) for each line of a grid in one direction, with offset = value * scale for the values 0, step,
/// 2 step and so on, summed up: until a line stands at `end` or beyond, or `limit` lines are drawn, so that a step of
/// zero or a scale that is no number ends as well.
template <class DrawLine>
void WalkGrid(double step, double scale, double end, int limit, DrawLine draw) {
    double value = 0;
    double offset = 0;
    for (int line = 0; line < limit && offset < end; ++line) {
        offset = value * scale;
        draw(offset);
        value += step;
    }
}

/// What the colours of a map's cells stand for: a bar of them, with numbers, stands beside the plot. All values are in
/// the units that the user reads.
struct ColourScale {
    std::string title = {}, unit = {};
    double from = 0, to = 0;  // of the darkest and of the lightest shade
    double step = 0;          // from number to number; 0 where all values are one

    // The values at the crossings of the map's columns and rows, to be read under the mouse: xs.size() a row, a row for
    // each of ys
    std::vector<double> xs = {}, ys = {}, values = {};

    /// 0 to kShades - 1.
    [[nodiscard]] int ShadeOf(double value) const;
};
inline constexpr int kShades = 64;

/// What a curve or a mark of a drawing is called, or how much a measure of its area is.
struct PartName {
    std::string name;
    Meaning meaning;
    std::string unit = {};  // of its values, where it is not the y axis's

    bool operator==(const PartName&) const = default;
};

/// A drawing: a white surface and the operations drawn on it since it was last cleared. It is painted, exported and
/// compared from this record alone. What has no place is not recorded: an operation with a coordinate that is not
/// finite, as a scale that divides by zero gives, draws nothing.
class Canvas {
public:
    Canvas(double width, double height) : width_(width), height_(height) {}

    double Width() const { return width_; }
    double Height() const { return height_; }

    /// Empties the canvas; axes and names go with the drawing. The ink and the line width stay as they are.
    void Clear();

    void SetInk(Rgb ink) { ink_ = ink; }
    void SetLineWidth(int pixels) { lineWidth_ = static_cast<std::uint16_t>(pixels); }

    void Line(Meaning meaning, double x1, double y1, double x2, double y2) { Line(meaning, x1, y1, x2, y2, ink_); }
    void Line(Meaning meaning, double x1, double y1, double x2, double y2, Rgb colour) {
        Record({DrawingOperation::Kind::Line, colour, lineWidth_, meaning, 0, x1, y1, x2, y2});
    }
    void FillRectangle(Meaning meaning, double x1, double y1, double x2, double y2, Rgb colour);
    void FillCircle(Meaning meaning, double x, double y, double radius, Rgb colour);

    /// Prints a text in the present ink below what has been printed before. It may hold line breaks (CR LF), and ends
    /// its own line as well.
    void Print(std::string_view text);

    const std::vector<DrawingOperation>& Operations() const { return operations_; }
    const std::string& TextOf(const DrawingOperation& operation) const { return texts_[operation.text]; }

    /// What the axes of the present drawing mean; cleared with it. A canvas without axes has none.
    struct Axes {
        PlotAxis x, y;
        bool present = false;
    };
    const Axes& PresentAxes() const { return axes_; }
    void SetAxes(PlotAxis x, PlotAxis y);  // axes with a scale of zero or none are not kept

    /// What the cells of the present drawing stand for; cleared with it. None for a drawing that is no map.
    const std::optional<ColourScale>& Scale() const { return scale_; }
    void SetScale(ColourScale scale) { scale_ = std::move(scale); }

    /// The names of the curves and marks of the present drawing, in drawing order; cleared with it.
    const std::vector<PartName>& Names() const { return names_; }
    void AddName(Meaning meaning, std::string name, std::string unit = {});

    /// What the legend of the present drawing is to say beside names that find no place; cleared with it.
    const std::vector<PartName>& Legend() const { return legend_; }
    void AddLegend(PartName entry) { legend_.push_back(std::move(entry)); }

private:
    void Record(const DrawingOperation& operation) {
        const bool finite = std::isfinite(operation.x1) && std::isfinite(operation.y1) && std::isfinite(operation.x2) &&
                            std::isfinite(operation.y2);
        if (finite) operations_.push_back(operation);
    }

    double width_;
    double height_;
    Rgb ink_ = kBlack;
    std::uint16_t lineWidth_ = 1;
    std::vector<DrawingOperation> operations_;
    std::vector<std::string> texts_;
    Axes axes_;
    std::optional<ColourScale> scale_;
    std::vector<PartName> names_;
    std::vector<PartName> legend_;
};

}  // namespace zolv
