#pragma once

#include <cstddef>
#include <string>

#include "search/sweep.h"

/// The choices of the sweep's window: inputs with their ranges, and the result.
namespace zolv {

/// What the window asks for the present set-up; the first input is that of the first row where none is picked.
[[nodiscard]] SweepTask PresentSweepTask();

/// Fills the lists, with the final drive against the time over the long distance.
void LoadSweepInputs();

/// Writes what depends on the language, the units in force, the car and the direction anew. An input that is still
/// there stays picked, and keeps its ends while its range is the same.
void ShowSweepInputs();

/// Another input has been picked: its ends are those of its slider, or for a gear its neighbours, which bound it.
/// @param axis  0 or 1
void PickSweepInput(std::size_t axis);

/// The first box in use that holds no number, as a message; empty if there is none.
[[nodiscard]] std::string NoSweepNumberMessage();

/// An end has been typed.
void TakeSweepEnds(std::size_t axis);

}  // namespace zolv
