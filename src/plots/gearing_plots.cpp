#include "plots/gearing_plots.h"

#include "fields/windows.h"
#include "plots/run_plots.h"
#include "plots/speed_plot.h"
#include "plots/torque_plot.h"
#include "text/texts.h"
#include "units/option_state.h"

namespace zolv {
namespace {

/// Whether the list shows the graphs of that row, told by the exact name.
bool IsChosen(std::size_t row) { return Zolv.Select_Graphs.Text() == texts.GraphNames[row]; }

/// A redraw must not cover the table, which is why a list that shows neither page of canvases hides all four.
void ShowChosenCanvases() {
    for (CanvasField* canvas : {&Zolv.SpeedPlot, &Zolv.TorquePlot}) canvas->SetVisible(IsChosen(0));
    for (CanvasField* canvas : {&Zolv.TractiveEffortPlot, &Zolv.SpeedTimeGraph}) canvas->SetVisible(IsChosen(1));
}

}  // namespace

void DrawGearingPlots() {
    for (CanvasField* canvas : {&Zolv.SpeedPlot, &Zolv.TorquePlot, &Zolv.TractiveEffortPlot, &Zolv.SpeedTimeGraph}) {
        canvas->Draw().Clear();
    }
    DrawSpeedPlot();
    DrawTorquePlot();
    if (options.AccelerationOn) {
        DrawTractiveEffortPlot();
        DrawSpeedTimeGraph();
    }
    ShowChosenCanvases();
}

void ShowChosenGraph() {
    if (!IsChosen(0) && !IsChosen(1) && !IsChosen(2)) return;
    ShowChosenCanvases();
    Zolv.AccelerationData.SetVisible(IsChosen(2));
}

}  // namespace zolv
