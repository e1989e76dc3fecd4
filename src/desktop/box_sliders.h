#pragma once

#include "fields/kinds.h"

/// Which box and which slider hold the same number. Both stand on the gearing page.
namespace zolv {

/// The slider that a box's number goes to; nullptr for a box without one.
[[nodiscard]] Slider* SliderBeside(const TextBox& box);

/// Whether a slider's value is a ratio, in thousandths.
[[nodiscard]] bool HoldsRatio(const Slider& slider);

}  // namespace zolv
