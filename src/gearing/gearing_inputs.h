#pragma once

#include <array>

#include "fields/zolv_window.h"

/// The boxes and sliders of the gearing pages drive each other: a changed box moves its slider, a moved slider rewrites
/// its box. guards.Busy keeps a recalculation that has begun from starting another.
namespace zolv {

inline constexpr double kThousandths = 1000;  // the slider of a ratio, and of a final drive, counts them
inline constexpr double kWholes = 1;          // a speed's slider counts units

/// What a driver gives on one page of the gearing.
struct GearingInputs {
    GearingPanel& panel;
    double scale;      // the slider of a gear counts the box's number times this
    void (*update)();  // the recalculation of the page
};
/// Ratios first, then speeds.
[[nodiscard]] const std::array<GearingInputs, 2>& BothGearingInputs();

/// A box's number within the range of its slider, whose value is the number times `scale`.
[[nodiscard]] double WithinRange(double number, const Slider& slider, double scale);

/// The text of a box changed. Its slider takes the number; one beyond the slider's range is rewritten with the limit,
/// so that no zero is ever read from a box. Then, unless busy, the page is recalculated.
/// @param gear  1 to 6
void InputChanged(const GearingInputs& inputs, int gear);

/// The same for the final drive, which also bears on the tyres.
void FinalDriveChanged(const GearingInputs& inputs);

/// A slider moved: its box takes the number.
void InputSliderMoved(const GearingInputs& inputs, int gear);
void FinalDriveSliderMoved(const GearingInputs& inputs);

/// The comma key of these boxes types a point.
[[nodiscard]] char CommaToPoint(char typed);

/// Recalculates the page that is the input.
void Recalculate();

}  // namespace zolv
