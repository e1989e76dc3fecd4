#include "plots/canvas.h"

#include <utility>

namespace zolv {

void Canvas::Clear() {
    operations_.clear();
    texts_.clear();
    axes_.present = false;
}

void Canvas::FillRectangle(double x1, double y1, double x2, double y2, Rgb colour) {
    operations_.push_back({DrawingOperation::Kind::Rectangle, colour, 0, 0, x1, y1, x2, y2});
}

void Canvas::FillCircle(double x, double y, double radius, Rgb colour) {
    operations_.push_back({DrawingOperation::Kind::Circle, colour, 0, 0, x, y, radius, 0});
}

void Canvas::Print(std::string_view text) {
    const auto index = static_cast<std::uint32_t>(texts_.size());
    texts_.emplace_back(text);
    operations_.push_back({DrawingOperation::Kind::Text, ink_, 0, index, 0, 0, 0, 0});
}

void Canvas::SetAxes(PlotAxis x, PlotAxis y) { axes_ = {std::move(x), std::move(y), true}; }

}  // namespace zolv
