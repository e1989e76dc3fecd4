#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zolv {

/// The text of a `.straights` file as the cells of a table, whatever stands in them, for editing one at a time.
struct StraightsCells {
    std::string SpeedUnit, LengthUnit;            // as the header has them
    std::vector<std::vector<std::string>> Lines;  // name, entry speed and length; three cells each
};
[[nodiscard]] StraightsCells CellsOfStraights(std::string_view text);

/// The text with these cells. Without units it has those in which the driver reads.
[[nodiscard]] std::string TextOfCells(const StraightsCells& cells);

/// The unit of speed in force as a `.straights` file calls it.
[[nodiscard]] std::string SpeedUnitOfFiles();

}  // namespace zolv
