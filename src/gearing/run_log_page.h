#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/run_log.h"

/// The log of the run and the advice on its shift points, in the words and units in force.
namespace zolv {

/// Cells of an event: time, distance, speed, what happens, engine speed before and after a change, a remark.
inline constexpr std::size_t kLogCells = 7;
using LogLine = std::array<std::string, kLogCells>;

/// What stands above the cells.
[[nodiscard]] LogLine LogTitles();

/// The present run, driven once more for its events; empty without a run, or while acceleration testing is off. Where
/// the engine's curve could not be fitted, the first line says so.
[[nodiscard]] std::vector<LogLine> LogLines();

/// A distance of the run: in feet where the user reads miles or feet per hour or second, otherwise in metres.
[[nodiscard]] std::string RunDistance(double metres);

/// Works the log out and shows it.
/// Reads:  gearing.LastRun, options, units, the names of the targets in GearingLabel
/// Writes: RunLog, one event a line, with tabs between the cells
void ShowRunLog();

/// What the present shift points lose, where it can be read in hundredths of a second; otherwise nothing.
/// Reads:  gearing.LastRun, AccelLastRow and WrongOrder, options, GearingLabel(37)
/// Writes: ShiftAdvice
void ShowShiftAdvice();

}  // namespace zolv
