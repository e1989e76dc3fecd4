#include "files/preset_text.h"

#include <vector>

#include "files/missing_lines.h"
#include "text/lines.h"
#include "text/number_text.h"

namespace zolv {
namespace {

/// The keys of the lines. The name comes first, then the figures in the order of the record.
constexpr std::string_view kNameKey = "Name: ";
constexpr std::array<std::string_view, kPresetFileFigures> kKeys = {
    "Power: ",        "PowerRPM: ",     "Torque: ",       "TorqueRPM: ",    "IdleRPM: ",     "DrivetrainType: ",
    "NumGears: ",     "Mass: ",         "WeightDist: ",   "Cd: ",           "FTW: ",         "FTP: ",
    "FWS: ",          "FTrack: ",       "RTW: ",          "RTP: ",          "RWS: ",         "RTrack: ",
    "Wheelbase: ",    "UnsprungMass: ", "Efficiency: ",   "Reverse: ",      "FrontalArea: ", "Cl: ",
    "FMinPressure: ", "FMaxPressure: ", "RMinPressure: ", "RMaxPressure: ",
};
constexpr std::size_t kLines = 1 + kKeys.size();
static_assert(kLines == 29 && kKeys[static_cast<std::size_t>(CarField::RMaxPressure)] == "RMaxPressure: ");

/// Behind the colon, wherever another key stands, so that the blank may be missing.
double NumberOf(std::string_view line, std::string_view key) { return Val(From(line, key.size() - 1)); }

double DrivetrainOf(std::string_view line) {
    const std::string_view code = LastOf(line, 1);
    return code == "0" || code == "1" || code == "2" ? Val(code) : kUnknownDrivetrain;
}

double FigureOf(std::size_t figure, std::string_view line) {
    switch (static_cast<CarField>(figure)) {
        case CarField::DrivetrainType: return DrivetrainOf(line);
        case CarField::NumGears: return Val(LastOf(line, 1));
        default: return NumberOf(line, kKeys[figure]);
    }
}

}  // namespace

Parsed<PresetFile> ParsePreset(std::string_view text) {
    const std::vector<std::string_view> lines = EndedLines(text);
    if (lines.size() < kLines) return Refusal{MissingLines(text, "a custom preset", kLines)};
    PresetFile file{.Name = std::string(From(lines[0], kNameKey.size()))};
    for (std::size_t i = 0; i < kPresetFileFigures; ++i) file.Figures[i] = FigureOf(i, lines[1 + i]);
    return file;
}

std::string PresetText(const std::string& name, const CarFigures& figures) {
    std::string text;
    text.append(kNameKey).append(name).append(kLineEnd);
    for (std::size_t i = 0; i < kPresetFileFigures; ++i) {
        text.append(kKeys[i]).append(NumberText(figures[i])).append(kLineEnd);
    }
    return text;
}

}  // namespace zolv
