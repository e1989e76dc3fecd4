#pragma once

#include <string>
#include <vector>

#include "units/unit_state.h"

/// How the finder and the sweep write their numbers and tables.
namespace zolv {

/// A number with all its decimals, "26.500", so that the rows of a table line up; "N/A" for one that is not finite.
[[nodiscard]] std::string FixedText(double value, int decimals);

/// FixedText with a sign in front, also of what is above 0.
[[nodiscard]] std::string ChangeText(double change, int decimals);

/// Whether a box has a number and nothing else, with a point or a comma.
[[nodiscard]] bool IsNumber(std::string_view text);

/// What is wrong with the number in a box, by its name; empty if it is one.
[[nodiscard]] std::string NotANumberText(const std::string& name, const std::string& text);

/// "26.512 s".
[[nodiscard]] std::string SecondsText(double seconds);

/// A base value in the unit in force, with three decimals and the unit: "64.213 m/s".
[[nodiscard]] std::string ExactUnitText(const Quantity& quantity, double base);

/// The name of a gear's ratio in the language in force: "Ratio 1".
/// @param gear  1 to 6
[[nodiscard]] std::string RatioName(int gear);

using TextRow = std::vector<std::string>;

/// A table as the text of a field: tabs between the cells, CR LF behind each row. Control characters within a cell are
/// blanks.
[[nodiscard]] std::string TableText(const std::vector<TextRow>& rows);

/// A table as a CSV file: commas between the cells, which stand in quotes where they have to.
[[nodiscard]] std::string CsvText(const std::vector<TextRow>& rows);

}  // namespace zolv
