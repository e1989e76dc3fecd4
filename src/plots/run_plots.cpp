#include "plots/run_plots.h"

#include <algorithm>
#include <optional>

#include "desk/held.h"
#include "drawing/chart.h"
#include "fields/all_windows.h"
#include "model/run_times.h"
#include "plots/plot_frame.h"
#include "plots/plotted.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/option_state.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

constexpr std::string_view kSeconds = " s";

int LastRow(const Plotted& setUp) { return static_cast<int>(setUp.run.size()) - 1; }

/// Canvas units for one second of the longest run.
double TimeScale(const PlottedSetUps& setUps) {
    return (kPlotWidth - kCurveReserve) / (setUps.Largest(LastRow) * kTimeStep);
}

const AccelRow& RowAt(const Plotted& setUp, int row) { return setUp.run[static_cast<std::size_t>(row)]; }

/// One curve of a run: `column` over time, every `stride` rows.
struct RunCurve {
    AccelColumn column;
    Meaning meaning;
    Rgb colour;
    int stride;
};

/// Draws the piece of a curve that begins at a row.
void DrawSegment(Canvas& plot, const PlotFrame& frame, const Plotted& setUp, int from, const RunCurve& curve) {
    const int to = from + curve.stride;
    const auto x = [&](int row) { return (row * frame.sx * kTimeStep) + kLeftMargin; };
    plot.Line(curve.meaning, x(from), frame.Y(RowAt(setUp, from)[curve.column]), x(to),
              frame.Y(RowAt(setUp, to)[curve.column]), curve.colour);
}

/// The largest force to be expected [N]: first gear's at peak torque, as far as the tyres can take it, or the load of
/// an axle where the loads are drawn.
double LargestForce(const Plotted& setUp) {
    const Gearbox& box = *setUp.gears;
    const CarRecord& car = setUp.car;
    const bool rear = car.IsRearDriven();
    const double radius = rear ? setUp.tyres.RearUnloadedRadius : setUp.tyres.FrontUnloadedRadius;
    const double load = rear ? setUp.rearLoad : setUp.frontLoad;
    const double torque = static_cast<double>(car.Torque) * car.Efficiency * box.GearRatio[1] * box.FinalDrive;
    double force = torque / (radius * 0.95);
    if (force > load * 1.6) force = load * 1.6;
    if (!options.VLoadsOn) return force;
    const double largerLoad = std::max(setUp.frontLoad, setUp.rearLoad);
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

/// Both set-ups, or nothing where the present one has not run; a held one that has not run is left out.
std::optional<PlottedSetUps> SetUpsThatRan() {
    PlottedSetUps setUps = GearedSetUps();
    if (LastRow(setUps.Present()) <= 0) return {};
    if (setUps.Held() && LastRow(*setUps.Held()) <= 0) setUps.DropHeld();
    return setUps;
}

void DrawForces(Canvas& plot, const PlotFrame& frame, const Plotted& setUp) {
    constexpr int kStride = 3;
    const auto isDrawn = [](const ForceCurve& curve) { return !curve.isLoad || options.VLoadsOn; };
    for (int row = 0; row < LastRow(setUp) - kStride; row += kStride) {
        for (const ForceCurve& curve : kForceCurves) {
            if (!isDrawn(curve)) continue;
            DrawSegment(plot, frame, setUp, row, {curve.column, {curve.role, setUp.standing}, curve.colour, kStride});
        }
    }
    for (const ForceCurve& curve : kForceCurves) {
        if (isDrawn(curve)) AddNameOf(plot, {curve.role, setUp.standing}, curve.name());
    }
}

void DrawSpeed(Canvas& plot, const PlotFrame& frame, const Plotted& setUp) {
    constexpr int kStride = 8;
    const RunCurve curve{AccelColumn::Speed, {Role::Speed, setUp.standing}, kBlack, kStride};
    for (int row = 0; row < LastRow(setUp) - kStride; row += kStride) DrawSegment(plot, frame, setUp, row, curve);
    AddNameOf(plot, curve.meaning, texts.TextColSpeed);
}

/// How much later the present set-up reaches each speed that both reach.
ChartSeries TimeLost(const Plotted& present) {
    constexpr int kStride = 4;
    const RunTimes times(present.run);
    ChartSeries lost{.name = words["TimeLost"], .role = Role::Speed};
    for (int row = 0; row <= LastRow(present); row += kStride) {
        const double speed = RowAt(present, row)[AccelColumn::Speed];
        const std::optional<double> here = times.At(speed);
        const std::optional<double> held = desk.Held->Times.At(speed);
        if (here && held) lost.points.push_back({speed * units.Speed.Factor, *here - *held});
    }
    return lost;
}

/// Towards the most that the slower of the two reaches, all the rest of its run is lost at once; what a driver looks
/// for, tenths at the speeds below, sets the scale.
ChartAxis AxisOfTimeLost(const std::vector<ChartPoint>& points) {
    constexpr double kToldOf = 0.96;  // of the highest speed
    constexpr double kRoom = 1.15;
    ChartAxis axis{.title = words["TimeLost"], .unit = AxisUnit(kSeconds)};
    for (const ChartPoint& point : points) {
        if (point.x > points.back().x * kToldOf) break;
        axis.from = std::min(axis.from, point.y * kRoom);
        axis.to = std::max(axis.to, point.y * kRoom);
    }
    return axis;
}

void DrawTimeDifference(Canvas& plot, const Plotted& present) {
    Chart chart;
    chart.x = {.title = texts.TextColSpeed, .unit = AxisUnit(units.Speed.Suffix)};
    chart.series.push_back(TimeLost(present));
    chart.y = AxisOfTimeLost(chart.series.front().points);
    DrawChart(chart, plot);
}

}  // namespace

void DrawTractiveEffortPlot() {
    const std::optional<PlottedSetUps> setUps = SetUpsThatRan();
    if (!setUps) return;
    const PlotFrame frame{.sx = TimeScale(*setUps), .sy = kPlotHeight / setUps->Largest(LargestForce)};
    Canvas& plot = Zolv.TractiveEffortPlot.Draw();
    DrawGrid(plot, frame, {.title = texts.TextColTime, .step = options.TractivePlotXScale, .suffix = kSeconds},
             {words["Force"], options.TractivePlotYScale, units.Force.Factor, units.Force.Suffix});
    plot.SetLineWidth(2);
    setUps->ForEach([&](const Plotted& setUp) { DrawForces(plot, frame, setUp); });
    setUps->AddLegend(plot, Role::DrivingForce);
}

void DrawSpeedTimeGraph() {
    const std::optional<PlottedSetUps> setUps = SetUpsThatRan();
    if (!setUps) return;
    Canvas& plot = Zolv.SpeedTimeGraph.Draw();
    if (setUps->Held() && Zolv.TimeDifference.Checked()) return DrawTimeDifference(plot, setUps->Present());
    const double fastest =
        setUps->Largest([](const Plotted& setUp) { return RowAt(setUp, LastRow(setUp))[AccelColumn::Speed] * 1.1; });
    const PlotFrame frame{.sx = TimeScale(*setUps), .sy = kPlotHeight / fastest};
    DrawGrid(plot, frame, {.title = texts.TextColTime, .step = options.SpeedGraphXScale, .suffix = kSeconds},
             {texts.TextColSpeed, options.SpeedGraphYScale, units.Speed.Factor, units.Speed.Suffix});
    plot.SetLineWidth(2);
    setUps->ForEach([&](const Plotted& setUp) { DrawSpeed(plot, frame, setUp); });
    setUps->AddLegend(plot, Role::Speed);
}

}  // namespace zolv
