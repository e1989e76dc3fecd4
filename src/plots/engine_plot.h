#pragma once

#include <array>

namespace zolv {

/// The curves of the engine plot as offsets from its origin, in canvas units. The straight line below peak torque takes
/// two points of the torque curve, the cubic above it 16; power has 18 points and 16.
struct PlotState {
    std::array<float, 18> TorquePlotX{}, TorquePlotY{};
    std::array<float, 34> PowerPlotX{}, PowerPlotY{};
};
extern PlotState plots;

/// Draws the engine of the car in use, torque and power against engine speed on one numerical axis. From then on the
/// acceleration run and the torque plot go by this curve: between a change of car and this they still go by the old
/// one.
///
/// Reads:  vehicle.CurrentCar, vehicle.Curve, units.Power, units.Torque
/// Writes: gearing.Curve, plots, TorquePowerPlot
void DrawEnginePlot();

}  // namespace zolv
