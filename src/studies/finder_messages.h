#pragma once

#include <string>

#include "search/finder.h"
#include "search/straights.h"

/// What the finder says, in the language and the units in force.
namespace zolv {

/// The value of a goal that is reached, with three decimals and its unit; "N/A" for one that is not.
[[nodiscard]] std::string GoalText(GoalKind kind, const GoalValue& value);

/// Why nothing was sought.
/// @param result  with a fault
[[nodiscard]] std::string FaultText(const FinderTask& task, const FinderResult& result);

/// That no gearbox reaches the goal, and how far the best one gets.
[[nodiscard]] std::string OutOfReachText(const Goal& goal, const GoalValue& best);

/// That no set-up comes up to the wish for a top speed, and how far the best one gets.
[[nodiscard]] std::string WishText(const FinderTask& task, const FinderResult& result);

/// Where a text is not a `.straights` file, and why: "Line 3: ..."
[[nodiscard]] std::string StraightsErrorText(const StraightsError& error);

}  // namespace zolv
