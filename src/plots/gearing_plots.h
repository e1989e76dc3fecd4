#pragma once

namespace zolv {

/// Redraws the four plots of the gearing page from the results of the gearing in the direction in force; the two of the
/// acceleration run stay blank while options.AccelerationOn is false. Then shows those that Select_Graphs asks for.
/// Reads:  Select_Graphs, and what DrawSpeedPlot, DrawTorquePlot, DrawTractiveEffortPlot and DrawSpeedTimeGraph read
/// Writes: SpeedPlot, TorquePlot, TractiveEffortPlot, SpeedTimeGraph
void DrawGearingPlots();

/// Another page of graphs was picked: shows its canvases, or the table of the run, and hides the others.
/// Reads:  Select_Graphs
/// Writes: whether the four canvases and AccelerationData are visible
void ShowChosenGraph();

}  // namespace zolv
