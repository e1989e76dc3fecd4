#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "units/unit_state.h"

namespace zolv {

/// One of the twelve quantities: where its state is, what follows a pick, and its units.
struct QuantityUnits {
    Quantity UnitState::*state;
    Hook UnitFollowUps::*picked;
    std::span<const UnitRow> rows;
};

/// In the order of the options panel and of the options file.
inline constexpr int kQuantities = 12;
const std::array<QuantityUnits, kQuantities>& UnitCatalogue();

/// Makes `row` the unit of the quantity at `index` of the catalogue: index, suffix, decimals and factor in one.
void SelectUnit(UnitState& state, int index, int row);

/// The text of a base value in each unit of a quantity, in the order of its rows.
/// @param base  in the quantity's base unit; kW/kg for power to weight
std::vector<std::string> TextsInAllUnits(Quantity UnitState::*quantity, double base);

/// The maximum of the speed sliders in each unit of speed: 200 m/s everywhere.
int SpeedSliderMaximum(int speedUnit);

/// A number of a speed box in another unit of speed.
/// @param value     in unit `from`, a row of the speed units
/// @return the value in unit `to`, not rounded; `value` itself when the two are the same
double ConvertSpeed(double value, int from, int to);

/// Power to weight in a row of its units.
/// @param row    of the power-to-weight units
/// @param power  [kW], above 0
/// @param mass   [kg], above 0
double PowerToWeight(int row, double power, double mass);

}  // namespace zolv
