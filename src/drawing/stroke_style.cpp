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
    if (IsCurve(role) || IsMark(role)) return StyleOf(line.meaning);
    return {.colour = Softened(line.colour), .width = static_cast<double>(line.width)};
}

Rgb FillOf(const DrawingOperation& filled) {
    return filled.meaning.role == Role::Area ? ColourOf(filled.meaning) : Softened(filled.colour);
}

ShownGrid::ShownGrid(const Canvas& canvas, const PlotPlace& place) : axes_(canvas.PresentAxes()), part_(place.part) {
    if (!place.hasAxes) return;
    const CanvasMapping mapping = place.Mapping();
    stepX_ = PaintedGridStep(axes_.x, place.xNumbers, mapping.scaleX);
    stepY_ = PaintedGridStep(axes_.y, place.yNumbers, mapping.scaleY);
}

bool ShownGrid::Shows(const DrawingOperation& gridLine) const {
    return gridLine.x1 == gridLine.x2 ? IsPaintedGridLine(axes_.x, gridLine.x1, stepX_)
                                      : IsPaintedGridLine(axes_.y, gridLine.y1, stepY_);
}

Rgb ShownGrid::ColourOf(const DrawingOperation& gridLine) const {
    const bool stands = gridLine.x1 == gridLine.x2;
    const bool isZero = stands ? gridLine.x1 == axes_.x.origin && gridLine.x1 > part_.left
                               : gridLine.y1 == axes_.y.origin && gridLine.y1 < part_.bottom;
    return isZero ? kZeroInk : kGridInk;
}

}  // namespace zolv
