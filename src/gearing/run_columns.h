#pragma once

#include <string>
#include <vector>

/// The table of the present acceleration run for readers who want numbers: each column with its unit in its head, and
/// bare numbers below. (AccelerationData has the same rows as one text, with the unit behind each number.)
namespace zolv {

/// What stands above a column, in the language and the units in force.
struct RunColumn {
    std::string Title;
    std::string Unit;  // empty for a number without one

    bool operator==(const RunColumn&) const = default;
};

/// The ten columns: time, speed, engine speed, gear, three forces, acceleration, the loads on both axles.
[[nodiscard]] std::vector<RunColumn> RunColumns();

/// How many rows the run has; 0 before the first one.
[[nodiscard]] int RowsOfRun();

/// The number in a cell, rounded as on the pages; "N/A" where it is not finite.
/// @param row     0 to RowsOfRun() - 1
/// @param column  0 to 9
[[nodiscard]] std::string RunNumber(int row, int column);

/// The gear in which a row was driven.
[[nodiscard]] int GearOfRow(int row);

/// Whether the car was driven in another gear in the row before. Row 0 is no change.
[[nodiscard]] bool IsGearChange(int row);

/// The whole table as comma-separated values, with the columns' names and units in the first line; lines end in CR LF.
/// Numbers have a decimal point in every language.
[[nodiscard]] std::string RunAsCsv();

/// Asks for a file and writes the table into it; a message says what went wrong.
/// @param title  of the file dialog
void ExportRun(const std::string& title);

}  // namespace zolv
