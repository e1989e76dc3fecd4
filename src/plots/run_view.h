#pragma once

#include "drawing/canvas.h"

/// What explains the run beside its graphs: the forces over the speed, the log, the advice on the shift points. What is
/// not in view is not worked out and holds nothing.
namespace zolv {

/// The rows of Select_RunView.
enum class RunView : int { Graphs, Forces, Log };
[[nodiscard]] RunView PresentRunView();

/// Works out anew what is in view, and empties what is not: ForcePlot and RunLog are in view while their row is picked,
/// ShiftAdvice while the page of the gearing is in front.
/// Reads:  Select_RunView, Page, and what DrawForcePlot, ShowRunLog and ShowShiftAdvice read
/// Writes: ForcePlot, RunLog, ShiftAdvice
void RefreshRunView();

}  // namespace zolv
