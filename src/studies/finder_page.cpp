#include "studies/finder_page.h"

#include <string>
#include <utility>
#include <vector>

#include "desk/held.h"
#include "desk/present.h"
#include "fields/all_windows.h"
#include "model/sheet.h"
#include "platform/dialogs.h"
#include "studies/finder_inputs.h"
#include "studies/finder_messages.h"
#include "studies/finder_state.h"
#include "studies/straights_page.h"
#include "studies/study_text.h"
#include "text/number_text.h"
#include "text/words.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

/// The set-up by its ratios: from wanted speeds they are those that reach them.
SetUp ByRatios(SetUp setUp) {
    if (setUp.From == Direction::FromRatios) return setUp;
    const Sheet sheet = EvaluateStill(setUp);
    if (!sheet.WrongOrder.empty()) return setUp;
    for (int gear = 1; gear <= kGears; ++gear) setUp.Ratios[gear] = sheet.Gears.GearRatio[gear];
    setUp.FinalDrive[0] = sheet.Gears.FinalDrive;
    return setUp;
}

TextRow GoalRow(const FinderFind& find) {
    const GoalKind kind = find.Task.Target.Kind;
    const GoalValue& before = find.Result.Before;
    const GoalValue& after = find.Result.After;
    const double factor = kind == GoalKind::TopSpeed ? units.Speed.Factor : 1;
    const bool both = before.Reached && after.Reached;
    return {Finder.Goal.Rows()[static_cast<std::size_t>(kind)],
            GoalText(kind, before),
            GoalText(kind, after),
            both ? ChangeText(Round(after.Value * factor, 3) - Round(before.Value * factor, 3), 3) : "N/A",
            "",
            ""};
}

std::string TableOf(const FinderFind& find) {
    const SetUp present = ByRatios(find.Task.Present);
    std::vector<TextRow> rows{{words["ColumnInput"], words["ColumnPresent"], words["ColumnFound"],
                               words["ColumnChange"], words["ColumnFlatFrom"], words["ColumnFlatTo"]},
                              GoalRow(find)};
    const int gears = find.Task.Present.Car.NumGears;
    for (std::size_t i = 0; i < kFinderInputs; ++i) {
        const auto input = static_cast<FinderInput>(i);
        const bool lacking = (input < FinderInput::FinalDrive && static_cast<int>(i) >= gears) ||
                             (input == FinderInput::FrontWing && find.Task.Present.Car.FrontWingType <= 0) ||
                             (input == FinderInput::RearWing && find.Task.Present.Car.RearWingType <= 0);
        if (!find.Task.Free[input] || lacking) continue;
        const double before = ValueIn(present, input);
        const double after = ValueIn(find.Result.Found, input);
        TextRow row{NameOf(input),
                    ValueText(input, before),
                    ValueText(input, after),
                    ChangeText(after - before, input < FinderInput::FrontWing ? 3 : 0),
                    "",
                    ""};
        for (const FinderFlatness& flat : find.Result.Flatness) {
            if (flat.Input != input) continue;
            row[4] = ValueText(input, flat.Low);
            row[5] = ValueText(input, flat.High);
        }
        rows.push_back(std::move(row));
    }
    return TableText(rows);
}

void ShowFind() {
    if (!finder.Find) return;
    const GoalKind kind = finder.Find->Task.Target.Kind;
    Finder.Present.SetCaption(GoalText(kind, finder.Find->Result.Before));
    Finder.Found.SetCaption(GoalText(kind, finder.Find->Result.After));
    Finder.Table.SetText(TableOf(*finder.Find));
}

std::string StatusText() {
    using Said = FinderState::Said;
    const std::string car = finder.Sought ? finder.Sought->CarName : std::string();
    switch (finder.Status) {
        case Said::Nothing: return {};
        case Said::Searching: return words.Sentence("SearchingFor", {car});
        case Said::Found:
            return words.Sentence("FoundFor", {car, NumberText(static_cast<double>(finder.Find->Result.Evaluations))});
        case Said::NothingBetter: return words.Sentence("NothingBetterFor", {car});
        case Said::Stopped: return words.Sentence("SearchStoppedFor", {car});
    }
    return {};
}

