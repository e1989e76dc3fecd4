#include "plots/air_plot.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "aero/aero_state.h"
#include "desk/held.h"
#include "drawing/chart.h"
#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "model/air_sheet.h"
#include "plots/plot_frame.h"
#include "plots/plotted.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

/// Downforce and drag up to a speed [m/s].
std::vector<ChartSeries> CurvesOf(const AirProfile& car, double fastest, bool held) {
    constexpr int kSteps = 60;
    const Standing standing = held ? Standing::Held : Standing::Present;
    ChartSeries drag{.name = NameIn(standing, CurveName(Zolv.AeroLabel[kAeroDrag])), .role = Role::Drag, .held = held};
    ChartSeries downforce{.name = NameIn(standing, words["Downforce"]), .role = Role::Downforce, .held = held};
    for (int step = 0; step <= kSteps; ++step) {
        const double speed = fastest * step / kSteps;
        const AirForces forces = ForcesAt(speed, car);
        drag.points.push_back({speed * units.Speed.Factor, forces.TotalDrag * units.Force.Factor});
        downforce.points.push_back({speed * units.Speed.Factor, -forces.TotalLift * units.Force.Factor});
    }
    return {std::move(downforce), std::move(drag)};
}

std::vector<ChartSeries> HeldCurves(double fastest) {
    if (desk.Held == nullptr) return {};
    const SetUp& held = desk.Held->SetUp;
    return CurvesOf(ProfileOf(held.Car, FittingsOf(held.Car, held.FrontWingAngle, held.RearWingAngle)), fastest, true);
}

}  // namespace

void DrawAirPlot(Canvas& plot) {
    const double present = aero.FixedSpeedMode ? static_cast<double>(aero.TopSpeed) : aero.AeroSpeedValue;
    const double fastest = std::max(static_cast<double>(aero.TopSpeed), present);
    std::vector<ChartSeries> series = HeldCurves(fastest);
    std::ranges::move(CurvesOf(aero.Profile(), fastest, false), std::back_inserter(series));
    DrawChart({.x = {.title = texts.TextColSpeed, .unit = AxisUnit(units.Speed.Suffix)},
               .y = {.title = words["Force"], .unit = AxisUnit(units.Force.Suffix)},
               .series = std::move(series),
               .marks = {{.name = units.Speed.Text(present), .value = present * units.Speed.Factor}}},
              plot);
    PlottedSetUps().AddLegend(plot, Role::Drag);
}

}  // namespace zolv
