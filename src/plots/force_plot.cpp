#include "plots/force_plot.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "desk/held.h"
#include "drawing/chart.h"
#include "gearing/gearing_state.h"
#include "model/wheel_forces.h"
#include "plots/plotted.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

ChartPoint Shown(double speed, double force) { return {speed * units.Speed.Factor, force * units.Force.Factor}; }

ChartDot DotAt(const WheelPoint& point, int gear, bool open) {
    const ChartPoint at = Shown(point.Speed, point.Put);
    return {at.x, at.y, GearRole(gear), open};
}

/// What is drawn of one set-up.
struct Drive {
    const AccelerationSetup& setup;
    const ForcesOverSpeed& forces;
    Standing standing = Standing::Present;

    [[nodiscard]] bool IsHeld() const { return standing == Standing::Held; }

    [[nodiscard]] ChartSeries Series(const std::string& name, Role role) const {
        return {.name = NameIn(standing, name), .role = role, .held = IsHeld()};
    }
};

void AddGear(Chart& chart, const Drive& drive, const GearForces& gear) {
    ChartSeries series = drive.Series(GearName(gear.Gear), GearRole(gear.Gear));
    series.doubtful = drive.setup.Curve.CurveFitFailed;
    for (const WheelPoint& point : gear.Points) series.points.push_back(Shown(point.Speed, point.Force));
    chart.series.push_back(std::move(series));
    if (drive.IsHeld()) return;
    if (gear.Shift) chart.dots.push_back(DotAt(*gear.Shift, gear.Gear, true));
    if (gear.Crossing) chart.dots.push_back(DotAt(*gear.Crossing, gear.Gear + 1, false));
}

void AddRoad(Chart& chart, const Drive& drive, double fastest) {
    constexpr int kSteps = 60;
    ChartSeries resistance = drive.Series(texts.TextColResistance, Role::Resistance);
    ChartSeries grip = drive.Series(words["ForceGrip"], Role::GripLimit);
    for (int step = 0; step <= kSteps; ++step) {
        const double speed = fastest * step / kSteps;
        const RoadForces road = RoadForcesAt(drive.setup, speed);
        resistance.points.push_back(Shown(speed, road.Resistance));
        grip.points.push_back(Shown(speed, road.GripLimit));
    }
    chart.series.push_back(std::move(resistance));
    chart.series.push_back(std::move(grip));
}

std::string NameOf(const ReachedSpeed& reached) {
    const std::string speed = units.Speed.Text(reached.Speed);
    return reached.AtRevLimit ? words.Sentence("ForceReachedAtLimiter", {speed})
                              : words.Sentence("ForceReached", {speed});
}

/// As far as the gears and the driver's changes reach; of what lies far beyond the speed reached, a quarter of that.
double FastestShown(const ForcesOverSpeed& forces) {
    double fastest = 0;
    double needed = forces.Reached ? forces.Reached->Speed * 1.25 : 0;
    for (const GearForces& gear : forces.Gears) {
        fastest = std::max(fastest, gear.Points.back().Speed);
        if (gear.Shift) needed = std::max(needed, gear.Shift->Speed * 1.05);
    }
    return forces.Reached ? std::min(fastest, needed) : fastest;
}

double StrongestForce(const ForcesOverSpeed& forces) {
    double strongest = 0;
    for (const GearForces& gear : forces.Gears) {
        for (const WheelPoint& point : gear.Points) strongest = std::max(strongest, point.Force);
    }
    return strongest;
}

void AddDrive(Chart& chart, const Drive& drive, double fastest) {
    AddRoad(chart, drive, fastest);
    for (const GearForces& gear : drive.forces.Gears) AddGear(chart, drive, gear);
    if (!drive.forces.Reached) return;
    chart.marks.push_back({.name = NameIn(drive.standing, NameOf(*drive.forces.Reached)),
                           .role = Role::TopSpeed,
                           .value = drive.forces.Reached->Speed * units.Speed.Factor,
                           .held = drive.IsHeld()});
}

/// A limit that lies above all that is shown has no curve to be read from.
void TellGripAbove(Canvas& plot, const Chart& chart) {
    double lowest = std::numeric_limits<double>::infinity();
    for (const ChartSeries& series : chart.series) {
        if (series.role != Role::GripLimit || series.held) continue;
        for (const ChartPoint& point : series.points) lowest = std::min(lowest, point.y);
    }
    if (!std::isfinite(lowest) || lowest <= chart.y.to) return;
    const std::string force = units.Force.Text(lowest / units.Force.Factor);
    plot.AddLegend({words.Sentence("ForceGripAbove", {force}), Role::GripLimit});
}

bool HasHeldForces() { return desk.Held != nullptr && desk.Held->Sheet.WrongOrder.empty(); }

}  // namespace

void DrawForcePlot(Canvas& plot) {
    const AccelerationSetup setup = PresentAccelerationSetup();
    const ForcesOverSpeed forces = ForcesOver(setup);
    double fastest = FastestShown(forces);
    double strongest = StrongestForce(forces);
    if (HasHeldForces()) {
        fastest = std::max(fastest, FastestShown(desk.Held->Forces));
        strongest = std::max(strongest, StrongestForce(desk.Held->Forces));
    }
    const ChartPoint end = Shown(fastest, strongest * 1.05);
    Chart chart;
    chart.x = {.title = texts.TextColSpeed, .unit = AxisUnit(units.Speed.Suffix), .to = end.x};
    chart.y = {.title = words["Force"], .unit = AxisUnit(units.Force.Suffix), .to = end.y};
    if (HasHeldForces()) AddDrive(chart, {desk.Held->Start, desk.Held->Forces, Standing::Held}, fastest);
    AddDrive(chart, {setup, forces}, fastest);
    DrawChart(chart, plot);
    TellGripAbove(plot, chart);
    if (HasHeldForces()) PlottedSetUps().AddLegend(plot, Role::Gear1);
    if (!forces.Reached) plot.Print(words["DoesNotMoveOff"]);
}

}  // namespace zolv
