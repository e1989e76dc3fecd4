#include "plots/engine_plot.h"

#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "gearing/gearing_state.h"
#include "model/engine_curve.h"
#include "plots/plot_frame.h"
#include "plots/plotted.h"
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
double HighestPeak(const Plotted& setUp) {
    const Engine engine = EngineOf(setUp.car);
    const double power = engine.Power * units.Power.Factor;
    const double torque = engine.Torque * units.Torque.Factor;
    return power > torque ? engine.Power * 1.1 * units.Power.Factor  //
                          : engine.Torque * 1.1 * units.Torque.Factor;
}

double HighestRevs(const Plotted& setUp) { return EngineOf(setUp.car).PowerRPM * 1.25; }

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

/// The points of a set-up's curves.
class CurvePoints {
public:
    CurvePoints(const Plotted& setUp, const PlotFrame& frame, PlotState& points)
        : engine_(EngineOf(setUp.car)), curve_(setUp.curve), frame_(frame), points_(points) {
        StoreLine();
        StoreCubic();
    }

private:
    void StoreTorque(std::size_t point, double revs, double torque) {
        points_.TorquePlotX[point] = static_cast<float>(revs * frame_.sx);
        points_.TorquePlotY[point] = static_cast<float>(torque * frame_.sy * units.Torque.Factor);
    }

    /// @param torque  at `revs`, which makes the power there
    void StorePower(std::size_t point, double revs, double torque) {
        const double power = torque * revs / PowerConstant;
        points_.PowerPlotX[point] = static_cast<float>(revs * frame_.sx);
        points_.PowerPlotY[point] = static_cast<float>(power * frame_.sy * units.Power.Factor);
    }

    /// Torque is straight below its peak, power is not. The last two points of power fall on the same engine speed.
    void StoreLine() {
        constexpr int kSteps = 16;
        const double range = engine_.TorqueRPM - engine_.IdleRPM;
        StoreTorque(0, engine_.IdleRPM, LowerTorque(engine_, engine_.IdleRPM));
        for (int i = 0; i <= kSteps; ++i) {
            const double revs = (i * range) / kSteps + engine_.IdleRPM;
            StorePower(static_cast<std::size_t>(i), revs, LowerTorque(engine_, revs));
        }
        const double peak = LowerTorque(engine_, engine_.TorqueRPM);
        StoreTorque(1, engine_.TorqueRPM, peak);
        StorePower(kPowerLinePoints - 1, engine_.TorqueRPM, peak);
    }

    void StoreCubic() {
        const double step = (engine_.PowerRPM * 1.2 - engine_.TorqueRPM) / kCubicPoints;
        double revs = engine_.TorqueRPM;
        for (std::size_t i = 0; i < kCubicPoints; ++i) {
            revs += step;
            const double torque = curve_.Cubic(revs);
            StoreTorque(kTorqueLinePoints + i, revs, torque);
            StorePower(kPowerLinePoints + i, revs, torque);
        }
    }

    const Engine engine_;
    const EngineCurve& curve_;
    const PlotFrame& frame_;
    PlotState& points_;
};

template <std::size_t Points>
void DrawCurve(Canvas& plot, Meaning meaning, const std::array<float, Points>& x, const std::array<float, Points>& y,
               Rgb colour) {
    for (std::size_t i = 0; i + 1 < Points; ++i) {
        plot.Line(meaning, kLeftMargin + x[i], kBaseLine - y[i], kLeftMargin + x[i + 1], kBaseLine - y[i + 1], colour);
    }
}

void DrawCurves(Canvas& plot, const Plotted& setUp, const PlotState& points) {
    const bool failed = setUp.curve.CurveFitFailed;
    const Rgb torqueColour = failed ? kRed : kBlue;
    const Rgb powerColour = failed ? kRed : kGreen;
    plot.SetLineWidth(2);
    const Meaning torque{Role::Torque, setUp.CurveStanding()};
    const Meaning power{Role::Power, setUp.CurveStanding()};
    DrawCurve(plot, torque, points.TorquePlotX, points.TorquePlotY, torqueColour);
    DrawCurve(plot, power, points.PowerPlotX, points.PowerPlotY, powerColour);
    plot.SetLineWidth(1);
    AddNameOf(plot, torque, CurveName(Zolv.InfoLabel[kInfoTorque]), AxisUnit(units.Torque.Suffix));
    AddNameOf(plot, power, CurveName(Zolv.InfoLabel[kInfoPower]), AxisUnit(units.Power.Suffix));
}

}  // namespace

void DrawEnginePlot() {
    gearing.Curve = vehicle.Curve;
    const PlottedSetUps setUps;
    const PlotFrame frame{.sx = kWidest / setUps.Largest(HighestRevs), .sy = kBaseLine / setUps.Largest(HighestPeak)};
    Canvas& plot = Zolv.TorquePowerPlot.Draw();
    plot.Clear();
    DrawEngineGrid(plot, frame);
    setUps.ForEach([&](const Plotted& setUp) {
        PlotState ofHeld;
        PlotState& points = setUp.standing == Standing::Held ? ofHeld : plots;
        const CurvePoints stored(setUp, frame, points);
        DrawCurves(plot, setUp, points);
    });
    setUps.AddLegend(plot, Role::Torque);
}

}  // namespace zolv
