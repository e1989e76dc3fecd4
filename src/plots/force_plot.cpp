#include "plots/force_plot.h"

#include <algorithm>
#include <utility>

#include "drawing/chart.h"
#include "gearing/gearing_state.h"
#include "model/wheel_forces.h"
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

void AddGear(Chart& chart, const GearForces& gear, bool doubtful) {
    ChartSeries series{.name = texts.GearNames[static_cast<std::size_t>(gear.Gear)],
                       .role = GearRole(gear.Gear),
                       .doubtful = doubtful};
    for (const WheelPoint& point : gear.Points) series.points.push_back(Shown(point.Speed, point.Force));
    chart.series.push_back(std::move(series));
    if (gear.Shift) chart.dots.push_back(DotAt(*gear.Shift, gear.Gear, true));
    if (gear.Crossing) chart.dots.push_back(DotAt(*gear.Crossing, gear.Gear + 1, false));
}

void AddRoad(Chart& chart, const AccelerationSetup& setup, double fastest) {
    constexpr int kSteps = 60;
    ChartSeries resistance{.name = texts.TextColResistance, .role = Role::Resistance};
    ChartSeries grip{.name = words["ForceGrip"], .role = Role::GripLimit};
    for (int step = 0; step <= kSteps; ++step) {
        const double speed = fastest * step / kSteps;
        const RoadForces road = RoadForcesAt(setup, speed);
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

}  // namespace

void DrawForcePlot(Canvas& plot) {
    const AccelerationSetup setup = PresentAccelerationSetup();
    const ForcesOverSpeed forces = ForcesOver(setup);
    const double fastest = FastestShown(forces);
    const ChartPoint end = Shown(fastest, StrongestForce(forces) * 1.05);
    Chart chart;
    chart.x = {.title = texts.TextColSpeed, .unit = AxisUnit(units.Speed.Suffix), .to = end.x};
    chart.y = {.title = words["Force"], .unit = AxisUnit(units.Force.Suffix), .to = end.y};
    AddRoad(chart, setup, fastest);
    for (const GearForces& gear : forces.Gears) AddGear(chart, gear, setup.Curve.CurveFitFailed);
    if (forces.Reached) {
        chart.marks.push_back({.name = NameOf(*forces.Reached),
                               .role = Role::TopSpeed,
                               .value = forces.Reached->Speed * units.Speed.Factor});
    }
    DrawChart(chart, plot);
    if (!forces.Reached) plot.Print(words["DoesNotMoveOff"]);
}

}  // namespace zolv
