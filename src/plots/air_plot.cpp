#include "plots/air_plot.h"

#include <algorithm>
#include <utility>

#include "aero/aero_state.h"
#include "drawing/chart.h"
#include "fields/all_windows.h"
#include "plots/plot_frame.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/unit_state.h"

namespace zolv {

void DrawAirPlot(Canvas& plot) {
    constexpr int kSteps = 60;
    const double present = aero.FixedSpeedMode ? static_cast<double>(aero.TopSpeed) : aero.AeroSpeedValue;
    const double fastest = std::max(static_cast<double>(aero.TopSpeed), present);
    const AirProfile car = aero.Profile();
    ChartSeries drag{.name = CurveName(Zolv.AeroLabel[3]), .role = Role::Drag};
    ChartSeries downforce{.name = words["Downforce"], .role = Role::Downforce};
    for (int step = 0; step <= kSteps; ++step) {
        const double speed = fastest * step / kSteps;
        const AirForces forces = ForcesAt(speed, car);
        drag.points.push_back({speed * units.Speed.Factor, forces.TotalDrag * units.Force.Factor});
        downforce.points.push_back({speed * units.Speed.Factor, -forces.TotalLift * units.Force.Factor});
    }
    DrawChart({.x = {.title = texts.TextColSpeed, .unit = AxisUnit(units.Speed.Suffix)},
               .y = {.title = words["Force"], .unit = AxisUnit(units.Force.Suffix)},
               .series = {std::move(downforce), std::move(drag)},
               .marks = {{.name = units.Speed.Text(present), .value = present * units.Speed.Factor}}},
              plot);
}

}  // namespace zolv
