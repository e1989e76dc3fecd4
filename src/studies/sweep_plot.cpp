#include "studies/sweep_plot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "drawing/chart.h"
#include "drawing/palette.h"
#include "studies/contours.h"
#include "studies/sweep_table.h"
#include "text/words.h"

namespace zolv {
namespace {

struct Range {
    double from = std::numeric_limits<double>::infinity();
    double to = -std::numeric_limits<double>::infinity();

    [[nodiscard]] bool Empty() const { return from > to; }
};

Range RangeOf(const std::vector<double>& values) {
    Range range;
    for (const double value : values) {
        if (std::isnan(value)) continue;
        range.from = std::min(range.from, value);
        range.to = std::max(range.to, value);
    }
    return range;
}

std::vector<double> Times(std::vector<double> values, double factor) {
    for (double& value : values) value *= factor;
    return values;
}

/// A curve lies between the round values around it, not above zero, from which most results are far away.
void DrawCurve(const SweepRun& run, const SetUp& present, const PlottedSweep& plotted, Canvas& canvas) {
    Chart chart;
    chart.x = {.title = plotted.First.Name, .unit = plotted.First.Shown.Unit};
    chart.y = {.title = plotted.Result.Name, .unit = plotted.Result.Shown.Unit};
    const std::vector<double> xs = Times(run.Sheet.First, plotted.First.Shown.Factor);
    const std::vector<double> ys = Times(run.Sheet.Values, plotted.Result.Shown.Factor);
    chart.x.from = xs.front();
    chart.x.to = xs.back();
    const Range range = RangeOf(ys);
    if (range.from < range.to) {
        const double step = RoundStep(range.to - range.from);
        chart.y.from = std::floor(range.from / step) * step;
        chart.y.to = std::ceil(range.to / step) * step;
    }
    ChartSeries series{.name = plotted.Result.Name, .role = Role::Series1};
    for (std::size_t i = 0; i < xs.size(); ++i) series.points.push_back({xs[i], ys[i]});
    chart.series.push_back(std::move(series));
    const double now = InputOf(present, run.Task.First.Input) * plotted.First.Shown.Factor;
    chart.marks.push_back({.name = words["PresentMark"], .role = Role::PresentValue, .value = now});
    if (run.Sheet.Best) {
        chart.marks.push_back({.name = words["BestMark"], .role = Role::BestValue, .value = xs[*run.Sheet.Best]});
    }
    DrawChart(chart, canvas);
}

/// Where the cells of a map end along one axis: halfway to the next value, and as far beyond the outer ones.
std::vector<double> EdgesOf(const std::vector<double>& values) {
    if (values.size() == 1) return {values[0] - 0.5, values[0] + 0.5};
    std::vector<double> edges{values[0] - (values[1] - values[0]) / 2};
    for (std::size_t i = 0; i + 1 < values.size(); ++i) edges.push_back((values[i] + values[i + 1]) / 2);
    edges.push_back(values.back() + (values.back() - values[values.size() - 2]) / 2);
    return edges;
}

/// Draws one map; all values are in the units that the user reads.
class MapPen {
public:
    MapPen(const SweepRun& run, const PlottedSweep& plotted, Canvas& canvas)
        : run_(run),
          plotted_(plotted),
          canvas_(canvas),
          xs_(Times(run.Sheet.First, plotted.First.Shown.Factor)),
          ys_(Times(run.Sheet.Second, plotted.Second->Shown.Factor)),
          values_(Times(run.Sheet.Values, plotted.Result.Shown.Factor)),
          range_(RangeOf(values_)) {}

