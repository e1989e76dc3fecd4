#include "drawing/curve_reading.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "text/number_text.h"

namespace zolv {
namespace {

/// The canvas height of a line at an x that it passes. A line straight up is the drop from one piece to the next, and
/// has none.
std::optional<double> HeightAt(const DrawingOperation& line, double x) {
    if (line.x1 == line.x2 || x < std::min(line.x1, line.x2) || x > std::max(line.x1, line.x2)) return {};
    return line.y1 + (line.y2 - line.y1) * ((x - line.x1) / (line.x2 - line.x1));
}

}  // namespace

std::vector<CurveReading> ReadingsAt(const Canvas& canvas, double canvasX, double viewScaleY) {
    const std::vector<PartName>& names = canvas.Names();
    std::vector<std::optional<double>> heights(names.size());
    for (const DrawingOperation& line : canvas.Operations()) {
        if (line.kind != DrawingOperation::Kind::Line || !IsCurve(line.meaning.role)) continue;
        const std::optional<double> height = HeightAt(line, canvasX);
        if (!height) continue;
        const auto name = std::ranges::find(names, line.meaning, &PartName::meaning);
        if (name != names.end()) heights[static_cast<std::size_t>(name - names.begin())] = height;
    }
    std::vector<CurveReading> readings;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!heights[i]) continue;
        PlotAxis axis = canvas.PresentAxes().y;
        if (!names[i].unit.empty()) axis.unit = names[i].unit;
        readings.push_back({names[i].name, ReadingAt(axis, *heights[i], viewScaleY), names[i].meaning});
    }
    const auto readsAsItsTwin = [all = readings](const CurveReading& held) {
        if (held.meaning.standing != Standing::Held) return false;
        const auto twin = std::ranges::find(all, Meaning(held.meaning.role), &CurveReading::meaning);
        return twin != all.end() && twin->value == held.value;
    };
    std::erase_if(readings, readsAsItsTwin);
    return readings;
}

std::string MapReadingAt(const Canvas& canvas, double canvasX, double canvasY) {
    if (!canvas.Scale() || canvas.Scale()->values.empty()) return {};
    const ColourScale& scale = *canvas.Scale();
    const auto nearest = [](const std::vector<double>& values, const PlotAxis& axis, double coordinate) {
        const double value = (coordinate - axis.origin) / axis.scale;
        const auto found = std::ranges::min_element(values, {}, [&](double one) { return std::fabs(one - value); });
        return static_cast<std::size_t>(found - values.begin());
    };
    const std::size_t column = nearest(scale.xs, canvas.PresentAxes().x, canvasX);
    const std::size_t line = nearest(scale.ys, canvas.PresentAxes().y, canvasY);
    const double value = scale.values[line * scale.xs.size() + column];
    constexpr int kDecimals = 3;
    return std::isfinite(value) ? WithUnit(value, kDecimals, scale.unit.empty() ? "" : ' ' + scale.unit)
                                : std::string();
}

bool ShareX(const Canvas& one, const Canvas& other) {
    const Canvas::Axes& a = one.PresentAxes();
    const Canvas::Axes& b = other.PresentAxes();
    return a.present && b.present && a.x.title == b.x.title && a.x.unit == b.x.unit;
}

}  // namespace zolv
