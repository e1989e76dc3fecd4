#include "plots/plot_frame.h"

#include "text/caption_name.h"

namespace zolv {

void DrawGrid(Canvas& plot, const PlotFrame& frame, const AxisReading& x, const AxisReading& y) {
    constexpr int kGridLines = 101;
    plot.SetLineWidth(1);
    WalkGrid(x.step / x.factor, frame.sx, kPlotWidth, kGridLines,
             [&](double offset) { plot.Line(Role::Grid, offset + kLeftMargin, kPlotHeight, offset + kLeftMargin, 0); });
    WalkGrid(y.step / y.factor, frame.sy, kPlotHeight, kGridLines, [&](double offset) {
        plot.Line(Role::Grid, kLeftMargin, kPlotHeight - offset, kPlotWidth, kPlotHeight - offset);
    });
    plot.SetAxes({.origin = kLeftMargin,
                  .scale = frame.sx / x.factor,
                  .step = static_cast<double>(x.step),
                  .start = kLeftMargin,
                  .end = kPlotWidth,
                  .title = std::string(x.title),
                  .unit = AxisUnit(x.suffix)},
                 {.origin = kPlotHeight,
                  .scale = -frame.sy / y.factor,
                  .step = static_cast<double>(y.step),
                  .start = kPlotHeight,
                  .end = 0,
                  .title = std::string(y.title),
                  .unit = AxisUnit(y.suffix)});
}

std::string CurveName(const Label& label) { return CaptionName(label.Caption()); }

}  // namespace zolv
