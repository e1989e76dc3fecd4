#include "files/options_text.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <variant>
#include <vector>

#include "fields/scale_ranges.h"
#include "model/whole_number.h"
#include "text/lines.h"
#include "text/number_text.h"

namespace zolv {
namespace {

/// A number at the end of its line, so many characters wide. A shorter one has part of the key before it: the blank is
/// skipped, but a colon reads as 0.
struct Number {
    int OptionState::*value;
    std::size_t width;
    std::optional<ScaleRange> range = {};
};

/// The row of a unit: the last character.
struct Unit {
    std::size_t quantity;  // place in UnitCatalogue()
};

struct Line {
    std::string_view key;
    std::variant<Unit, Number, OptionFlag> value;
};

// clang-format off
constexpr std::array<Line, 31> kLines{{
    {"SpdUnits: ", Unit{0}},
    {"DstUnits: ", Unit{1}},
    {"AreUnits: ", Unit{2}},
    {"PrsUnits: ", Unit{3}},
    {"MasUnits: ", Unit{4}},
    {"FrcUnits: ", Unit{5}},
    {"StfUnits: ", Unit{6}},
    {"AccUnits: ", Unit{7}},
    {"PwrUnits: ", Unit{8}},
    {"TrqUnits: ", Unit{9}},
    {"P2WUnits: ", Unit{10}},
    {"T2WUnits: ", Unit{11}},
    {"SpeedPlotX: ",    Number{&OptionState::SpeedPlotXScale,    2, kSpeedPlotXRange}},
    {"SpeedPlotY: ",    Number{&OptionState::SpeedPlotYScale,    4, kSpeedPlotYRange}},
    {"TorqueX: ",       Number{&OptionState::TorquePlotXScale,   4, kTorquePlotXRange}},
    {"TorqueY: ",       Number{&OptionState::TorquePlotYScale,   4, kTorquePlotYRange}},
    {"TractiveX: ",     Number{&OptionState::TractivePlotXScale, 2, kTractivePlotXRange}},
    {"TractiveY: ",     Number{&OptionState::TractivePlotYScale, 4, kTractivePlotYRange}},
    {"SpeedGraphX: ",   Number{&OptionState::SpeedGraphXScale,   2, kSpeedGraphXRange}},
    {"SpeedGraphY: ",   Number{&OptionState::SpeedGraphYScale,   2, kSpeedGraphYRange}},
    {"PowerLine: ",     &OptionState::PowerLineOn},
    {"TorqueLine: ",    &OptionState::TorqueLineOn},
    {"Redline: ",       &OptionState::RedlineOn},
    {"AltGraphStyle: ", &OptionState::AltGraphStyle},
    {"EngineTorque: ",  &OptionState::EngineTorqueOn},
    {"VLoads: ",        &OptionState::VLoadsOn},
    {"RevsMax: ",       &OptionState::RevsMaxMode},
    {"RevLimit: ",      &OptionState::RevLimitOn},
    {"AutoRevs: ",      &OptionState::AutoRevs},
    {"CustomRevs: ",    Number{&OptionState::CustomRevs, 5}},
    {"Acceleration: ",  &OptionState::AccelerationOn},
}};
// clang-format on

// Writing

std::string FlagText(bool on) { return BooleanText(on); }
std::string FlagText(std::optional<bool> on) { return on ? BooleanText(*on) : ""; }

std::string TextOf(const OptionsFile& file, const Unit& unit) { return NumberText(file.Units[unit.quantity]); }
std::string TextOf(const OptionsFile& file, const Number& number) { return NumberText(file.Options.*number.value); }
std::string TextOf(const OptionsFile& file, const OptionFlag& flag) {
    return std::visit([&](auto member) { return FlagText(file.Options.*member); }, flag);
}

// Reading. `line` is the whole line, which may be shorter than its key. A result is why the line cannot be used, empty
// if it can.

std::string Take(int& to, int value, int low, int high) {
    to = value;
    if (value >= low && value <= high) return "";
    return "holds " + NumberText(value) + ", which is not from " + NumberText(low) + " to " + NumberText(high);
}

std::string Take(OptionsFile& file, const Unit& unit, std::string_view, std::string_view line) {
    const auto rows = static_cast<int>(UnitCatalogue()[unit.quantity].rows.size());
    return Take(file.Units[unit.quantity], ToInt32(Val(LastOf(line, 1))), 0, rows - 1);
}

std::string Take(OptionsFile& file, const Number& number, std::string_view, std::string_view line) {
    constexpr ScaleRange kAny{std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    const ScaleRange range = number.range.value_or(kAny);
    return Take(file.Options.*number.value, ToInt32(Val(LastOf(line, number.width))), range.min, range.max);
}

void SetFlag(bool& flag, std::string_view text) { flag = text == "True"; }
void SetFlag(std::optional<bool>& flag, std::string_view text) {
    flag = text.empty() ? std::nullopt : std::optional(text == "True");
}

std::string Take(OptionsFile& file, const OptionFlag& flag, std::string_view key, std::string_view line) {
    std::visit([&](auto member) { SetFlag(file.Options.*member, From(line, key.size())); }, flag);
    return "";
}

}  // namespace

Parsed<OptionsFile> ParseOptions(std::string_view text) {
    const std::vector<std::string_view> lines = EndedLines(text);
    if (lines.size() < kLines.size()) {
        return Refusal{NumberText(static_cast<int>(lines.size())) + " of the " +
                       NumberText(static_cast<int>(kLines.size())) + " lines of an options file, which end in CR LF"};
    }
    OptionsFile file;
    for (std::size_t i = 0; i < kLines.size(); ++i) {
        const std::string fault =
            std::visit([&](const auto& value) { return Take(file, value, kLines[i].key, lines[i]); }, kLines[i].value);
        if (!fault.empty()) return Refusal{"Line " + NumberText(static_cast<int>(i + 1)) + ' ' + fault};
    }
    return file;
}

std::string OptionsText(const OptionsFile& file) {
    std::string text;
    for (const Line& line : kLines) {
        text.append(line.key);
        text.append(std::visit([&](const auto& value) { return TextOf(file, value); }, line.value));
        text.append(kLineEnd);
    }
    return text;
}

}  // namespace zolv
