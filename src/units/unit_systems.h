#pragma once

#include <cstdint>

namespace zolv {

enum class UnitSystem : std::uint8_t { Metric, Imperial };

/// Picks the unit of each quantity that a driver of that system is used to, as if each had been picked in its list.
/// Writes: OptionsPanel.Units, and what follows from each pick
void PickUnitSystem(UnitSystem system);

}  // namespace zolv
