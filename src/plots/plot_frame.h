#pragma once

#include <string>
#include <string_view>

#include "drawing/canvas.h"
#include "fields/kinds.h"

/// What the four plots of the gearing page have in common: frame, grid, and how a pair of data lands on the canvas.
namespace zolv {

// Canvas units
inline constexpr double kLeftMargin = 200;
inline constexpr double kPlotWidth = 4540;    // right end of the grid
inline constexpr double kPlotHeight = 2715;   // where the value zero stands
inline constexpr double kCurveReserve = 220;  // keeps a curve's last point inside

/// Scales of a plot, in canvas units for one unit of the data. Where the data give no scale it is not finite, and what
/// is drawn with it is not recorded.
struct PlotFrame {
    double sx = 0;
    double sy = 0;

    [[nodiscard]] double X(double value) const { return value * sx + kLeftMargin; }
    [[nodiscard]] double Y(double value) const { return kPlotHeight - value * sy; }
};

/// How the user reads one axis.
struct AxisReading {
    std::string_view title;
    int step = 0;             // from grid line to grid line, in the unit shown
    double factor = 1;        // shown value = data * factor
    std::string_view suffix;  // of the unit shown
};

/// Draws the grid at width 1 in the canvas's ink, vertical lines first, and publishes what its axes mean. The last line
/// of a direction may lie beyond the frame; a step too small to cross the frame ends after 101 lines.
void DrawGrid(Canvas& plot, const PlotFrame& frame, const AxisReading& x, const AxisReading& y);

/// A curve's name, from the label in front of its figure: "Power:" names the curve "Power".
[[nodiscard]] std::string CurveName(const Label& label);

}  // namespace zolv
