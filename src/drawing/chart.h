#pragma once

#include <string>
#include <vector>

#include "drawing/canvas.h"

/// A plot made from named series: what is drawn anew is drawn with this.
///
///     Chart chart;
///     chart.x = {.title = "Speed", .unit = "km/h", .from = 0, .to = 300};
///     chart.y = {.title = "Force", .unit = "N"};  // as far as the series reach
///     chart.series.push_back({.name = "Drag", .role = Role::Drag, .points = points});
///     chart.marks.push_back({.name = "77.6 m/s", .role = Role::PresentValue, .value = 279.4});
///     DrawChart(chart, canvas);
///
/// A CanvasView or SvgOf() then shows the canvas with its numbers, titles and names. All values are in the units that
/// the user reads.
namespace zolv {

struct ChartAxis {
    std::string title = {};  // "Road speed"
    std::string unit = {};   // "km/h", without a blank; empty where there is none
    // What is shown. Where the two are equal: as far as series and marks reach, to the next grid line on both sides,
    // with zero on a y axis whose values are all of one sign.
    double from = 0, to = 0;
    double step = 0;  // from grid line to grid line; 0: a round one
};

struct ChartPoint {
    double x = 0, y = 0;
};

/// One curve. Its role gives its colour, and with `held` it is one series of its drawing.
struct ChartSeries {
    std::string name;  // at the curve, and in the crosshair's box
    Role role = Role::Series1;
    std::vector<ChartPoint> points = {};  // with x ascending; one that is not finite is a gap
    bool held = false;                    // of the held set-up: thin and dashed
    bool doubtful = false;                // drawn from a fit that failed: red
};

/// A point that stands out on a curve, in the colour of its role.
struct ChartDot {
    double x = 0, y = 0;
    Role role = Role::Series1;
    bool open = false;  // a ring; otherwise a disc
};

/// A straight line all across the plot at one value.
struct ChartMark {
    std::string name;
    Role role = Role::PresentValue;
    double value = 0;
    bool onY = false;  // at a value of the y axis, so that the line lies; otherwise it stands at a value of x
    bool held = false;
};

struct Chart {
    ChartAxis x, y;
    std::vector<ChartSeries> series = {};  // in drawing order, the last one on top
    std::vector<ChartMark> marks = {};
    std::vector<ChartDot> dots = {};  // on top of all series
};

/// Clears the canvas and draws the chart over the whole of it; nothing leaves the range that is shown. A chart without
/// any finite point in a range that is open stays blank.
void DrawChart(const Chart& chart, Canvas& canvas);

/// A grid step of 1, 2 or 5 times a power of ten that cuts a range into 4 to 10. 0 for a range that is none.
[[nodiscard]] double RoundStep(double range);

}  // namespace zolv
