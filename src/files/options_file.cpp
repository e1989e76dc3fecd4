#include "files/options_file.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "files/file_state.h"
#include "model/whole_number.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/apply_units.h"
#include "units/option_state.h"
#include "units/options_panel.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

constexpr std::size_t kLongestFile = 65536;  // a real one has some 500 bytes
constexpr std::string_view kLineEnd = "\r\n";

/// A number at the end of its line, so many characters wide. A shorter one has part of the key before it: the blank is
/// skipped, but a colon reads as 0.
struct Number {
    int OptionState::*value;
    std::size_t width;
};

/// The row of a unit: the last character.
struct Unit {
    int quantity;  // place in UnitCatalogue()
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
    {"SpeedPlotX: ",    Number{&OptionState::SpeedPlotXScale, 2}},
    {"SpeedPlotY: ",    Number{&OptionState::SpeedPlotYScale, 4}},
    {"TorqueX: ",       Number{&OptionState::TorquePlotXScale, 4}},
    {"TorqueY: ",       Number{&OptionState::TorquePlotYScale, 4}},
    {"TractiveX: ",     Number{&OptionState::TractivePlotXScale, 2}},
    {"TractiveY: ",     Number{&OptionState::TractivePlotYScale, 4}},
    {"SpeedGraphX: ",   Number{&OptionState::SpeedGraphXScale, 2}},
    {"SpeedGraphY: ",   Number{&OptionState::SpeedGraphYScale, 2}},
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

std::string OptionsPath() { return platform.AppPath + "Options.ini"; }

const QuantityUnits& QuantityOf(const Unit& unit) { return UnitCatalogue()[static_cast<std::size_t>(unit.quantity)]; }

// Writing

std::string FlagText(bool on) { return BooleanText(on); }
std::string FlagText(std::optional<bool> on) { return on ? BooleanText(*on) : ""; }

std::string TextOf(const Unit& unit) { return NumberText((units.*QuantityOf(unit).state).Unit); }
std::string TextOf(const Number& number) { return NumberText(options.*number.value); }
std::string TextOf(const OptionFlag& flag) {
    return std::visit([](auto member) { return FlagText(options.*member); }, flag);
}

// Reading. `line` is the whole line, which may be shorter than its key.

int NumberAtEnd(std::string_view line, std::size_t width) {
    return ToInt32(Val(line.substr(line.size() - std::min(width, line.size()))));
}

int RowAtEnd(std::string_view line) { return NumberAtEnd(line, 1); }

std::string OutsideOf(int low, int high, int value) {
    return "holds " + NumberText(value) + ", which is not from " + NumberText(low) + " to " + NumberText(high);
}

/// Why the line cannot be used; empty if it can.
std::string FaultOf(const Unit& unit, std::string_view line) {
    const int last = static_cast<int>(QuantityOf(unit).rows.size()) - 1;
    const int row = RowAtEnd(line);
    return row <= last ? "" : OutsideOf(0, last, row);
}
std::string FaultOf(const Number& number, std::string_view line) {
    const auto scale = std::find_if(PlotScales().begin(), PlotScales().end(),
                                    [&](const PlotScale& one) { return one.value == number.value; });
    if (scale == PlotScales().end()) return "";
    const int value = NumberAtEnd(line, number.width);
    const bool fits = value >= scale->slider.Min() && value <= scale->slider.Max();
    return fits ? "" : OutsideOf(scale->slider.Min(), scale->slider.Max(), value);
}
std::string FaultOf(const OptionFlag&, std::string_view) { return ""; }

void SetFlag(bool& flag, std::string_view text) { flag = text == "True"; }
void SetFlag(std::optional<bool>& flag, std::string_view text) {
    flag = text.empty() ? std::nullopt : std::optional(text == "True");
}

void Set(const Unit& unit, const Line&, std::string_view line) { SelectUnit(units, unit.quantity, RowAtEnd(line)); }
void Set(const Number& number, const Line&, std::string_view line) {
    options.*number.value = NumberAtEnd(line, number.width);
}
void Set(const OptionFlag& flag, const Line& target, std::string_view line) {
    const std::string_view text = line.substr(std::min(target.key.size(), line.size()));
    std::visit([&](auto member) { SetFlag(options.*member, text); }, flag);
}

/// Why the file cannot be used; empty if it can.
std::string FaultOf(const std::vector<std::string_view>& lines) {
    if (lines.size() < kLines.size()) {
        return NumberText(static_cast<int>(lines.size())) + " of the " + NumberText(static_cast<int>(kLines.size())) +
               " lines of an options file, which end in CR LF";
    }
    for (std::size_t i = 0; i < kLines.size(); ++i) {
        const std::string fault =
            std::visit([&](const auto& value) { return FaultOf(value, lines[i]); }, kLines[i].value);
        if (!fault.empty()) return "Line " + NumberText(static_cast<int>(i + 1)) + ' ' + fault;
    }
    return "";
}

/// The message on a file that is not used; empty when all its lines were set.
std::string ReadOptions() {
    const std::string path = OptionsPath();
    const FileText file = ReadTextFile(path, kLongestFile);
    if (file.missing || (file.readable && file.text.empty())) return texts.TextOptionsMissing;
    if (!file.readable) return CannotRead(path, file.reason);
    const std::vector<std::string_view> lines = EndedLines(file.text);
    const std::string fault = FaultOf(lines);
    if (!fault.empty()) return CannotRead(path, fault);
    for (std::size_t i = 0; i < kLines.size(); ++i) {
        std::visit([&](const auto& value) { Set(value, kLines[i], lines[i]); }, kLines[i].value);
    }
    return "";
}

}  // namespace

void SaveOptions() {
    std::string text;
    for (const Line& line : kLines) {
        text += line.key;
        text += std::visit([](const auto& value) { return TextOf(value); }, line.value);
        text += kLineEnd;
    }
    const std::string reason = WriteTextFile(OptionsPath(), text);
    if (!reason.empty()) ShowMessage(CannotWrite(OptionsPath(), reason));
}

void LoadOptions() {
    const std::string message = ReadOptions();
    if (!message.empty()) ShowMessage(message);
    ApplyOptions();
    fileFollowUps.OptionsLoaded();
}

}  // namespace zolv
