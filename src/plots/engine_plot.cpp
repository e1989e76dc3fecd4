#include "plots/engine_plot.h"

#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "gearing/gearing_state.h"
#include "model/engine_curve.h"
#include "plots/plot_frame.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

PlotState plots;

namespace {

// Canvas units; the left margin is that of the other plots.
constexpr double kBaseLine = 2405;  // where the value zero stands
constexpr double kGridRight = 4375;
constexpr double kGridTop = 2380;  // horizontal lines stay below it
constexpr double kWidest = 4330;   // where 1.25 times the engine speed of peak power stands

constexpr double kRevsStep = 1000;  // [rpm]
constexpr double kValueStep = 20;   // in the units shown of torque and power

constexpr std::size_t kTorqueLinePoints = 2;  // idle and peak torque
constexpr std::size_t kPowerLinePoints = 18;
constexpr std::size_t kCubicPoints = 16;

/// Like WalkGrid, but the last line stands inside. The scale follows the unit: foot-pounds a second draw some ten
/// thousand lines on a real car, and the limit is for a car that cannot be.
template <class DrawLine>
void WalkInside(double step, double scale, double end, DrawLine draw) {
    constexpr int kMostLines = 200'000;
    double value = 0;
    double offset = 0;
    for (int line = 0; line < kMostLines && offset < end; ++line) {
        draw(offset);
        value += step;
        offset = value * scale;
    }
}

/// The greater of the two peaks, as the user reads them, reaches 10/11 of the height.
PlotFrame PresentFrame(const Engine& engine) {
    const double power = engine.Power * units.Power.Factor;
    const double torque = engine.Torque * units.Torque.Factor;
    const double highest = power > torque ? engine.Power * 1.1 * units.Power.Factor  //
                                          : engine.Torque * 1.1 * units.Torque.Factor;
    return {.sx = kWidest / (engine.PowerRPM * 1.25), .sy = kBaseLine / highest};
}

void DrawEngineGrid(Canvas& plot, const PlotFrame& frame) {
    WalkInside(kRevsStep, frame.sx, kGridRight,
               [&](double x) { plot.Line(Role::Grid, kLeftMargin + x, kBaseLine, kLeftMargin + x, 0); });
    WalkInside(kValueStep, frame.sy, kGridTop,
               [&](double y) { plot.Line(Role::Grid, kLeftMargin, kBaseLine - y, kGridRight, kBaseLine - y); });
    plot.SetAxes({.origin = kLeftMargin,
                  .scale = frame.sx,
                  .step = kRevsStep,
                  .start = kLeftMargin,
                  .end = kGridRight,
                  .title = words["EngineSpeed"],
                  .unit = AxisUnit(texts.RpmSuffix)},
                 {.origin = kBaseLine,
                  .scale = -frame.sy,
                  .step = kValueStep,
                  .start = kBaseLine,
                  .end = kBaseLine - kGridTop,
                  .title = CurveName(Zolv.InfoLabel[kInfoTorque]) + " / " + CurveName(Zolv.InfoLabel[kInfoPower]),
                  .unit = AxisUnit(units.Torque.Suffix) + " / " + AxisUnit(units.Power.Suffix)});
}

void StoreTorque(std::size_t point, const PlotFrame& frame, double revs, double torque) {
    plots.TorquePlotX[point] = static_cast<float>(revs * frame.sx);
    plots.TorquePlotY[point] = static_cast<float>(torque * frame.sy * units.Torque.Factor);
}

/// @param torque  at `revs`, which makes the power there
void StorePower(std::size_t point, const PlotFrame& frame, double revs, double torque) {
    const double power = torque * revs / PowerConstant;
    plots.PowerPlotX[point] = static_cast<float>(revs * frame.sx);
    plots.PowerPlotY[point] = static_cast<float>(power * frame.sy * units.Power.Factor);
}

/// Torque is straight below its peak, power is not. The last two points of power fall on the same engine speed.
void StoreLine(const Engine& engine, const PlotFrame& frame) {
    constexpr int kSteps = 16;
    const double range = engine.TorqueRPM - engine.IdleRPM;
    StoreTorque(0, frame, engine.IdleRPM, LowerTorque(engine, engine.IdleRPM));
    for (int i = 0; i <= kSteps; ++i) {
        const double revs = (i * range) / kSteps + engine.IdleRPM;
        StorePower(static_cast<std::size_t>(i), frame, revs, LowerTorque(engine, revs));
    }
    const double peak = LowerTorque(engine, engine.TorqueRPM);
    StoreTorque(1, frame, engine.TorqueRPM, peak);
    StorePower(kPowerLinePoints - 1, frame, engine.TorqueRPM, peak);
}

void StoreCubic(const Engine& engine, const PlotFrame& frame) {
    const double step = (engine.PowerRPM * 1.2 - engine.TorqueRPM) / kCubicPoints;
    double revs = engine.TorqueRPM;
    for (std::size_t i = 0; i < kCubicPoints; ++i) {
        revs += step;
        const double torque = gearing.Curve.Cubic(revs);
        StoreTorque(kTorqueLinePoints + i, frame, revs, torque);
        StorePower(kPowerLinePoints + i, frame, revs, torque);
    }
}

template <std::size_t Points>
void DrawCurve(Canvas& plot, Meaning meaning, const std::array<float, Points>& x, const std::array<float, Points>& y,
               Rgb colour) {
    for (std::size_t i = 0; i + 1 < Points; ++i) {
        plot.Line(meaning, kLeftMargin + x[i], kBaseLine - y[i], kLeftMargin + x[i + 1], kBaseLine - y[i + 1], colour);
    }
}

void DrawCurves(Canvas& plot) {
    const bool failed = gearing.Curve.CurveFitFailed;
    const Rgb torqueColour = failed ? kRed : kBlue;
    const Rgb powerColour = failed ? kRed : kGreen;
    plot.SetLineWidth(2);
    const Standing standing = failed ? Standing::Doubtful : Standing::Present;
    const Meaning torque{Role::Torque, standing};
    const Meaning power{Role::Power, standing};
    DrawCurve(plot, torque, plots.TorquePlotX, plots.TorquePlotY, torqueColour);
    DrawCurve(plot, power, plots.PowerPlotX, plots.PowerPlotY, powerColour);
    plot.SetLineWidth(1);
    plot.AddName(torque, CurveName(Zolv.InfoLabel[kInfoTorque]), AxisUnit(units.Torque.Suffix));
    plot.AddName(power, CurveName(Zolv.InfoLabel[kInfoPower]), AxisUnit(units.Power.Suffix));
}

}  // namespace

void DrawEnginePlot() {
    const Engine engine = EngineOf(vehicle.CurrentCar);
    const PlotFrame frame = PresentFrame(engine);
    Canvas& plot = Zolv.TorquePowerPlot.Draw();
    plot.Clear();
    DrawEngineGrid(plot, frame);
    StoreLine(engine, frame);
    gearing.Curve = vehicle.Curve;
    StoreCubic(engine, frame);
    DrawCurves(plot);
}

}  // namespace zolv
