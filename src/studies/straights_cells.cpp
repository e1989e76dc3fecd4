#include "studies/straights_cells.h"

#include <algorithm>
#include <array>
#include <utility>

#include "studies/study_text.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

constexpr std::size_t kColumns = 3;

/// Splits at the commas that do not stand in quotes, which go.
std::vector<std::string> Split(std::string_view line) {
    std::vector<std::string> cells(1);
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool doubled = quoted && line[i] == '"' && i + 1 < line.size() && line[i + 1] == '"';
        if (line[i] == '"' && !doubled) {
            quoted = !quoted;
        } else if (line[i] == ',' && !quoted) {
            cells.emplace_back();
        } else {
            cells.back() += line[i];
            if (doubled) ++i;
        }
    }
    return cells;
}

/// What stands in the brackets of "entry speed [km/h]".
std::string UnitIn(const std::string& title) {
    const std::size_t open = title.find_first_of("[(");
    const std::size_t close = title.find_first_of("])");
    if (open == std::string::npos || close == std::string::npos || close < open) return {};
    return title.substr(open + 1, close - open - 1);
}

}  // namespace

StraightsCells CellsOfStraights(std::string_view text) {
    StraightsCells cells;
    bool header = true;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.find_first_not_of(" \t") == std::string_view::npos) continue;
        std::vector<std::string> split = Split(line);
        split.resize(std::max(split.size(), kColumns));
        if (header) {
            cells.SpeedUnit = UnitIn(split[1]);
            cells.LengthUnit = UnitIn(split[2]);
        } else {
            cells.Lines.push_back(std::move(split));
        }
        header = false;
    }
    return cells;
}

std::string TextOfCells(const StraightsCells& cells) {
    const std::string speed = cells.SpeedUnit.empty() ? SpeedUnitOfFiles() : cells.SpeedUnit;
    const std::string length = cells.LengthUnit.empty() ? "m" : cells.LengthUnit;
    std::vector<TextRow> rows{{"name", "entry speed [" + speed + ']', "length [" + length + ']'}};
    rows.insert(rows.end(), cells.Lines.begin(), cells.Lines.end());
    return CsvText(rows);
}

std::string SpeedUnitOfFiles() {
    constexpr std::array<const char*, 5> kNames{"m/s", "km/h", "mph", "knots", "ft/s"};
    return kNames[static_cast<std::size_t>(units.Speed.Unit)];
}

}  // namespace zolv
