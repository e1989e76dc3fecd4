#include "plots/speed_plot.h"

#include "fields/all_windows.h"
#include "gearing/gearing_state.h"
#include "plots/plot_frame.h"
#include "text/texts.h"
#include "text/words.h"
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
        Role role;
        std::string_view name;
    } marks[] = {
        {options.PowerLineOn, powerRevs, kGreen, Role::PeakPower, words["PeakPower"]},
        {options.TorqueLineOn, vehicle.CurrentCar.TorqueRPM, kBlue, Role::PeakTorque, words["PeakTorque"]},
        {options.RedlineOn, PresentShiftRules().RevLimit(), kRed, Role::Limiter, words["Limiter"]},
    };
    for (const auto& mark : marks) {
        if (!mark.on) continue;
        plot.Line(mark.role, kLeftMargin, frame.Y(mark.revs), kPlotWidth, frame.Y(mark.revs), mark.colour);
        plot.AddName(mark.role, std::string(mark.name));
    }
}

void DrawRay(Canvas& plot, const PlotFrame& frame, const Gearbox& box, std::size_t gear, Role role) {
    plot.Line(role, kLeftMargin, kPlotHeight, frame.X(box.GearSpeed[gear]), frame.Y(box.GearRevs[gear]));
}

void DrawRays(Canvas& plot, const PlotFrame& frame, const Gearbox& box, std::size_t top) {
    DrawRay(plot, frame, box, 1, Role::Gear1);
    for (std::size_t gear = 2; gear <= top; ++gear) {
        DrawRay(plot, frame, box, gear, GearRole(static_cast<int>(gear)));
    }
    for (std::size_t gear = 1; gear <= top; ++gear) {
        plot.AddName(GearRole(static_cast<int>(gear)), texts.GearNames[gear]);
    }
}

/// The first gear from standstill; then for each gear its rise from the change into it, and behind it the drop of that
/// change.
void DrawSawTooth(Canvas& plot, const PlotFrame& frame, const Gearbox& box, std::size_t top) {
    const ByGear& speed = box.GearSpeed;
    const ByGear& revs = box.GearRevs;
    DrawRay(plot, frame, box, 1, Role::SawTooth);
    for (std::size_t gear = 2; gear <= top; ++gear) {
        const double changeX = frame.X(speed[gear - 1]);
        const double changeY = frame.Y(box.RevsAfterChange[gear - 1]);
        plot.Line(Role::SawTooth, changeX, changeY, frame.X(speed[gear]), frame.Y(revs[gear]));
        plot.Line(Role::SawTooth, changeX, changeY, changeX, frame.Y(revs[gear - 1]));
    }
    plot.AddName(Role::SawTooth, words["ThroughTheGears"]);
}

}  // namespace

void DrawSpeedPlot() {
    const Gearbox& box = gearing.Present();
    const std::size_t top = TopGear();
    const PlotFrame frame{.sx = (kPlotWidth - kCurveReserve) / box.GearSpeed[top],
                          .sy = kPlotHeight / (vehicle.CurrentCar.PowerRPM * 1.3)};
    Canvas& plot = Zolv.SpeedPlot.Draw();
    DrawGrid(plot, frame, {texts.TextColSpeed, options.SpeedPlotXScale, units.Speed.Factor, units.Speed.Suffix},
             {.title = words["EngineSpeed"], .step = options.SpeedPlotYScale, .suffix = texts.RpmSuffix});
    DrawMarks(plot, frame);

    plot.SetLineWidth(3);
    (options.AltGraphStyle.value_or(false) ? DrawSawTooth : DrawRays)(plot, frame, box, top);
}

}  // namespace zolv
