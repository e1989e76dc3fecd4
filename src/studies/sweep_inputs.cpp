#include "studies/sweep_inputs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "desk/present.h"
#include "fields/all_windows.h"
#include "fields/guards.h"
#include "model/whole_number.h"
#include "studies/study_text.h"
#include "studies/sweep_names.h"
#include "studies/sweep_state.h"
#include "text/caption_name.h"
#include "text/messages.h"
#include "text/number_text.h"
#include "text/words.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

constexpr std::size_t kTimeOverLongDistance = 6;  // row of SweepResults

SweepAxisFields& FieldsOf(std::size_t axis) { return axis == 0 ? SweepPanel.First : SweepPanel.Second; }

/// Of the rows in the list of an axis, those before the first input.
int RowsBefore(std::size_t axis) { return axis == 0 ? 0 : 1; }

/// The gears beside a gear, upward of it and below, for inputs that go by gear; 0 for others.
int GearOf(SweepInput input) {
    if (input <= SweepInput::Ratio6) return static_cast<int>(input) - static_cast<int>(SweepInput::Ratio1) + 1;
    if (input <= SweepInput::Speed6) return static_cast<int>(input) - static_cast<int>(SweepInput::Speed1) + 1;
    return 0;
}

/// The whole range of the slider; a gear goes as far as its neighbours.
void SetUsualEnds(SweepState::Axis& axis) {
    if (!axis.Picked) return;
    axis.From = axis.Picked->Low;
    axis.To = axis.Picked->High;
    const SweepInput input = axis.Picked->Input;
    const int gear = GearOf(input);
    if (gear == 0) return;
    const SetUp present = PresentSetUp();
    const auto neighbour = [&](int step) {
        return InputOf(present, static_cast<SweepInput>(static_cast<int>(input) + step));
    };
    const bool falls = present.From == Direction::FromRatios;
    const auto clampToRange = [&](double value) { return std::clamp(value, axis.Picked->Low, axis.Picked->High); };
    if (gear > 1) (falls ? axis.To : axis.From) = clampToRange(neighbour(-1));
    if (gear < present.Car.NumGears) (falls ? axis.From : axis.To) = clampToRange(neighbour(1));
    if (axis.From < axis.To) return;
    axis.From = axis.Picked->Low;
    axis.To = axis.Picked->High;
}

void ShowAxis(std::size_t axis) {
    const Raised quiet(sweep.WritingBoxes);
    SweepAxisFields& fields = FieldsOf(axis);
    const SweepState::Axis& state = sweep.Axes[axis];
    const bool picked = state.Picked.has_value();
    for (Field* field :
         {static_cast<Field*>(&fields.FromCaption), static_cast<Field*>(&fields.From),
          static_cast<Field*>(&fields.ToCaption), static_cast<Field*>(&fields.To), static_cast<Field*>(&fields.Unit),
          static_cast<Field*>(&fields.StepsCaption), static_cast<Field*>(&fields.Steps)}) {
        field->SetVisible(picked);
    }
    const ShownAs shown = picked ? ShownIn(state.Picked->Quantity) : ShownAs{};
    fields.Unit.SetCaption(shown.Unit);
    fields.From.SetText(picked ? RoundedText(state.From * shown.Factor, 3) : "");
    fields.To.SetText(picked ? RoundedText(state.To * shown.Factor, 3) : "");
}

/// The row of an input in the list of an axis, -1 for none.
int RowOf(std::size_t axis, SweepInput input) {
    const auto found = std::ranges::find(sweep.Choices, input, &SweepChoice::Input);
    return found == sweep.Choices.end() ? -1 : static_cast<int>(found - sweep.Choices.begin()) + RowsBefore(axis);
}

