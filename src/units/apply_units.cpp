#include "units/apply_units.h"

#include <algorithm>
#include <cstddef>

#include "fields/all_windows.h"
#include "fields/guards.h"
#include "text/number_text.h"
#include "units/option_state.h"
#include "units/options_panel.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

constexpr int kSpeed = 0;  // its place in the catalogue
constexpr int kKilometresPerHour = 1;
constexpr int kFeetPerSecond = 4;

/// A quantity with all that belongs to it.
struct Choice {
    explicit Choice(int quantity)
        : rows(UnitCatalogue()[static_cast<std::size_t>(quantity)].rows),
          state(units.*UnitCatalogue()[static_cast<std::size_t>(quantity)].state),
          picked(unitFollowUps.*UnitCatalogue()[static_cast<std::size_t>(quantity)].picked),
          fields(OptionsPanel.Units[static_cast<std::size_t>(quantity)]) {}

    const std::string& NameInForce() const { return state.UnitNames[static_cast<std::size_t>(state.Unit)]; }
    void ShowCaption(int row) const { fields.Caption.SetCaption(rows[static_cast<std::size_t>(row)].caption); }

    /// The first row of the picked long name; -1 for none.
    int PickedRow() const {
        const auto begin = state.UnitNames.begin();
        const auto end = begin + static_cast<std::ptrdiff_t>(rows.size());
        const auto found = std::find(begin, end, fields.Select.Text());
        return found == end ? -1 : static_cast<int>(found - begin);
    }

    void AddRows() const {
        for (std::size_t row = 0; row < rows.size(); ++row) fields.Select.Add(state.UnitNames[row]);
    }

    std::span<const UnitRow> rows;
    Quantity& state;
    const Hook& picked;
    UnitChoice& fields;
};

/// Whether the speed sliders take the new unit's range before the boxes are converted, so that no speed is cut on its
/// way. An options file puts its unit in force before it is picked here: then both are the same, the sliders still have
/// the range of some other, and only the two units with the widest ranges come first.
bool RangeComesFirst(int oldUnit, int newUnit) {
    if (oldUnit == newUnit) return newUnit == kKilometresPerHour || newUnit == kFeetPerSecond;
    return SpeedSliderMaximum(newUnit) > SpeedSliderMaximum(oldUnit);
}

void SetSpeedSliderRange(int unit) {
    for (Slider& slider : Zolv.Speeds.InputSlider) slider.SetRange(slider.Min(), SpeedSliderMaximum(unit));
}

void ConvertSpeedBoxes(int oldUnit, int newUnit) {
    if (oldUnit == newUnit) return;
    for (TextBox& box : Zolv.Speeds.Input) {
        box.SetText(RoundedText(ConvertSpeed(Val(box.Text()), oldUnit, newUnit), 1));
    }
}

void PickSpeedUnit(const Choice& speed, int row) {
    const std::string_view suffix = speed.rows[static_cast<std::size_t>(row)].suffix;
    const int oldUnit = speed.state.Unit;

    {
        const Raised busy(guards.Busy);
        speed.ShowCaption(row);
        for (Label& label : Zolv.Label_SPD) label.SetCaption(suffix);
        if (RangeComesFirst(oldUnit, row)) SetSpeedSliderRange(row);
        ConvertSpeedBoxes(oldUnit, row);
        SelectUnit(units, kSpeed, row);
        OptionsPanel.SpeedPlotX.Units.SetCaption(suffix);
    }
    speed.picked();
    SetSpeedSliderRange(row);
}

}  // namespace

void FillUnitLists() {
    for (int quantity = 0; quantity < kQuantities; ++quantity) Choice(quantity).AddRows();
}

void RebuildUnitList(int quantity) {
    const Choice choice(quantity);
    choice.fields.Select.Clear();
    choice.AddRows();
    choice.fields.Select.SetText(choice.NameInForce());
}

void PickUnit(int quantity) {
    if (guards.Loading) return;
    const Choice choice(quantity);
    const int row = choice.PickedRow();
    if (row < 0) return;
    if (quantity == kSpeed) {
        PickSpeedUnit(choice, row);
        return;
    }
    choice.ShowCaption(row);
    SelectUnit(units, quantity, row);
    choice.picked();
}

void ApplyOptions() {
    if (guards.Loading) return;
    for (int quantity = 0; quantity < kQuantities; ++quantity) {
        const Choice choice(quantity);
        choice.ShowCaption(choice.state.Unit);
        choice.fields.Select.SetText(choice.NameInForce());
    }
    for (const PlotFlag& flag : PlotFlags()) {
        if (flag.On() != flag.checkedAtStart) flag.box.SetChecked(!flag.checkedAtStart);
    }
    if (options.RevsMaxMode) OptionsPanel.RevsP.Choose();
    if (options.RevLimitOn) OptionsPanel.RevLimitEnable.SetChecked(true);
    if (!options.AutoRevs) OptionsPanel.RC_Fixed.Choose();
    if (!options.AccelerationOn) OptionsPanel.AccelerationTestingEnable.SetChecked(false);
    for (const PlotScale& scale : PlotScales()) scale.slider.SetValue(options.*scale.value);
}

}  // namespace zolv
