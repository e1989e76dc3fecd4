#include "studies/sweep_page.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "desk/present.h"
#include "drawing/svg.h"
#include "fields/all_windows.h"
#include "fields/guards.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "studies/study_text.h"
#include "studies/sweep_inputs.h"
#include "studies/sweep_names.h"
#include "studies/sweep_plot.h"
#include "studies/sweep_state.h"
#include "studies/sweep_table.h"
#include "text/number_text.h"
#include "text/words.h"

namespace zolv {
namespace {

using Said = SweepState::Said;

std::string FaultText(const SweepTask& task, const SweepSheet& sheet) {
    const SweepAxis& axis = sheet.FaultAxis == 0 ? task.First : *task.Second;
    const auto choice = ChoiceIn(task.Present, axis.Input);
    const std::string name = choice ? NameOf(*choice) : std::string();
    switch (sheet.Fault) {
        case SweepFault::FromAboveTo: return words.Sentence("SweepFromAboveTo", {name});
        case SweepFault::OutOfRange: {
            const ShownAs shown = ShownIn(choice->Quantity);
            return words.Sentence("SweepOutOfRange", {name, shown.Text(choice->Low), shown.Text(choice->High)});
        }
        case SweepFault::WrongSteps:
            return words.Sentence("SweepWrongSteps",
                                  {NumberText(kMostSweepSteps), NumberText(static_cast<double>(kMostSweepPoints))});
        case SweepFault::NoSuchInput: return words["SweepNoSuchInput"];
        case SweepFault::SameTwice: return words["SweepSameTwice"];
        case SweepFault::NoSuchResult:
        case SweepFault::None: break;
    }
    return {};
}

std::string StatusText() {
    const std::string car = sweep.Swept ? sweep.Swept->CarName : std::string();
    switch (sweep.Status) {
        case Said::Nothing: return {};
        case Said::Sweeping: return words.Sentence("SweepingOf", {car});
        case Said::Stopped: return words["SweepStopped"];
        case Said::Done: break;
    }
    const SweepRun& run = *sweep.Run;
    if (!run.Sheet.Best) return words.Sentence("SweptOf", {car});
    const PlottedSweep plotted(run);
    std::string at = plotted.First.Name + ' ' + plotted.First.Shown.Text(plotted.FirstOf(*run.Sheet.Best));
    if (plotted.Second)
        at += ", " + plotted.Second->Name + ' ' + plotted.Second->Shown.Text(plotted.SecondOf(*run.Sheet.Best));
    return words.Sentence("SweepBestOf", {car, plotted.Result.Shown.Text(run.Sheet.Values[*run.Sheet.Best]), at});
}

void ShowStatus() {
    std::string status = StatusText();
    const bool other =
        sweep.Status != Said::Nothing && sweep.Status != Said::Stopped && sweep.Swept && !LiesOnPages(*sweep.Swept);
    if (other) status += ' ' + words["SoughtAnother"];
    SweepPanel.Status.SetCaption(status);
    SweepPanel.Progress.SetCaption(sweep.Status == Said::Sweeping ? RoundedText(sweep.Done * 100, 0) + " %" : "");
}

void DrawPlot() {
    sweep.Drawn = PresentSetUp();
    DrawSweep(*sweep.Run, *sweep.Drawn, SweepPanel.Plot.Draw());
}

void ShowPointResult() {
    const PlottedSweep plotted(*sweep.Run);
    const std::size_t nearest = plotted.Nearest(sweep.Point[0], plotted.Second ? sweep.Point[1] : 0);
    SweepPanel.PointResult.SetCaption(plotted.Result.Name + ": " +
                                      plotted.Result.Shown.Text(sweep.Run->Sheet.Values[nearest]));
}

/// The names, numbers and units of the point, and its result.
void WritePoint() {
    const Raised quiet(sweep.WritingBoxes);
    const PlottedSweep plotted(*sweep.Run);
    SweepPanel.PointCaption.SetCaption(plotted.First.Name + ':');
    SweepPanel.Point.SetText(plotted.First.Shown.Number(sweep.Point[0]));
    SweepPanel.PointUnit.SetCaption(plotted.First.Shown.Unit);
    const bool two = plotted.Second.has_value();
    SweepPanel.PointCaption2.SetCaption(two ? plotted.Second->Name + ':' : "");
    if (two) SweepPanel.Point2.SetText(plotted.Second->Shown.Number(sweep.Point[1]));
    SweepPanel.PointUnit2.SetCaption(two ? plotted.Second->Shown.Unit : "");
    for (Field* field : {static_cast<Field*>(&SweepPanel.PointCaption2), static_cast<Field*>(&SweepPanel.Point2),
                         static_cast<Field*>(&SweepPanel.PointUnit2)}) {
        field->SetVisible(two);
    }
    ShowPointResult();
}

/// @param index  of the point among the values of the sweep
void TakePointAt(std::size_t index) {
    const PlottedSweep plotted(*sweep.Run);
    sweep.Point = {plotted.FirstOf(index), plotted.Second ? plotted.SecondOf(index) : 0};
}

void ShowRun() {
    if (!sweep.Run) return;
    SweepPanel.Table.SetText(TableText(RowsOf(*sweep.Run)));
    DrawPlot();
    WritePoint();
}

void EndSweep(const SweepTask& task, SweepSheet sheet) {
    sweep.Done = 0;
    if (sheet.Fault != SweepFault::None || sheet.Stopped) {
        sweep.Status = sheet.Stopped ? Said::Stopped : Said::Nothing;
        ShowStatus();
        if (!sheet.Stopped) ShowMessage(FaultText(task, sheet));
        return;
    }
    sweep.Run = {.Task = task, .Sheet = std::move(sheet)};
    sweep.Status = Said::Done;
    TakePointAt(sweep.Run->Sheet.Best.value_or(PlottedSweep(*sweep.Run).Nearest(*sweep.Swept)));
    ShowRun();
    ShowStatus();
    if (std::ranges::all_of(sweep.Run->Sheet.Values, [](double value) { return std::isnan(value); })) {
        ShowMessage(words["SweepNothing"]);
    }
}

/// A number of the point, on a step of its input and within its range.
double OnStep(double value, const SweepChoice& choice) {
    const double onStep = std::nearbyint(value / choice.Step) * choice.Step;
    return std::clamp(choice.Step < 1 ? Round(onStep, 3) : onStep, choice.Low, choice.High);
}

std::string AskForPath(const char* extension, const std::string& title, const std::string& kind) {
    const std::string pattern = std::string("*.") + extension;
    const std::string path = AskForFile({.forSaving = true,
                                         .title = title,
                                         .filterLabel = kind + " (" + pattern + ")",
                                         .presetName = pattern,
                                         .defaultExtension = extension,
                                         .proposedName = Zolv.Select_Car.Text()});
    return path == pattern ? std::string() : path;
}

void SaveAs(const std::string& path, std::string_view content) {
    if (path.empty()) return;
    const std::string reason = WriteTextFile(path, content);
    if (!reason.empty()) ShowMessage(CannotWrite(path, reason));
}

}  // namespace

void LoadSweep() { LoadSweepInputs(); }

void StartSweep() {
    sweepWork.Abandon();
    SweepTask task = PresentSweepTask();
    sweep.Run.reset();
    sweep.Drawn.reset();
    sweep.Swept = task.Present;
    sweep.Done = 0;
    sweep.Status = Said::Nothing;
    SweepPanel.Table.SetText("");
    SweepPanel.PointResult.SetCaption("");
    SweepPanel.Plot.Draw().Clear();
    const std::string message = NoSweepNumberMessage();
    if (message.empty()) sweep.Status = Said::Sweeping;
    ShowStatus();
    if (!message.empty()) return ShowMessage(message);
    sweepWork.Start([task = std::move(task)](const std::stop_token& stop, const Background::Tell& tell) {
        std::function<void(double)> watch;
        if (tell) {
            watch = [&](double done) {
                tell([done] {
                    sweep.Done = done;
                    ShowStatus();
                });
            };
        }
        SweepSheet sheet = Sweep(task, stop, watch);
        return [task, sheet = std::move(sheet)] { EndSweep(task, sheet); };
    });
}

void StopSweep() { sweepWork.Stop(); }

void ClickSweepPoint(double x, double y) {
    if (!sweep.Run) return;
    const PlottedSweep plotted(*sweep.Run);
    TakePointAt(plotted.Nearest(x / plotted.First.Shown.Factor, plotted.Second ? y / plotted.Second->Shown.Factor : 0));
    WritePoint();
    TakeOverSweepPoint();
}

void TakeSweepPoint() {
    if (!sweep.Run || sweep.WritingBoxes) return;
    const PlottedSweep plotted(*sweep.Run);
    sweep.Point[0] = Val(SweepPanel.Point.Text()) / plotted.First.Shown.Factor;
    if (plotted.Second) sweep.Point[1] = Val(SweepPanel.Point2.Text()) / plotted.Second->Shown.Factor;
    ShowPointResult();
}

void TakeOverSweepPoint() {
    if (!sweep.Run) return ShowMessage(words["NothingToTakeOver"]);
    const SweepTask& task = sweep.Run->Task;
    SetUp setUp = PresentSetUp();
    const auto first = ChoiceIn(setUp, task.First.Input);
    const auto second = task.Second ? ChoiceIn(setUp, task.Second->Input) : first;
    if (setUp.CarName != task.Present.CarName || !first || !second) {
        return ShowMessage(words.Sentence("SweepOfAnother", {task.Present.CarName}));
    }
    SetInput(setUp, task.First.Input, OnStep(sweep.Point[0], *first));
    if (task.Second) SetInput(setUp, task.Second->Input, OnStep(sweep.Point[1], *second));
    if (!LayOut(setUp)) return ShowMessage(words.Sentence("CarIsGone", {setUp.CarName}));
    DrawPlot();
    ShowStatus();
}

void SaveSweepCsv() {
    if (!sweep.Run) return ShowMessage(words["NothingSwept"]);
    SaveAs(AskForPath("csv", words["SaveAsCsv"], "CSV"), CsvText(RowsOf(*sweep.Run)));
}

void SaveSweepSvg() {
    if (!sweep.Run) return ShowMessage(words["NothingSwept"]);
    SaveAs(AskForPath("svg", words["SaveAsSvg"], words["SvgPicture"]), SvgOf(SweepPanel.Plot.Drawing()));
}

void ShowSweep() {
    ShowSweepInputs();
    ShowRun();
    ShowStatus();
}

void FollowSetUpInSweep() {
    if (!sweep.Swept) return;
    ShowStatus();
    if (sweep.Run && SweepPanel.Visible() && !LiesOnPages(*sweep.Drawn)) DrawPlot();
}

}  // namespace zolv
