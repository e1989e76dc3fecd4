#include "files/settings_text.h"

#include <cstddef>
#include <type_traits>
#include <vector>

#include "files/missing_lines.h"
#include "text/lines.h"
#include "text/number_text.h"

namespace zolv {
namespace {

constexpr std::string_view kNameKey = "CarName: ";

/// One line behind the car's name.
template <class Number>
struct Line {
    std::string_view key;
    std::size_t readFrom;  // the reader's first character, from 0; on the blank behind the key or behind it
    Number* number;
};

/// The lines of a file in their order, to be written to or read from.
template <class File>
auto LinesOf(File& file) {
    using Number = std::conditional_t<std::is_const_v<File>, const double, double>;
    return std::array<Line<Number>, 18>{{
        {"FPressure: ", 11, &file.FPressure},
        {"RPressure: ", 11, &file.RPressure},
        {"GearF: ", 6, &file.GearF},
        {"Gear1: ", 6, &file.Gear[0]},
        {"Gear2: ", 6, &file.Gear[1]},
        {"Gear3: ", 6, &file.Gear[2]},
        {"Gear4: ", 6, &file.Gear[3]},
        {"Gear5: ", 6, &file.Gear[4]},
        {"Gear6: ", 6, &file.Gear[5]},
        {"Final: ", 6, &file.Final},
        {"Speed1: ", 7, &file.Speed[0]},
        {"Speed2: ", 7, &file.Speed[1]},
        {"Speed3: ", 7, &file.Speed[2]},
        {"Speed4: ", 7, &file.Speed[3]},
        {"Speed5: ", 7, &file.Speed[4]},
        {"Speed6: ", 7, &file.Speed[5]},
        {"FWing: ", 6, &file.FWing},
        {"RWing: ", 6, &file.RWing},
    }};
}

constexpr std::size_t kLineCount = 19;

}  // namespace

Parsed<SettingsFile> ParseSettings(std::string_view text) {
    const std::vector<std::string_view> lines = EndedLines(text);
    if (lines.size() < kLineCount) return Refusal{MissingLines(text, "a set-up", kLineCount)};
    SettingsFile file{.CarName = std::string(From(lines[0], kNameKey.size()))};
    std::size_t at = 1;
    for (const auto& line : LinesOf(file)) *line.number = Val(From(lines[at++], line.readFrom));
    return file;
}

std::string SettingsText(const SettingsFile& file) {
    std::string text;
    text.append(kNameKey).append(file.CarName).append(kLineEnd);
    for (const auto& line : LinesOf(file)) text.append(line.key).append(NumberText(*line.number)).append(kLineEnd);
    return text;
}

}  // namespace zolv
