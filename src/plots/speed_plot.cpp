#include "plots/speed_plot.h"

#include "fields/windows.h"
#include "gearing/gearing_state.h"
#include "plots/plot_frame.h"
#include "text/texts.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

void DrawMarks(Canvas& plot, const PlotFrame& frame) {
    const double powerRevs = vehicle.CurrentCar.PowerRPM;
    const struct {
        bool on;
        double revs;
        Rgb colour;
    } marks[] = {
        {options.PowerLineOn, powerRevs, kGreen},
        {options.TorqueLineOn, vehicle.CurrentCar.TorqueRPM, kBlue},
        {options.RedlineOn, PresentShiftRules().RevLimit(), kRed},
    };
    for (const auto& mark : marks) {
        if (mark.on) plot.Line(kLeftMargin, frame.Y(mark.revs), kPlotWidth, frame.Y(mark.revs), mark.colour);
    }
}

void DrawRay(Canvas& plot, const PlotFrame& frame, const Gearbox& box, std::size_t gear) {
    plot.Line(kLeftMargin, kPlotHeight, frame.X(box.GearSpeed[gear]), frame.Y(box.GearRevs[gear]));
}

/// The rise of a gear from the change into it, and then the drop of that change.
void DrawSawTooth(Canvas& plot, const PlotFrame& frame, const Gearbox& box, std::size_t gear) {
    const ByGear& speed = box.GearSpeed;
    const ByGear& revs = box.GearRevs;
    const double changeX = frame.X(speed[gear - 1]);
    const double changeY = frame.Y(box.RevsAfterChange[gear - 1]);
    plot.Line(changeX, changeY, frame.X(speed[gear]), frame.Y(revs[gear]));
    plot.Line(changeX, changeY, changeX, frame.Y(revs[gear - 1]));
}

}  // namespace

void DrawSpeedPlot() {
    const Gearbox& box = gearing.Present();
    const std::size_t top = TopGear();
    const PlotFrame frame{.sx = (kPlotWidth - kCurveReserve) / box.GearSpeed[top],
                          .sy = kPlotHeight / (vehicle.CurrentCar.PowerRPM * 1.3)};
    Canvas& plot = Zolv.SpeedPlot.Draw();
    DrawGrid(plot, frame, {options.SpeedPlotXScale, units.Speed.Factor, units.Speed.Suffix},
             {.step = options.SpeedPlotYScale, .suffix = texts.RpmSuffix});
    DrawMarks(plot, frame);

    plot.SetLineWidth(3);
    const bool sawTooth = options.AltGraphStyle.value_or(false);
    DrawRay(plot, frame, box, 1);
    for (std::size_t gear = 2; gear <= top; ++gear) (sawTooth ? DrawSawTooth : DrawRay)(plot, frame, box, gear);
    if (sawTooth) return;  // one line through all gears, which has no name
    for (std::size_t gear = 1; gear <= top; ++gear) plot.AddLegend(texts.GearNames[gear], kBlack);
}

}  // namespace zolv
