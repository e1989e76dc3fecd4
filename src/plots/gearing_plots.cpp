#include "plots/gearing_plots.h"

#include "desk/held.h"
#include "fields/all_windows.h"
#include "plots/run_plots.h"
#include "plots/run_view.h"
#include "plots/speed_plot.h"
#include "plots/torque_plot.h"
#include "text/texts.h"
#include "units/option_state.h"

namespace zolv {
namespace {

/// Whether the list picks the graphs of that row, told by the exact name.
bool IsPicked(std::size_t row) { return Zolv.Select_Graphs.Text() == texts.GraphNames[row]; }

/// Whether they are to be seen.
bool IsChosen(std::size_t row) { return PresentRunView() == RunView::Graphs && IsPicked(row); }

/// A redraw must not cover the table, which is why a list that shows neither page of canvases hides all four.
void ShowChosenCanvases() {
    for (CanvasField* canvas : {&Zolv.SpeedPlot, &Zolv.TorquePlot}) canvas->SetVisible(IsChosen(0));
    for (CanvasField* canvas : {&Zolv.TractiveEffortPlot, &Zolv.SpeedTimeGraph}) canvas->SetVisible(IsChosen(1));
    Zolv.TimeDifference.SetVisible(IsChosen(1) && desk.Held != nullptr);
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
    RefreshRunView();
}

void ShowChosenGraph() {
    if (!IsPicked(0) && !IsPicked(1) && !IsPicked(2)) return;
    ShowChosenCanvases();
    Zolv.AccelerationData.SetVisible(IsChosen(2));
}

void ShowChosenRunView() {
    ShowChosenCanvases();
    Zolv.AccelerationData.SetVisible(IsChosen(2));
    Zolv.ForcePlot.SetVisible(PresentRunView() == RunView::Forces);
    Zolv.RunLog.SetVisible(PresentRunView() == RunView::Log);
    RefreshRunView();
}

}  // namespace zolv
