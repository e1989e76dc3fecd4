#include "plots/torque_plot.h"

#include <array>

#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "model/engine_curve.h"
#include "plots/plot_frame.h"
#include "plots/plotted.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/option_state.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

constexpr std::size_t kSamples = 33;

/// A curve as offsets from the origin of the plot, in canvas units.
struct Curve {
    std::array<double, kSamples> x, y;
};

/// The engine as 0, the gears as 1 to 6.
using Curves = std::array<Curve, kGears + 1>;

/// The engine's own curve reaches further than the wheels' whenever the gearing reduces.
double LongestRevs(const Plotted& setUp) {
    const double engineRevs = setUp.car.PowerRPM * 1.3;
    const double ratio = setUp.gears->GearRatio[setUp.TopGear()];
    const double finalDrive = setUp.gears->FinalDrive;
    if (options.EngineTorqueOn && static_cast<float>(finalDrive * ratio) > 1.0F) return engineRevs;
    return engineRevs / ratio / finalDrive;
}

/// In the unit shown.
double HighestTorque(const Plotted& setUp) {
    const CarRecord& car = setUp.car;
    const Gearbox& box = *setUp.gears;
    return static_cast<double>(car.Torque) * box.GearRatio[1] * box.FinalDrive * car.Efficiency * 1.05 *
           units.Torque.Factor;
}

/// Torque at one engine speed; at peak torque the cubic.
double SampleTorque(const Engine& engine, const EngineCurve& curve, double revs) {
    return revs < engine.TorqueRPM ? LowerTorque(engine, revs) : curve.Cubic(revs);
}

Curves SampleCurves(const PlotFrame& frame, const Plotted& setUp) {
    const Gearbox& box = *setUp.gears;
    const Engine engine = EngineOf(setUp.car);
    const double efficiency = setUp.car.Efficiency;
    const double finalDrive = box.FinalDrive;
    const double step = (engine.PowerRPM * 1.2 - engine.IdleRPM) / (kSamples - 1);
    Curves curves;
    double revs = engine.IdleRPM;  // summed up, not multiplied: the last digits are those of the sum
    for (std::size_t k = 0; k < kSamples; ++k, revs += step) {
        const double torque = SampleTorque(engine, setUp.curve, revs);
        curves[0].x[k] = revs * frame.sx;
        curves[0].y[k] = torque * frame.sy * units.Torque.Factor;
        for (std::size_t gear = 1; gear <= kGears; ++gear) {
            const double ratio = box.GearRatio[gear];
            curves[gear].x[k] = revs * frame.sx / ratio / finalDrive;
            curves[gear].y[k] = torque * frame.sy * efficiency * ratio * finalDrive * units.Torque.Factor;
        }
    }
    return curves;
}

void DrawCurve(Canvas& plot, Meaning meaning, const Curve& curve, Rgb colour) {
    for (std::size_t k = 0; k + 1 < kSamples; ++k) {
        plot.Line(meaning, curve.x[k] + kLeftMargin, kPlotHeight - curve.y[k], curve.x[k + 1] + kLeftMargin,
                  kPlotHeight - curve.y[k + 1], colour);
    }
}

void DrawCurves(Canvas& plot, const PlotFrame& frame, const Plotted& setUp) {
    const Curves curves = SampleCurves(frame, setUp);
    const bool failed = setUp.curve.CurveFitFailed;
    for (std::size_t i = options.EngineTorqueOn ? 0 : 1; i <= setUp.TopGear(); ++i) {
        const bool isEngine = i == 0;
        const Rgb colour = failed ? kRed : isEngine ? kBlue : kBlack;
        plot.SetLineWidth(isEngine ? 3 : 2);
        const Meaning meaning{isEngine ? Role::Engine : GearRole(static_cast<int>(i)), setUp.CurveStanding()};
        DrawCurve(plot, meaning, curves[i], colour);
        AddNameOf(plot, meaning, isEngine ? words["EngineCurve"] : texts.GearNames[i]);
    }
}

}  // namespace

void DrawTorquePlot() {
    const PlottedSetUps setUps = GearedSetUps();
    const PlotFrame frame{.sx = kPlotWidth / setUps.Largest(LongestRevs),
                          .sy = kPlotHeight / setUps.Largest(HighestTorque)};
    Canvas& plot = Zolv.TorquePlot.Draw();
    const std::string torqueName = CurveName(Zolv.InfoLabel[kInfoTorque]);
    // The scale holds the factor of the unit already, so that the data of this plot are in the unit shown.
    DrawGrid(plot, frame,
             {.title = options.EngineTorqueOn ? words["WheelOrEngineSpeed"] : words["WheelSpeed"],
              .step = options.TorquePlotXScale,
              .suffix = texts.RpmSuffix},
             {.title = torqueName, .step = options.TorquePlotYScale, .suffix = units.Torque.Suffix});

    setUps.ForEach([&](const Plotted& setUp) { DrawCurves(plot, frame, setUp); });
    setUps.AddLegend(plot, Role::Gear1);
}

}  // namespace zolv
