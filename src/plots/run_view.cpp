#include "plots/run_view.h"

#include "fields/all_windows.h"
#include "gearing/run_log_page.h"
#include "plots/force_plot.h"

namespace zolv {
namespace {

constexpr int kGearingPage = 1;

}  // namespace

RunView PresentRunView() { return static_cast<RunView>(Zolv.Select_RunView.Picked()); }

void RefreshRunView() {
    const RunView view = PresentRunView();
    if (view == RunView::Forces) {
        DrawForcePlot(Zolv.ForcePlot.Draw());
    } else if (!Zolv.ForcePlot.Drawing().Operations().empty()) {
        Zolv.ForcePlot.Draw().Clear();
    }
    if (view == RunView::Log) {
        ShowRunLog();
    } else {
        Zolv.RunLog.SetText("");
    }
    if (Zolv.Page[kGearingPage].InFront()) {
        ShowShiftAdvice();
    } else {
        Zolv.ShiftAdvice.SetCaption("");
    }
}

}  // namespace zolv
