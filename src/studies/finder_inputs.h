#pragma once

#include <string>

#include "search/finder.h"

/// The upper half of the finder's window: goal, what may be changed and how far, wishes.
namespace zolv {

/// What the window asks for the present set-up. Its straights are those of finder.Track.
/// Reads: Finder, finder, and what PresentSetUp reads
[[nodiscard]] FinderTask PresentTask();

/// What stands in a box that the search goes by and is no number, as a message; empty where all are numbers. An empty
/// box is told otherwise, or bounds nothing.
[[nodiscard]] std::string NoNumberMessage();

/// Fills the list of goals and the boxes with units.
void LoadFinderInputs();

/// Writes what depends on the language, the units in force and the car anew; numbers keep their value once the
/// driver has typed any.
void ShowFinderInputs();

/// Shows the boxes of the goal that is picked.
void ShowGoalBoxes();

/// Says that a wing without a wish for downforce only ever goes flat, while that is so.
void ShowWingNote();

/// A box with a unit has been typed into: from now on all of them keep what they hold.
void TakeTyped();

/// The name of an input in the language in force, and its value: "1.234", or "12" for degrees.
[[nodiscard]] std::string NameOf(FinderInput input);
[[nodiscard]] std::string ValueText(FinderInput input, double value);

/// The value of an input in a set-up whose ratios are given.
[[nodiscard]] double ValueIn(const SetUp& setUp, FinderInput input);

}  // namespace zolv
