#include "files/preset_file.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fields/guards.h"
#include "fields/windows.h"
#include "files/file_state.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "vehicle/custom_presets.h"
#include "vehicle/preset_figures.h"
#include "vehicle/preset_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kLongestFile = std::size_t{64} * 1024;  // bytes; a preset file has some 400
constexpr const char* kAnyPresetFile = "*.cup";

/// The keys of the lines. The name comes first, then the record in its order, but for the fittings at its end.
constexpr std::string_view kNameKey = "Name: ";
constexpr std::array<std::string_view, 28> kKeys = {
    "Power: ",        "PowerRPM: ",     "Torque: ",       "TorqueRPM: ",    "IdleRPM: ",     "DrivetrainType: ",
    "NumGears: ",     "Mass: ",         "WeightDist: ",   "Cd: ",           "FTW: ",         "FTP: ",
    "FWS: ",          "FTrack: ",       "RTW: ",          "RTP: ",          "RWS: ",         "RTrack: ",
    "Wheelbase: ",    "UnsprungMass: ", "Efficiency: ",   "Reverse: ",      "FrontalArea: ", "Cl: ",
    "FMinPressure: ", "FMaxPressure: ", "RMinPressure: ", "RMaxPressure: ",
};
constexpr std::size_t kLines = 1 + kKeys.size();
static_assert(kLines == 29 && kKeys[IndexOf(CarField::RMaxPressure)] == "RMaxPressure: ");

using Lines = std::vector<std::string_view>;

std::string_view From(std::string_view line, std::size_t first) { return line.substr(std::min(first, line.size())); }

std::string_view LineOf(const Lines& lines, CarField field) { return lines[1 + IndexOf(field)]; }

/// The number of a line: behind the colon, wherever another key stands, so that the blank may be missing.
double NumberOf(const Lines& lines, CarField field) {
    const std::size_t behindColon = kKeys[IndexOf(field)].size() - 1;
    return Val(From(LineOf(lines, field), behindColon));
}

std::string_view LastCharacter(std::string_view line) { return line.substr(line.empty() ? 0 : line.size() - 1); }

std::string TextOf(const std::string& name, const CarFigures& figures) {
    std::string text;
    text.append(kNameKey).append(name).append(kLineEnd);
    for (std::size_t i = 0; i < kKeys.size(); ++i) {
        text.append(kKeys[i]).append(NumberText(figures[i])).append(kLineEnd);
    }
    return text;
}

void ShowDrivetrain(std::string_view code) {
    PickList& list = CustomPresets.New.Drivetrain;
    if (code == "0") list.SetText(texts.TextFWD);
    if (code == "1") list.SetText(texts.TextRWD);
    if (code == "2") list.SetText(texts.TextAWD);
}

void FillAddPanel(const Lines& lines) {
    CustomPresets.NewName.SetText(std::string(From(lines[0], kNameKey.size())));
    for (std::size_t i = 0; i < kKeys.size(); ++i) {
        const auto field = static_cast<CarField>(i);
        if (field == CarField::DrivetrainType) ShowDrivetrain(LastCharacter(LineOf(lines, field)));
        if (field == CarField::NumGears) {
            CustomPresets.New.Gears.SetText(NumberText(Val(LastCharacter(LineOf(lines, field)))));
        }
        const PresetFigure* const figure = FindPresetFigure(field);
        if (figure != nullptr) figure->AddBox().SetText(NumberText(NumberOf(lines, field) * figure->Scale()));
    }
}

/// The file holds no base car's name: the highest rear pressure tells the cars apart, and among several the reverse
/// ratio does. The first by index where both agree.
std::optional<std::size_t> FindBaseCar(float maxPressure, float reverse) {
    const auto figureOf = [](std::size_t car, CarField field) {
        return vehicle.FiguresOfCar(static_cast<int>(car))[IndexOf(field)];
    };
    std::vector<std::size_t> candidates;
    for (std::size_t car = 0; car < kCars; ++car) {
        if (figureOf(car, CarField::RMaxPressure) == maxPressure) candidates.push_back(car);
    }
    if (candidates.size() == 1) return candidates.front();
    for (const std::size_t car : candidates) {
        if (figureOf(car, CarField::Reverse) == reverse) return car;
    }
    return std::nullopt;
}

void ShowBaseCarOf(const Lines& lines) {
    const Raised loading(presets.LoadingPreset);
    const auto baseCar = FindBaseCar(static_cast<float>(NumberOf(lines, CarField::RMaxPressure)),
                                     static_cast<float>(NumberOf(lines, CarField::Reverse)));
    if (baseCar) CustomPresets.NewCar.SetText(vehicle.CarName[*baseCar]);
}

FileRequest RequestFor(bool saving) {
    return {.forSaving = saving,
            .title = saving ? texts.TextSavePreset : texts.TextLoadPreset,
            .filterLabel = "Zolv Custom Preset File (*.cup)",
            .presetName = kAnyPresetFile,
            .defaultExtension = saving ? "cup" : ""};
}

/// Lets the user choose the preset file; false when the dialog was cancelled.
bool ChoosePresetFile(const FileRequest& request) {
    const std::string name = AskForFile(request);
    if (name == kAnyPresetFile) return false;
    files.PresetFileName = name;
    return true;
}

}  // namespace

void SavePresetFile() {
    const std::optional<int> preset = ChosenPreset();
    if (!preset) return;
    const std::string text = TextOf(CustomPresets.EditName.Text(), vehicle.FiguresOfPreset(*preset));
    const std::string reason = WriteTextFile(files.PresetFileName, text);
    if (!reason.empty()) ShowMessage(CannotWrite(files.PresetFileName, reason));
}

void LoadPresetFile() {
    const FileText file = ReadTextFile(files.PresetFileName, kLongestFile);
    if (!file.readable) {
        ShowMessage(CannotRead(files.PresetFileName, file.reason));
        return;
    }
    const Lines lines = EndedLines(file.text);
    if (lines.size() < kLines) {
        ShowMessage(CannotRead(files.PresetFileName, "Not a preset file, which has 29 lines ended by CR LF"));
        return;
    }
    FillAddPanel(lines);
    ShowBaseCarOf(lines);
}

void SavePresetAs() {
    if (ChosenPreset() && ChoosePresetFile(RequestFor(true))) SavePresetFile();
}

void LoadPresetFrom() {
    if (ChoosePresetFile(RequestFor(false))) LoadPresetFile();
}

}  // namespace zolv
