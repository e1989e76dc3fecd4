#include "desk/history.h"

#include <utility>

#include "fields/all_windows.h"
#include "platform/dialogs.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

constexpr std::size_t kMostSteps = 2000;  // of some 2 kB each

DeskMoment PresentMoment() { return {PresentSetUp(), PresentBoxTexts(), desk.Held}; }

/// Options are no input of the driver.
bool GiveTheSame(const SetUp& one, SetUp other) {
    other.Shifts = one.Shifts;
    other.Targets = one.Targets;
    return one == other;
}

bool IsOfOptions(const Field& input) {
    const Window* const owner = &input.Owner();
    return owner == &OptionsPanel || owner == &LanguageSelection || owner == &CustomPresets || owner == &UnitConv;
}

bool Continues(const HistoryStep& step, const Field& input, int gesture) {
    return gesture != 0 && step.Gesture == gesture && step.Input == &input && history.Undone.empty();
}

/// The gear of a gearbox's box or slider, in either direction; 0 for the final drive, -1 for anything else.
int GearOfInput(const Field& input) {
    for (int mode = 0; mode < 2; ++mode) {
        GearingPanel& panel = Zolv.GearingOf(mode);
        if (&input == &panel.FinalDrive || &input == &panel.FinalDriveSlider) return 0;
        for (int gear = 1; gear <= kGears; ++gear) {
            if (&input == &panel.Input[gear] || &input == &panel.InputSlider[gear]) return gear;
        }
    }
    return -1;
}

bool IsSpeedInput(const Field& input, int gear) {
    return &input == &Zolv.Speeds.Input[gear] || &input == &Zolv.Speeds.InputSlider[gear];
}

/// "3rd gear ratio": what was given with a field, in the language in force.
std::string NameOf(const HistoryStep& step) {
    const Field& input = *step.Input;
    if (const int gear = GearOfInput(input); gear > 0) {
        const std::string& name = GearName(gear);
        return IsSpeedInput(input, gear) ? words.Sentence("StepSpeed", {name}) : words.Sentence("StepRatio", {name});
    } else if (gear == 0) {
        return words["StepFinalDrive"];
    }
    if (!step.File.empty()) return words.Sentence("StepOpen", {step.File});
    const struct {
        const Field* field;
        WordName name;
    } names[] = {
        {&Zolv.Select_Car, "StepCar"},
        {&Zolv.Direction1, "StepDirection"},
        {&Zolv.Direction2, "StepDirection"},
        {&Zolv.Select_Tyres, "StepTyres"},
        {&Zolv.Select_Tyres2, "StepTyres"},
        {&Zolv.BlowTyres, "StepBlown"},
        {&Zolv.Select_PressureF, "StepFrontPressure"},
        {&Zolv.Select_PressureR, "StepRearPressure"},
        {&Zolv.Select_FrontWingAngle, "StepFrontWing"},
        {&Zolv.Select_RearWingAngle, "StepRearWing"},
        {&Finder.TakeOver, "StepFound"},
        {&SweepPanel.TakeOver, "StepFound"},
        {&Zolv.SetUpSwap, "StepSwap"},
        {&Zolv.HeldSwap, "StepSwap"},
        {&Zolv.Select_AeroSpeed, "StepAirSpeed"},
        {&Zolv.Select_AeroSpeed_TyreTab, "StepAirSpeed"},
        {&Zolv.UseSliderSpeed, "StepAirSpeed"},
        {&Zolv.UseFixedSpeed, "StepAirSpeed"},
    };
    for (const auto& [field, name] : names) {
        if (field == &input) return words[name];
    }
    return words["StepOther"];
}

/// A swap is the one input that changes what is held as well.
bool Swaps(const HistoryStep& step) { return step.Input == &Zolv.SetUpSwap || step.Input == &Zolv.HeldSwap; }

void Lay(const HistoryStep& step) {
    LayOutExactly(step.Moment.Given, &step.Moment.Boxes);
    if (Swaps(step)) HoldAgain(step.Moment.Held);
}

/// Takes the last step of one way and puts it, with what is there now, on the other.
void Move(std::deque<HistoryStep>& from, std::deque<HistoryStep>& to) {
    if (from.empty()) return;
    if (const std::string why = WhyNotLaidOut(from.back().Moment.Given); !why.empty()) return ShowMessage(why);
    HistoryStep step = std::move(from.back());
    from.pop_back();
    DeskMoment now = PresentMoment();
    Lay(step);
    step.Moment = std::move(now);
    step.Gesture = 0;
    to.push_back(std::move(step));
    history.Present = PresentMoment();
    ShowHistory();
}

}  // namespace

void NoteInput(const Field& input, int gesture) {
    DeskMoment now = PresentMoment();
    if (!IsOfOptions(input) && !GiveTheSame(history.Present.Given, now.Given)) {
        if (history.Done.empty() || !Continues(history.Done.back(), input, gesture)) {
            history.Done.push_back({std::move(history.Present), &input, std::exchange(history.Opened, {}), gesture});
            if (history.Done.size() > kMostSteps) history.Done.pop_front();
            history.Undone.clear();
        } else if (GiveTheSame(history.Done.back().Moment.Given, now.Given)) {
            history.Done.pop_back();  // the drag has come back to where it began
        }
        ShowHistory();
    }
    history.Present = std::move(now);
    history.Opened.clear();
}

int NewGesture() { return ++history.LastGesture; }

void StartHistory() {
    history = {};
    history.Present = PresentMoment();
    ShowHistory();
}

void Undo() { Move(history.Done, history.Undone); }
void Redo() { Move(history.Undone, history.Done); }

bool TakeBack(int gesture) {
    if (gesture == 0 || history.Done.empty() || history.Done.back().Gesture != gesture) return false;
    Undo();
    history.Undone.clear();
    ShowHistory();
    return true;
}

void ShowHistory() {
    const struct {
        MenuEntry& entry;
        const std::deque<HistoryStep>& steps;
        WordName nothing, named;
    } rows[] = {{Zolv.EditUndo, history.Done, "EditUndo", "UndoStep"},  //
                {Zolv.EditRedo, history.Undone, "EditRedo", "RedoStep"}};
    for (const auto& row : rows) {
        row.entry.SetEnabled(!row.steps.empty());
        row.entry.SetCaption(row.steps.empty() ? words[row.nothing]
                                               : words.Sentence(row.named, {NameOf(row.steps.back())}));
    }
}

}  // namespace zolv
