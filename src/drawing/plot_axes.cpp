#include "drawing/plot_axes.h"

#include <algorithm>
#include <cmath>

#include "text/number_text.h"

namespace zolv {
namespace {

constexpr double kClosestNumbers = 8;  // view units; nearer than that no number is readable
constexpr double kDensestGrid = 5;     // view units
constexpr double kRounding = 1e-9;     // of a step, for sums that miss a multiple by their last digits

/// The room of one axis between its ends, as canvas coordinates in ascending order.
struct Span {
    double from = 0, to = 0;
};

Span SpanOf(const PlotAxis& axis, double canvasSize) {
    const Span span{std::clamp(std::min(axis.start, axis.end), 0.0, canvasSize),
                    std::clamp(std::max(axis.start, axis.end), 0.0, canvasSize)};
    return span.to - span.from < 1 ? Span{0, canvasSize} : span;
}

/// Extends `part` to the edges of the canvas that this operation crosses it towards.
void ExtendFor(CanvasPart& part, const DrawingOperation& operation, const Canvas& canvas) {
    constexpr double kTolerance = 1;
    if (std::min(operation.x1, operation.x2) < part.left - kTolerance) part.left = 0;
    if (std::max(operation.x1, operation.x2) > part.right + kTolerance) part.right = canvas.Width();
    if (std::min(operation.y1, operation.y2) < part.top - kTolerance) part.top = 0;
    if (std::max(operation.y1, operation.y2) > part.bottom + kTolerance) part.bottom = canvas.Height();
}

/// Digits behind the point that tell multiples of `step` apart, with three digits of the step itself.
int DecimalsFor(double step) { return std::clamp(2 - static_cast<int>(std::floor(std::log10(step))), 0, 9); }

/// The numbers at all multiples of `step` from `low` to `high`.
std::vector<AxisNumber> Multiples(const PlotAxis& axis, double step, double low, double high) {
    const int decimals = DecimalsFor(step);
    const double last = std::floor(high / step + kRounding);
    std::vector<AxisNumber> numbers;
    for (double k = std::ceil(low / step - kRounding); k <= last; ++k) {
        numbers.push_back({axis.origin + axis.scale * (k * step), RoundedText(k * step, decimals)});
    }
    return numbers;
}

double WidestOf(const std::vector<AxisNumber>& numbers, const std::function<double(const std::string&)>& room) {
    double widest = 0;
    for (const AxisNumber& number : numbers) widest = std::max(widest, room(number.text));
    return widest;
}

/// Whether a step is 1, 2, 2.5 or 5 times a power of ten.
bool IsRound(double step) {
    constexpr double kRoundDigits[] = {1, 2, 2.5, 5, 10};
    const double digits = step / std::pow(10, std::floor(std::log10(step)));
    return std::any_of(std::begin(kRoundDigits), std::end(kRoundDigits),
                       [&](double digit) { return std::fabs(digits - digit) < 1e-6; });
}

/// The next of 1, 2, 4, 5, 10, 20, 40 and so on that keeps a round step round, and a step that is not round to every
/// 2nd, 5th or 10th line.
double NextMultiple(double base, double every) {
    constexpr double kDigits[] = {1, 2, 4, 5, 10};
    const double decade = std::pow(10, std::floor(std::log10(every) + kRounding));
    const bool round = IsRound(base);
    for (const double digit : kDigits) {
        const double next = digit * decade;
        if (next > every * (1 + kRounding) && (round ? IsRound(base * next) : digit != 4)) return next;
    }
    return 10 * decade;
}

}  // namespace

CanvasPart UsedPart(const Canvas& canvas) {
    const Canvas::Axes& axes = canvas.PresentAxes();
    if (!axes.present) return {0, 0, canvas.Width(), canvas.Height()};
    const Span x = SpanOf(axes.x, canvas.Width());
    const Span y = SpanOf(axes.y, canvas.Height());
    CanvasPart part{x.from, y.from, x.to, y.to};
    for (const DrawingOperation& operation : canvas.Operations()) {
        if (IsCurve(operation.meaning.role)) ExtendFor(part, operation, canvas);
    }
    return part;
}

CanvasMapping MapOnto(const CanvasPart& part, double x, double y, double width, double height) {
    const double scaleX = width / part.Width();
    const double scaleY = height / part.Height();
    return {x - part.left * scaleX, scaleX, y - part.top * scaleY, scaleY};
}

bool CutLine(DrawingOperation& line, const CanvasPart& part) {
    // How far along the line it enters and leaves the part, after Liang and Barsky.
    const double dx = line.x2 - line.x1;
    const double dy = line.y2 - line.y1;
    double enter = 0;
    double leave = 1;
    const struct {
        double towards, distance;
    } edges[] = {
        {-dx, line.x1 - part.left}, {dx, part.right - line.x1}, {-dy, line.y1 - part.top}, {dy, part.bottom - line.y1}};
    for (const auto& edge : edges) {
        if (edge.towards == 0 && edge.distance < 0) return false;
        if (edge.towards < 0) enter = std::max(enter, edge.distance / edge.towards);
        if (edge.towards > 0) leave = std::min(leave, edge.distance / edge.towards);
    }
    if (!(enter <= leave) || !std::isfinite(dx) || !std::isfinite(dy)) return false;
    const double startX = line.x1 + enter * dx;
    const double startY = line.y1 + enter * dy;
    if (leave < 1) {
        line.x2 = line.x1 + leave * dx;
        line.y2 = line.y1 + leave * dy;
    }
    // From an end very far out the sums lose the digits that matter.
    line.x1 = std::clamp(startX, part.left, part.right);
    line.y1 = std::clamp(startY, part.top, part.bottom);
    line.x2 = std::clamp(line.x2, part.left, part.right);
    line.y2 = std::clamp(line.y2, part.top, part.bottom);
    return true;
}

AxisNumbers NumbersAlong(const PlotAxis& axis, double from, double to, double viewScale,
                         const std::function<double(const std::string&)>& room) {
    const double ends[] = {(from - axis.origin) / axis.scale, (to - axis.origin) / axis.scale};
    const double low = std::min(ends[0], ends[1]);
    const double high = std::max(ends[0], ends[1]);
    const double range = high - low;
    const double valueRoom = std::fabs(axis.scale * viewScale);
    if (!std::isfinite(range) || range <= 0 || valueRoom <= 0) return {};

    AxisNumbers found;
    found.onGrid = !axis.roundGrid && std::isfinite(axis.step) && axis.step > 0 && axis.step <= range;
    const double base = found.onGrid ? axis.step : std::pow(10, std::floor(std::log10(range)) - 2);
    for (;; found.every = NextMultiple(base, found.every)) {
        const double step = base * found.every;
        if (step > range * 2) return {};
        if (step * valueRoom < kClosestNumbers) continue;
        found.numbers = Multiples(axis, step, low, high);
        if (WidestOf(found.numbers, room) <= step * valueRoom) return found;
    }
}

double PaintedGridStep(const PlotAxis& axis, const AxisNumbers& numbers, double viewScale) {
    const double spacing = std::fabs(axis.scale * axis.step * viewScale);
    return numbers.onGrid && spacing < kDensestGrid ? numbers.every : 1;
}

bool IsPaintedGridLine(const PlotAxis& axis, double coordinate, double paintedStep) {
    if (paintedStep <= 1) return true;
    const double line = std::round((coordinate - axis.origin) / (axis.scale * axis.step));
    return std::fmod(line, paintedStep) == 0;
}

std::string ReadingAt(const PlotAxis& axis, double coordinate, double viewScale) {
    const double finest = 1 / std::fabs(axis.scale * viewScale);
    const int decimals = finest > 0 ? static_cast<int>(std::clamp(std::ceil(-std::log10(finest)), 0.0, 9.0)) : 9;
    const std::string unit = axis.unit.empty() ? std::string() : ' ' + axis.unit;
    return WithUnit((coordinate - axis.origin) / axis.scale, decimals, unit);
}

}  // namespace zolv
