#pragma once

/// The boxes and sliders of the gearing pages drive each other: a changed box moves its slider, a moved slider rewrites
/// its box. guards.Busy keeps a recalculation that has begun from starting another.
namespace zolv {

/// The text of a box changed. Its slider takes the number; one beyond the slider's range is rewritten with the limit,
/// so that no zero is ever read from a box. Then, unless busy, the page is recalculated.
/// @param gear  1 to 6
void RatioChanged(int gear);
void SpeedChanged(int gear);

/// The same for the final drive, which also bears on the tyres.
void FinalDriveOfRatiosChanged();
void FinalDriveOfSpeedsChanged();

/// A slider moved: its box takes the number.
void RatioSliderMoved(int gear);
void SpeedSliderMoved(int gear);
void FinalDriveSliderOfRatiosMoved();
void FinalDriveSliderOfSpeedsMoved();

/// The comma key of these boxes types a point.
[[nodiscard]] char CommaToPoint(char typed);

/// Recalculates the page that is the input.
void Recalculate();

}  // namespace zolv
