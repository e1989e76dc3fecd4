#pragma once

#include <string>

#include "search/sweep.h"

/// What the sweep's inputs and results are called, and how their numbers are written, in the language and the units in
/// force.
namespace zolv {

/// How the numbers of a quantity are shown.
struct ShownAs {
    double Factor = 1;
    int Decimals = 3;
    std::string Unit;  // without a blank; empty where there is none

    [[nodiscard]] std::string Number(double base) const;  // "N/A" where there is none
    [[nodiscard]] std::string Text(double base) const;    // with the unit
};
[[nodiscard]] ShownAs ShownIn(SweepQuantity quantity);

[[nodiscard]] std::string NameOf(const SweepChoice& choice);

/// @param result   row of SweepResults
/// @param targets  row of AccelTargetTable, whose speeds and distances name the times
[[nodiscard]] std::string ResultName(std::size_t result, int targets);

}  // namespace zolv