    void Draw(const SetUp& present) {
        canvas_.Clear();
        SetAxes();
        if (range_.Empty()) return;
        Cells();
        Contours();
        const auto& task = run_.Task;
        Point(Role::PresentPoint, words["PresentMark"],
              InputOf(present, task.First.Input) * plotted_.First.Shown.Factor,
              InputOf(present, task.Second->Input) * plotted_.Second->Shown.Factor);
        if (const auto best = run_.Sheet.Best) {
            Point(Role::BestPoint, words["BestMark"], xs_[*best % xs_.size()], ys_[*best / xs_.size()]);
        }
    }

private:
    void SetAxes() {
        const std::vector<double> xEdges = EdgesOf(xs_);
        const std::vector<double> yEdges = EdgesOf(ys_);
        const auto axis = [](const PlottedSweep::Part& part, double from, double to, double near, double far) {
            const double scale = (far - near) / (to - from);
            return PlotAxis{.origin = near - from * scale,
                            .scale = scale,
                            .step = RoundStep(to - from),
                            .start = near,
                            .end = far,
                            .title = part.Name,
                            .unit = part.Shown.Unit};
        };
        x_ = axis(plotted_.First, xEdges.front(), xEdges.back(), 0, canvas_.Width());
        y_ = axis(*plotted_.Second, yEdges.front(), yEdges.back(), canvas_.Height(), 0);
        canvas_.SetAxes(x_, y_);
        ColourScale scale{.title = plotted_.Result.Name, .unit = plotted_.Result.Shown.Unit};
        if (!range_.Empty()) {
            scale.from = range_.from;
            scale.to = range_.to;
            scale.step = RoundStep(range_.to - range_.from);
        }
        scale.xs = xs_;
        scale.ys = ys_;
        scale.values = values_;
        canvas_.SetScale(std::move(scale));
    }

    [[nodiscard]] double X(double value) const { return x_.origin + x_.scale * value; }
    [[nodiscard]] double Y(double value) const { return y_.origin + y_.scale * value; }

    /// Cells of one colour that lie side by side are one.
    void Cells() {
        const std::vector<double> xEdges = EdgesOf(xs_);
        const std::vector<double> yEdges = EdgesOf(ys_);
        const auto shadeAt = [&](std::size_t line, std::size_t column) {
            const double value = values_[line * xs_.size() + column];
            return std::isnan(value) ? -1 : canvas_.Scale()->ShadeOf(value);
        };
        for (std::size_t line = 0; line < ys_.size(); ++line) {
            for (std::size_t from = 0; from < xs_.size();) {
                const int shade = shadeAt(line, from);
                std::size_t to = from + 1;
                while (to < xs_.size() && shadeAt(line, to) == shade) ++to;
                if (shade >= 0) {
                    canvas_.FillRectangle(Role::Cell, X(xEdges[from]), Y(yEdges[line + 1]), X(xEdges[to]),
                                          Y(yEdges[line]), ShadeColour(shade));
                }
                from = to;
            }
        }
    }

    void Contours() {
        const double step = canvas_.Scale()->step;
        if (!(step > 0)) return;
        canvas_.SetLineWidth(1);
        for (double k = std::floor(range_.from / step) + 1; k * step < range_.to; ++k) {
            const double level = k * step;
            const Rgb ink = ContourInk(canvas_.Scale()->ShadeOf(level));
            for (const ContourPiece& piece : ContourOf(xs_, ys_, values_, level)) {
                canvas_.Line(Role::Contour, X(piece.x1), Y(piece.y1), X(piece.x2), Y(piece.y2), ink);
            }
        }
    }

    /// A dot with a white rim, which is seen on every shade.
    void Point(Role role, const std::string& name, double x, double y) {
        constexpr double kRim = 60;
        constexpr double kDot = 38;
        const double atX = X(x);
        const double atY = Y(y);
        if (!(atX >= 0 && atX <= canvas_.Width() && atY >= 0 && atY <= canvas_.Height())) return;
        canvas_.FillCircle(role, atX, atY, kRim, kWhite);
        canvas_.FillCircle(role, atX, atY, kDot, ColourOf(Meaning(role)));
        canvas_.AddName(role, name);
    }

    const SweepRun& run_;
    const PlottedSweep& plotted_;
    Canvas& canvas_;
    std::vector<double> xs_, ys_, values_;
    Range range_;
    PlotAxis x_, y_;
};

}  // namespace

void DrawSweep(const SweepRun& run, const SetUp& present, Canvas& canvas) {
    const PlottedSweep plotted(run);
    if (plotted.Second) {
        MapPen(run, plotted, canvas).Draw(present);
    } else {
        DrawCurve(run, present, plotted, canvas);
    }
}

}  // namespace zolv
