#pragma once

namespace zolv {

/// Redraws the four plots of the gearing page from the results of the gearing in the direction in force; the two of the
/// acceleration run stay blank while options.AccelerationOn is false. Then shows those that Select_Graphs asks for,
/// and refreshes what explains the run.
/// Reads:  Select_Graphs, and what DrawSpeedPlot, DrawTorquePlot, DrawTractiveEffortPlot, DrawSpeedTimeGraph and
///         RefreshRunView read
/// Writes: SpeedPlot, TorquePlot, TractiveEffortPlot, SpeedTimeGraph, and what RefreshRunView writes
void DrawGearingPlots();

/// Another page of graphs was picked: shows its canvases, or the table of the run, and hides the others.
/// Reads:  Select_Graphs, Select_RunView
/// Writes: whether the four canvases and AccelerationData are visible
void ShowChosenGraph();

/// Another row of the run's views was picked: shows the graphs, the forces or the log, hides the others, and works out
/// what has come into view.
/// Reads:  Select_RunView, Select_Graphs, and what RefreshRunView reads
/// Writes: which of the canvases, AccelerationData, ForcePlot and RunLog are visible; what RefreshRunView writes
void ShowChosenRunView();

}  // namespace zolv