void ShowStatus() {
    std::string status = StatusText();
    const bool other = finder.Status != FinderState::Said::Nothing && finder.Sought && !LiesOnPages(*finder.Sought);
    if (other) status += ' ' + words["SoughtAnother"];
    Finder.Status.SetCaption(status);
    const bool searching = finder.Status == FinderState::Said::Searching;
    Finder.Progress.SetCaption(searching ? RoundedText(finder.Done * 100, 0) + " %" : "");
}

void End(FinderState::Said said) {
    finder.Status = said;
    finder.Done = 0;
    ShowStatus();
}

/// @return whether there is a set-up to be shown; if not, a message has said why
bool TellWhatIsOutOfReach(const FinderTask& task, const FinderResult& result) {
    std::string message;
    if (result.Fault != FinderFault::None) {
        message = FaultText(task, result);
    } else if (!result.Stopped && !result.Wished) {
        message = WishText(task, result);
    } else if (!result.Stopped && !result.After.Reached) {
        message = OutOfReachText(task.Target, result.After);
    }
    if (!message.empty()) ShowMessage(message);
    return message.empty();
}

void EndSearch(const FinderTask& task, const FinderResult& result) {
    using Said = FinderState::Said;
    Finder.Present.SetCaption(result.Before.Reached ? GoalText(task.Target.Kind, result.Before) : "N/A");
    Finder.Found.SetCaption("N/A");
    if (result.Fault != FinderFault::None || (!result.Stopped && !(result.Wished && result.After.Reached))) {
        End(Said::Nothing);
        TellWhatIsOutOfReach(task, result);
        return;
    }
    finder.Find = {.Task = task, .Result = result};
    ShowFind();
    const bool better = result.Found != task.Present;
    End(result.Stopped ? Said::Stopped : better ? Said::Found : Said::NothingBetter);
    ShowStraightTimes();
}

void ShowProgress(GoalKind kind, const FinderProgress& progress) {
    finder.Done = progress.Done;
    Finder.Found.SetCaption(progress.Best.Reached ? GoalText(kind, progress.Best) : "");
    ShowStatus();
}

}  // namespace

void LoadFinder() {
    LoadFinderInputs();
    ReadTrack();
}

void StartFinder() {
    finderWork.Abandon();
    finder.Find.reset();
    End(FinderState::Said::Nothing);
    FinderTask task = PresentTask();
    if (task.Target.Kind == GoalKind::AlongStraights && !ExpectTrack()) return;
    if (const std::string message = NoNumberMessage(); !message.empty()) return ShowMessage(message);
    finder.Sought = task.Present;
    finder.Done = 0;
    finder.Status = FinderState::Said::Searching;
    for (Label* label : {&Finder.Present, &Finder.Found}) label->SetCaption("");
    Finder.Table.SetText("");
    ShowStatus();
    finderWork.Start([task = std::move(task)](const std::stop_token& stop, const Background::Tell& tell) {
        FinderWatch watch;
        if (tell) {
            watch = [&](const FinderProgress& progress) {
                tell([kind = task.Target.Kind, progress] { ShowProgress(kind, progress); });
            };
        }
        FinderResult result = FindBest(task, stop, watch);
        return [task, result = std::move(result)] { EndSearch(task, result); };
    });
}

void StopFinder() { finderWork.Stop(); }

void HoldSought() {
    if (finder.Find) return Hold(finder.Find->Task.Present);
    HoldPresent();
}

void TakeOverFind() {
    if (!finder.Find) return ShowMessage(words["NothingToTakeOver"]);
    const SetUp& found = finder.Find->Result.Found;
    if (!LayOut(found)) return ShowMessage(words.Sentence("CarIsGone", {found.CarName}));
    finder.Sought = PresentSetUp();
    ShowStatus();
}

void ShowFinder() {
    ShowFinderInputs();
    ShowFind();
    ShowStatus();
    ShowTrackNote();
    ShowStraightTimes();
}

void FollowSetUpInFinder() {
    if (finder.Sought) ShowStatus();
    // A script that asks for them has no window open.
    if (Finder.Visible() || !postToFields) ShowStraightTimes();
}

}  // namespace zolv
