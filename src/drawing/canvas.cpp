#include "drawing/canvas.h"

#include <algorithm>
#include <utility>

namespace zolv {

std::string AxisUnit(std::string_view suffix) {
    if (suffix.starts_with(' ')) suffix.remove_prefix(1);
    return std::string(suffix);
}

std::string TitleWithUnit(const PlotAxis& axis) {
    if (axis.title.empty() || axis.unit.empty()) return axis.title + axis.unit;
    return axis.title + " [" + axis.unit + ']';
}

int ColourScale::ShadeOf(double value) const {
    if (!(to > from)) return kShades / 2;
    return std::clamp(static_cast<int>((value - from) / (to - from) * kShades), 0, kShades - 1);
}

void Canvas::Clear() {
    operations_.clear();
    texts_.clear();
    axes_.present = false;
    names_.clear();
    scale_.reset();
    legend_.clear();
}

void Canvas::FillRectangle(Meaning meaning, double x1, double y1, double x2, double y2, Rgb colour) {
    Record({DrawingOperation::Kind::Rectangle, colour, 0, meaning, 0, x1, y1, x2, y2});
}

void Canvas::FillCircle(Meaning meaning, double x, double y, double radius, Rgb colour) {
    Record({DrawingOperation::Kind::Circle, colour, 0, meaning, 0, x, y, radius, 0});
}

void Canvas::Print(std::string_view text) {
    const auto index = static_cast<std::uint32_t>(texts_.size());
    texts_.emplace_back(text);
    Record({DrawingOperation::Kind::Text, ink_, 0, Role::Words, index, 0, 0, 0, 0});
}

void Canvas::SetAxes(PlotAxis x, PlotAxis y) {
    const auto readable = [](const PlotAxis& axis) { return std::isfinite(axis.scale) && axis.scale != 0; };
    if (readable(x) && readable(y)) axes_ = {std::move(x), std::move(y), true};
}

void Canvas::AddName(Meaning meaning, std::string name, std::string unit) {
    names_.push_back({std::move(name), meaning, std::move(unit)});
}

}  // namespace zolv