void FillList(std::size_t axis) {
    PickList& list = FieldsOf(axis).Input;
    SweepState::Axis& state = sweep.Axes[axis];
    const std::optional<SweepChoice> before = state.Picked;
    {
        const Raised filling(sweep.FillingLists);
        list.Clear();
        if (axis == 1) list.Add(words["NoInput"]);
        for (const SweepChoice& choice : sweep.Choices) list.Add(NameOf(choice));
        const int row = before ? RowOf(axis, before->Input) : -1;
        list.Pick(row >= 0 || axis == 1 ? std::max(row, 0) : RowOf(0, SweepInput::FinalDrive));
    }
    const int picked = list.Picked() - RowsBefore(axis);
    state.Picked = picked < 0 ? std::nullopt : std::optional(sweep.Choices[static_cast<std::size_t>(picked)]);
    const bool same = before && state.Picked && before->Input == state.Picked->Input &&
                      before->Low == state.Picked->Low && before->High == state.Picked->High;
    if (!same) SetUsualEnds(state);
    ShowAxis(axis);
}

void FillResults() {
    PickList& list = SweepPanel.Result;
    const int picked = list.Picked();
    list.Clear();
    for (std::size_t result = 0; result < SweepResults().size(); ++result) {
        list.Add(ResultName(result, units.Speed.Unit));
    }
    list.Pick(picked >= 0 ? picked : static_cast<int>(kTimeOverLongDistance));
}

SweepAxis AxisOf(std::size_t axis) {
    const SweepState::Axis& state = sweep.Axes[axis];
    const double steps = Val(FieldsOf(axis).Steps.Text());
    return {.Input = state.Picked ? state.Picked->Input : SweepInput::FinalDrive,
            .From = state.From,
            .To = state.To,
            .Steps = steps == std::floor(steps) ? ToInt32(steps) : 0};  // a broken number of them is none
}

}  // namespace

SweepTask PresentSweepTask() {
    SweepTask task{.Present = PresentSetUp(), .First = AxisOf(0), .Second = {}};
    if (sweep.Axes[1].Picked) task.Second = AxisOf(1);
    task.Result = static_cast<std::size_t>(std::max(0, SweepPanel.Result.Picked()));
    return task;
}

std::string NoSweepNumberMessage() {
    for (std::size_t axis = 0; axis < 2; ++axis) {
        if (!sweep.Axes[axis].Picked) continue;
        const SweepAxisFields& fields = FieldsOf(axis);
        const std::string input = NameOf(*sweep.Axes[axis].Picked);
        for (const auto& [caption, box] :
             {std::pair(&fields.FromCaption, &fields.From), std::pair(&fields.ToCaption, &fields.To),
              std::pair(&fields.StepsCaption, &fields.Steps)}) {
            const std::string name = input + ", " + CaptionName(InWords(caption->Caption()));
            if (std::string message = NotANumberText(name, box->Text()); !message.empty()) return message;
        }
    }
    return {};
}

void LoadSweepInputs() { ShowSweepInputs(); }

void ShowSweepInputs() {
    sweep.Choices = SweepInputsOf(PresentSetUp());
    FillList(0);
    FillList(1);
    FillResults();
}

void PickSweepInput(std::size_t axis) {
    if (sweep.FillingLists) return;
    SweepState::Axis& state = sweep.Axes[axis];
    const int picked = FieldsOf(axis).Input.Picked() - RowsBefore(axis);
    if (picked < 0) {
        state.Picked.reset();
    } else {
        const SweepChoice& choice = sweep.Choices[static_cast<std::size_t>(picked)];
        const bool same = state.Picked && state.Picked->Input == choice.Input;
        state.Picked = choice;
        if (!same) SetUsualEnds(state);
    }
    ShowAxis(axis);
}

void TakeSweepEnds(std::size_t axis) {
    SweepState::Axis& state = sweep.Axes[axis];
    if (sweep.WritingBoxes || !state.Picked) return;
    const double factor = ShownIn(state.Picked->Quantity).Factor;
    state.From = Val(FieldsOf(axis).From.Text()) / factor;
    state.To = Val(FieldsOf(axis).To.Text()) / factor;
}

}  // namespace zolv
