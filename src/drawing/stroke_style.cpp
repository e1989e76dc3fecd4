#include "drawing/stroke_style.h"

#include "drawing/palette.h"

namespace zolv {

StrokeStyle StyleOf(Meaning curveOrMark) {
    const bool held = curveOrMark.standing == Standing::Held;
    const double width = IsCurve(curveOrMark.role) ? 2 : 1;
    return {.colour = ColourOf(curveOrMark), .width = held ? 1.25 : width, .dashed = held};
}

StrokeStyle StyleOf(const DrawingOperation& line) {
    const Role role = line.meaning.role;
    const bool held = line.meaning.standing == Standing::Held;
    if (IsCurve(role) || IsMark(role) || held) return StyleOf(line.meaning);
    return {.colour = Softened(line.colour), .width = static_cast<double>(line.width)};
}

Fill FillOf(const DrawingOperation& filled) {
    constexpr double kRubberOpacity = 0.75;
    if (filled.meaning.role == Role::Area) return {ColourOf(filled.meaning), kRubberOpacity};
    return {Softened(filled.colour)};
}

ShownGrid::ShownGrid(const Canvas& canvas, const PlotPlace& place)
    : axes_(canvas.PresentAxes()), place_(place), part_(place.part) {
    if (!place.hasAxes) return;
    const CanvasMapping mapping = place.Mapping();
    stepX_ = PaintedGridStep(axes_.x, place.xNumbers, mapping.scaleX);
    stepY_ = PaintedGridStep(axes_.y, place.yNumbers, mapping.scaleY);
}

bool ShownGrid::Shows(const DrawingOperation& gridLine) const {
    const bool stands = gridLine.x1 == gridLine.x2;
    if ((stands ? axes_.x : axes_.y).roundGrid) return false;
    return stands ? IsPaintedGridLine(axes_.x, gridLine.x1, stepX_) : IsPaintedGridLine(axes_.y, gridLine.y1, stepY_);
}

std::vector<DrawingOperation> ShownGrid::RoundLines() const {
    std::vector<DrawingOperation> lines;
    const auto add = [&](double x1, double y1, double x2, double y2) {
        lines.push_back({DrawingOperation::Kind::Line, kGridInk, 1, Role::Grid, 0, x1, y1, x2, y2});
    };
    for (const AxisNumber& number : place_.xNumbers.numbers) {
        if (axes_.x.roundGrid) add(number.coordinate, part_.top, number.coordinate, part_.bottom);
    }
    for (const AxisNumber& number : place_.yNumbers.numbers) {
        if (axes_.y.roundGrid) add(part_.left, number.coordinate, part_.right, number.coordinate);
    }
    return lines;
}

Rgb ShownGrid::ColourOf(const DrawingOperation& gridLine) const {
    const bool stands = gridLine.x1 == gridLine.x2;
    const bool isZero = stands ? gridLine.x1 == axes_.x.origin && gridLine.x1 > part_.left
                               : gridLine.y1 == axes_.y.origin && gridLine.y1 < part_.bottom;
    return isZero ? kZeroInk : kGridInk;
}

}  // namespace zolv
