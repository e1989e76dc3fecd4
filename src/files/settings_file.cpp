#include "files/settings_file.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "desk/held.h"
#include "desk/history.h"
#include "desk/present.h"
#include "fields/all_windows.h"
#include "files/file_state.h"
#include "files/settings_text.h"
#include "model/whole_number.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

constexpr std::string_view kProgramName = "Tarmaq Zolv";
constexpr const char* kPattern = "*.zolv";   // what a cancelled dialog returns
constexpr double kBaseUnit = 1;              // m/s
constexpr std::size_t kLongestFile = 65536;  // a real one has some 250 bytes

std::array<double, 6> Numbers(const PerGear<double>& gears, double factor) {
    std::array<double, 6> numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = gears[i + 1] * factor;
    return numbers;
}

PerGear<double> Gears(const std::array<double, 6>& numbers, double factor) {
    PerGear<double> gears;
    for (std::size_t i = 0; i < numbers.size(); ++i) gears[i + 1] = numbers[i] / factor;
    return gears;
}

/// What of a set-up a file holds.
/// @param speedUnit  factor of the unit that its speeds are written in
SettingsFile FileOf(const SetUp& setUp, double speedUnit) {
    return {.CarName = setUp.CarName,
            .FPressure = static_cast<double>(setUp.FrontPressure),
            .RPressure = static_cast<double>(setUp.RearPressure),
            .GearF = setUp.FinalDrive[0],
            .Gear = Numbers(setUp.Ratios, 1),
            .Final = setUp.FinalDrive[1],
            .Speed = Numbers(setUp.Speeds, speedUnit),
            .FWing = static_cast<double>(setUp.FrontWingAngle),
            .RWing = static_cast<double>(setUp.RearWingAngle)};
}

/// The set-up with what a file holds of one; the rest stays.
SetUp With(SetUp setUp, const SettingsFile& file, double speedUnit) {
    setUp.CarName = file.CarName;
    setUp.FrontPressure = ToInt32(file.FPressure);
    setUp.RearPressure = ToInt32(file.RPressure);
    setUp.FinalDrive = {file.GearF, file.Final};
    setUp.Ratios = Gears(file.Gear, 1);
    setUp.Speeds = Gears(file.Speed, speedUnit);
    setUp.FrontWingAngle = ToInt32(file.FWing);
    setUp.RearWingAngle = ToInt32(file.RWing);
    return setUp;
}

/// @return whether it was written; if not, a message has said why
bool SaveTo(const std::string& name) {
    const std::string reason = WriteTextFile(name, SettingsText(FileOf(PresentSetUp(), units.Speed.Factor)));
    if (reason.empty()) {
        NoteSaved();
    } else {
        ShowMessage(CannotWrite(name, reason));
    }
    return reason.empty();
}

void SetCurrentFile(const std::string& name) {
    files.CurrentFileName = name;
    std::string title(kProgramName);
    if (!name.empty()) title += " (" + name + ')';
    Zolv.SetTitle(title);
}

bool IsThere(const std::string& car) { return vehicle.RecordNamed(car).has_value(); }

FileRequest RequestFor(bool saving) {
    return {.forSaving = saving,
            .title = saving ? texts.TextSaveSettings : texts.TextOpenSettings,
            .filterLabel = texts.TextSettingsFilter,
            .presetName = kPattern,
            .defaultExtension = saving ? "zolv" : "",
            .proposedName = !saving                         ? ""
                            : files.CurrentFileName.empty() ? Zolv.Select_Car.Text()
                                                            : files.CurrentFileName};
}

}  // namespace

void SaveSettingsFile() { SaveTo(files.CurrentFileName); }

void OpenSettings() {
    const std::string name = AskForFile(RequestFor(false));
    if (name != kPattern) OpenSettingsFile(name);
}

void OpenSettingsFile(const std::string& name) {
    files.OpenFileName = name;
    const FileText file = ReadTextFile(name, kLongestFile);
    const Parsed<SettingsFile> settings = file.readable ? ParseSettings(file.text) : Refusal{file.reason};
    if (!settings) {
        ShowMessage(CannotRead(name, settings.Reason()));
    } else if (!IsThere(settings->CarName)) {
        SetCurrentFile({});
        ShowMessage(texts.TextCarNotSupported + "\r\n" + texts.TextTryAddingIt);
        deskFollowUps.LaidOut();  // what was there before lies there still
    } else {
        SetCurrentFile(name);
        history.Opened = NameOfFile(name);
        LayOut(With(PresentSetUp(), *settings, units.Speed.Factor));
        NoteSaved();
    }
}

void HoldSettings() {
    const std::string name = AskForFile(RequestFor(false));
    if (name != kPattern) HoldSettingsFile(name);
}

void HoldSettingsFile(const std::string& name) {
    const FileText file = ReadTextFile(name, kLongestFile);
    const Parsed<SettingsFile> settings = file.readable ? ParseSettings(file.text) : Refusal{file.reason};
    if (!settings) return ShowMessage(CannotRead(name, settings.Reason()));
    const std::optional<CarRecord> car = vehicle.RecordNamed(settings->CarName);
    if (!car) return ShowMessage(CannotRead(name, words.Sentence("CarIsGone", {settings->CarName})));
    SetUp setUp = With(PresentSetUp(), *settings, units.Speed.Factor);
    setUp.Car = *car;
    Hold(WithinRanges(std::move(setUp)), NameOfFile(name));
}

void SaveSettings() {
    if (files.CurrentFileName.empty()) {
        SaveSettingsAs();
    } else {
        SaveSettingsFile();
    }
}

void SaveSettingsAs() {
    const std::string name = AskForFile(RequestFor(true));
    if (name != kPattern && SaveTo(name)) SetCurrentFile(name);
}

void CloseSettings() { SetCurrentFile({}); }

void NoteSaved() { files.Saved = FileOf(PresentSetUp(), kBaseUnit); }

bool SettingsChanged() { return FileOf(PresentSetUp(), kBaseUnit) != files.Saved; }

std::string PresentSettingsText() { return SettingsText(FileOf(PresentSetUp(), kBaseUnit)); }

bool LayOutSettingsText(std::string_view text) {
    const Parsed<SettingsFile> settings = ParseSettings(text);
    return settings && IsThere(settings->CarName) && LayOutExactly(With(PresentSetUp(), *settings, kBaseUnit));
}

void ResumeFile(const std::string& name) {
    const FileText file = ReadTextFile(name, kLongestFile);
    const Parsed<SettingsFile> settings = file.readable ? ParseSettings(file.text) : Refusal{file.reason};
    if (!settings) return;
    SetCurrentFile(name);
    files.Saved = FileOf(With({}, *settings, units.Speed.Factor), kBaseUnit);
}

}  // namespace zolv
