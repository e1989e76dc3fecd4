#include "drawing/chart.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "drawing/palette.h"
#include "drawing/plot_axes.h"

namespace zolv {
namespace {

/// From the smallest to the largest of the values that it was given; none, as long as that is the other way round.
struct Range {
    double from = std::numeric_limits<double>::infinity();
    double to = -std::numeric_limits<double>::infinity();

    void Take(double value) {
        if (!std::isfinite(value)) return;
        from = std::min(from, value);
        to = std::max(to, value);
    }
};

Range ReachOf(const Chart& chart, bool onY) {
    Range range;
    for (const ChartSeries& series : chart.series) {
        for (const ChartPoint& point : series.points) {
            if (std::isfinite(point.x) && std::isfinite(point.y)) range.Take(onY ? point.y : point.x);
        }
    }
    for (const ChartMark& mark : chart.marks) {
        if (mark.onY == onY) range.Take(mark.value);
    }
    return range;
}

/// Opens a range without extent and moves its ends out to grid lines.
void Widen(ChartAxis& axis, Range range) {
    if (range.from == range.to) {
        const double aside = range.from == 0 ? 1 : std::fabs(range.from) / 10;
        range = {range.from - aside, range.to + aside};
    }
    const double step = axis.step > 0 ? axis.step : RoundStep(range.to - range.from);
    constexpr double kRounding = 1e-9;  // of a step: an end on a line stays there
    axis.from = std::floor(range.from / step + kRounding) * step;
    axis.to = std::ceil(range.to / step - kRounding) * step;
}

/// The axis with what it leaves open filled in from the series.
/// @return whether it has a range then
bool Settle(ChartAxis& axis, const Chart& chart, bool onY) {
    if (axis.from == axis.to) {
        Range range = ReachOf(chart, onY);
        if (range.from > range.to) return false;
        if (onY && range.from > 0) range.from = 0;
        if (onY && range.to < 0) range.to = 0;
        Widen(axis, range);
    }
    if (!(axis.step > 0)) axis.step = RoundStep(axis.to - axis.from);
    return std::isfinite(axis.from) && std::isfinite(axis.to) && axis.from < axis.to;
}

/// @param near, far  canvas coordinates of the two ends
PlotAxis PlotAxisOf(const ChartAxis& axis, double near, double far) {
    const double scale = (far - near) / (axis.to - axis.from);
    return {.origin = near - axis.from * scale,
            .scale = scale,
            .step = axis.step,
            .start = near,
            .end = far,
            .title = axis.title,
            .unit = axis.unit};
}

/// Draws one chart on one canvas.
class ChartPen {
public:
    ChartPen(Canvas& canvas, const ChartAxis& x, const ChartAxis& y)
        : canvas_(canvas),
          x_(PlotAxisOf(x, 0, canvas.Width())),
          y_(PlotAxisOf(y, canvas.Height(), 0)),
          all_{0, 0, canvas.Width(), canvas.Height()} {
        canvas.SetAxes(x_, y_);
    }

    void Grid() {
        canvas_.SetLineWidth(1);
        EachLine(x_, canvas_.Width(), [&](double x) { canvas_.Line(Role::Grid, x, 0, x, canvas_.Height()); });
        EachLine(y_, canvas_.Height(), [&](double y) { canvas_.Line(Role::Grid, 0, y, canvas_.Width(), y); });
    }

    void Series(const ChartSeries& series) {
        const Standing present = series.doubtful ? Standing::Doubtful : Standing::Present;
        const Meaning meaning{series.role, series.held ? Standing::Held : present};
        canvas_.SetLineWidth(series.held ? 1 : 2);
        for (std::size_t i = 0; i + 1 < series.points.size(); ++i) {
            Line(meaning, X(series.points[i].x), Y(series.points[i].y), X(series.points[i + 1].x),
                 Y(series.points[i + 1].y));
        }
        canvas_.AddName(meaning, series.name);
    }

    void Mark(const ChartMark& mark) {
        const Meaning meaning{mark.role, mark.held ? Standing::Held : Standing::Present};
        canvas_.SetLineWidth(1);
        const double at = mark.onY ? Y(mark.value) : X(mark.value);
        if (!(mark.onY ? at >= 0 && at <= all_.bottom : at >= 0 && at <= all_.right)) return;
        if (mark.onY) {
            Line(meaning, 0, at, all_.right, at);
        } else {
            Line(meaning, at, 0, at, all_.bottom);
        }
        canvas_.AddName(meaning, mark.name);
    }

    /// A ring is a disc with a smaller white one on it.
    void Dot(const ChartDot& dot) {
        const double radius = canvas_.Width() / 130;
        const double x = X(dot.x);
        const double y = Y(dot.y);
        if (!(x >= 0 && x <= all_.right && y >= 0 && y <= all_.bottom)) return;
        canvas_.FillCircle(dot.role, x, y, radius, ColourOf(Meaning(dot.role)));
        if (dot.open) canvas_.FillCircle(dot.role, x, y, radius * 0.6, kWhite);
    }

private:
    double X(double value) const { return x_.origin + x_.scale * value; }
    double Y(double value) const { return y_.origin + y_.scale * value; }

    /// Calls draw(coordinate) for each grid line of an axis between 0 and `end`.
    template <class Draw>
    static void EachLine(const PlotAxis& axis, double end, Draw draw) {
        constexpr double kMostLines = 1000;
        constexpr double kRounding = 1e-6;  // of a canvas unit
        const double first =
            std::ceil((std::min(-axis.origin / axis.scale, (end - axis.origin) / axis.scale) / axis.step) - kRounding);
        for (double line = 0; line < kMostLines; ++line) {
            const double at = axis.origin + axis.scale * ((first + line) * axis.step);
            if (!(at >= -kRounding && at <= end + kRounding)) return;
            draw(std::clamp(at, 0.0, end));
        }
    }

    void Line(Meaning meaning, double x1, double y1, double x2, double y2) {
        DrawingOperation line;
        line.x1 = x1;
        line.y1 = y1;
        line.x2 = x2;
        line.y2 = y2;
        if (CutLine(line, all_)) canvas_.Line(meaning, line.x1, line.y1, line.x2, line.y2, ColourOf(meaning));
    }

    Canvas& canvas_;
    PlotAxis x_, y_;
    CanvasPart all_;
};

}  // namespace

double RoundStep(double range) {
    constexpr double kDigits[] = {1, 2, 5, 10};
    constexpr double kMostLines = 10;
    if (!std::isfinite(range) || range <= 0) return 0;
    const double decade = std::pow(10, std::floor(std::log10(range / kMostLines)));
    for (const double digit : kDigits) {
        if (digit * decade * kMostLines >= range * (1 - 1e-9)) return digit * decade;
    }
    return 10 * decade;
}

void DrawChart(const Chart& chart, Canvas& canvas) {
    canvas.Clear();
    ChartAxis x = chart.x;
    ChartAxis y = chart.y;
    if (!Settle(x, chart, false) || !Settle(y, chart, true)) return;
    ChartPen pen(canvas, x, y);
    pen.Grid();
    for (const ChartMark& mark : chart.marks) pen.Mark(mark);
    for (const ChartSeries& series : chart.series) pen.Series(series);
    for (const ChartDot& dot : chart.dots) pen.Dot(dot);
    canvas.SetLineWidth(1);
}

}  // namespace zolv
