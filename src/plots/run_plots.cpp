#include "plots/run_plots.h"

#include <algorithm>

#include "aero/aero_state.h"
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

constexpr std::string_view kSeconds = " s";

/// Canvas units for one second of the run.
double TimeScale() { return (kPlotWidth - kCurveReserve) / (gearing.AccelLastRow * kTimeStep); }

const AccelRow& RowAt(int row) { return gearing.AccelRows[static_cast<std::size_t>(row)]; }

/// Draws `column` from one row to another.
void DrawSegment(Canvas& plot, const PlotFrame& frame, int from, int to, AccelColumn column, Role role, Rgb colour) {
    const auto x = [&](int row) { return (row * frame.sx * kTimeStep) + kLeftMargin; };
    plot.Line(role, x(from), frame.Y(RowAt(from)[column]), x(to), frame.Y(RowAt(to)[column]), colour);
}

/// The largest force to be expected [N]: first gear's at peak torque, as far as the tyres can take it, or the load of
/// an axle where the loads are drawn.
double LargestForce() {
    const Gearbox& box = gearing.Present();
    const CarRecord& car = vehicle.CurrentCar;
    const bool rear = car.IsRearDriven();
    const double radius = rear ? vehicle.Tyres.RearUnloadedRadius : vehicle.Tyres.FrontUnloadedRadius;
    const double load = rear ? aero.RearWheelForce : aero.FrontWheelForce;
    const double torque = static_cast<double>(car.Torque) * car.Efficiency * box.GearRatio[1] * box.FinalDrive;
    double force = torque / (radius * 0.95);
    if (force > load * 1.6) force = load * 1.6;
    if (!options.VLoadsOn) return force;
    const double largerLoad = std::max(aero.FrontWheelForce, aero.RearWheelForce);
    return force < largerLoad * 1.05 ? largerLoad * 1.05 : force;
}

struct ForceCurve {
    AccelColumn column;
    Role role;
    Rgb colour;
    const std::string& (*name)();
    bool isLoad;
};
constexpr ForceCurve kForceCurves[] = {
    {AccelColumn::DrivingForce, Role::DrivingForce, kGreen,
     []() -> const std::string& { return texts.TextColDrivingForce; }, false},
    {AccelColumn::Resistance, Role::Resistance, kRed, []() -> const std::string& { return texts.TextColResistance; },
     false},
    {AccelColumn::NetForce, Role::NetForce, kBlue, []() -> const std::string& { return texts.TextColNetForce; }, false},
    {AccelColumn::FrontLoad, Role::FrontLoad, kMagenta, []() -> const std::string& { return words["FrontLoad"]; },
     true},
    {AccelColumn::RearLoad, Role::RearLoad, kCyan, []() -> const std::string& { return words["RearLoad"]; }, true},
};

}  // namespace

void DrawTractiveEffortPlot() {
    constexpr int kStride = 3;
    if (gearing.AccelLastRow <= 0) return;
    const PlotFrame frame{.sx = TimeScale(), .sy = kPlotHeight / LargestForce()};
    Canvas& plot = Zolv.TractiveEffortPlot.Draw();
    DrawGrid(plot, frame, {.title = texts.TextColTime, .step = options.TractivePlotXScale, .suffix = kSeconds},
             {words["Force"], options.TractivePlotYScale, units.Force.Factor, units.Force.Suffix});

    plot.SetLineWidth(2);
    const auto isDrawn = [](const ForceCurve& curve) { return !curve.isLoad || options.VLoadsOn; };
    for (int row = 0; row < gearing.AccelLastRow - kStride; row += kStride) {
        for (const ForceCurve& curve : kForceCurves) {
            if (isDrawn(curve)) DrawSegment(plot, frame, row, row + kStride, curve.column, curve.role, curve.colour);
        }
    }
    for (const ForceCurve& curve : kForceCurves) {
        if (isDrawn(curve)) plot.AddName(curve.role, curve.name());
    }
}

void DrawSpeedTimeGraph() {
    constexpr int kStride = 8;
    const int last = gearing.AccelLastRow;
    if (last <= 0) return;
    const PlotFrame frame{.sx = TimeScale(), .sy = kPlotHeight / (RowAt(last)[AccelColumn::Speed] * 1.1)};
    Canvas& plot = Zolv.SpeedTimeGraph.Draw();
    DrawGrid(plot, frame, {.title = texts.TextColTime, .step = options.SpeedGraphXScale, .suffix = kSeconds},
             {texts.TextColSpeed, options.SpeedGraphYScale, units.Speed.Factor, units.Speed.Suffix});

    plot.SetLineWidth(2);
    for (int row = 0; row < last - kStride; row += kStride) {
        DrawSegment(plot, frame, row, row + kStride, AccelColumn::Speed, Role::Speed, kBlack);
    }
    plot.AddName(Role::Speed, texts.TextColSpeed);
}

}  // namespace zolv
