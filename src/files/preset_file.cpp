#include "files/preset_file.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "fields/all_windows.h"
#include "fields/guards.h"
#include "files/file_state.h"
#include "files/preset_text.h"
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

constexpr std::size_t kLongestFile = std::size_t{64} * 1024;  // bytes; a preset file has some 400
constexpr const char* kAnyPresetFile = "*.cup";

void ShowDrivetrain(double drivetrain) {
    if (drivetrain == kUnknownDrivetrain) return;
    CustomPresets.New.Drivetrain.SetText(*DrivetrainNames()[static_cast<std::size_t>(drivetrain)]);
}

void FillAddPanel(const PresetFile& file) {
    CustomPresets.NewName.SetText(file.Name);
    for (std::size_t i = 0; i < file.Figures.size(); ++i) {
        const auto field = static_cast<CarField>(i);
        if (field == CarField::DrivetrainType) ShowDrivetrain(file[field]);
        if (field == CarField::NumGears) CustomPresets.New.Gears.SetText(NumberText(file[field]));
        const PresetFigure* const figure = FindPresetFigure(field);
        if (figure != nullptr) figure->AddBox().SetText(NumberText(file[field] * figure->Scale()));
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

void ShowBaseCarOf(const PresetFile& file) {
    const Raised loading(presets.LoadingPreset);
    const auto baseCar =
        FindBaseCar(static_cast<float>(file[CarField::RMaxPressure]), static_cast<float>(file[CarField::Reverse]));
    if (baseCar) CustomPresets.NewCar.SetText(vehicle.CarName[*baseCar]);
}

FileRequest RequestFor(bool saving) {
    return {.forSaving = saving,
            .title = saving ? texts.TextSavePreset : texts.TextLoadPreset,
            .filterLabel = "Zolv Custom Preset File (*.cup)",
            .presetName = kAnyPresetFile,
            .defaultExtension = saving ? "cup" : "",
            .proposedName = saving ? CustomPresets.EditName.Text() : ""};
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
    const std::string text = PresetText(CustomPresets.EditName.Text(), vehicle.FiguresOfPreset(*preset));
    const std::string reason = WriteTextFile(files.PresetFileName, text);
    if (!reason.empty()) ShowMessage(CannotWrite(files.PresetFileName, reason));
}

void LoadPresetFile() {
    const FileText file = ReadTextFile(files.PresetFileName, kLongestFile);
    const Parsed<PresetFile> preset = file.readable ? ParsePreset(file.text) : Refusal{file.reason};
    if (!preset) {
        ShowMessage(CannotRead(files.PresetFileName, preset.Reason()));
        return;
    }
    FillAddPanel(*preset);
    ShowBaseCarOf(*preset);
}

void SavePresetAs() {
    if (ChosenPreset() && ChoosePresetFile(RequestFor(true))) SavePresetFile();
}

void LoadPresetFrom() {
    if (ChoosePresetFile(RequestFor(false))) LoadPresetFile();
}

}  // namespace zolv
