#include "files/settings_file.h"

#include <cstddef>
#include <string>

#include "fields/guards.h"
#include "fields/windows.h"
#include "files/file_state.h"
#include "files/settings_text.h"
#include "model/whole_number.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

constexpr std::string_view kProgramName = "Tarmaq Zolv";
constexpr const char* kPattern = "*.zolv";   // what a cancelled dialog returns
constexpr std::size_t kLongestFile = 65536;  // a real one has some 250 bytes

void Gather(GearingPanel& from, double& finalDrive, std::array<double, 6>& inputs) {
    finalDrive = Val(from.FinalDrive.Text());
    for (std::size_t i = 0; i < inputs.size(); ++i) inputs[i] = Val(from.Input[static_cast<int>(i) + 1].Text());
}

/// The set-up as it stands in the fields.
SettingsFile PresentSettings() {
    SettingsFile file;
    file.CarName = Zolv.Select_Car.Text();
    file.FPressure = Zolv.Select_PressureF.Value();
    file.RPressure = Zolv.Select_PressureR.Value();
    Gather(Zolv.Ratios, file.GearF, file.Gear);
    Gather(Zolv.Speeds, file.Final, file.Speed);
    file.FWing = Zolv.Select_FrontWingAngle.Value();
    file.RWing = Zolv.Select_RearWingAngle.Value();
    return file;
}

void Write(GearingPanel& to, double finalDrive, const std::array<double, 6>& inputs) {
    to.FinalDrive.SetText(NumberText(finalDrive));
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        to.Input[static_cast<int>(i) + 1].SetText(NumberText(inputs[i]));
    }
}

/// Writes a set-up to the fields, whose order is that of the file. Nothing but the car and the pressures starts a
/// calculation on the way.
void Apply(const SettingsFile& file) {
    const Raised busy(guards.Busy);
    Zolv.Select_Car.SetText(file.CarName);
    Zolv.Select_PressureF.SetValue(ToInt32(file.FPressure));
    Zolv.Select_PressureR.SetValue(ToInt32(file.RPressure));
    Write(Zolv.Ratios, file.GearF, file.Gear);
    Write(Zolv.Speeds, file.Final, file.Speed);
    Zolv.Select_FrontWingAngle.SetValue(ToInt32(file.FWing));
    Zolv.Select_RearWingAngle.SetValue(ToInt32(file.RWing));
}

/// @return whether it was written; if not, a message has said why
bool SaveTo(const std::string& name) {
    const std::string reason = WriteTextFile(name, SettingsText(PresentSettings()));
    if (!reason.empty()) ShowMessage(CannotWrite(name, reason));
    return reason.empty();
}

void SetCurrentFile(const std::string& name) {
    files.CurrentFileName = name;
    std::string title(kProgramName);
    if (!name.empty()) title += " (" + name + ')';
    Zolv.SetTitle(title);
}

bool IsThere(const std::string& car) { return vehicle.FindCar(car) >= 0 || vehicle.FindPreset(car) >= 0; }

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

bool LoadSettingsFile() {
    const FileText file = ReadTextFile(files.OpenFileName, kLongestFile);
    const Parsed<SettingsFile> settings = file.readable ? ParseSettings(file.text) : Refusal{file.reason};
    if (!settings) {
        ShowMessage(CannotRead(files.OpenFileName, settings.Reason()));
        return false;
    }
    if (!IsThere(settings->CarName)) {
        SetCurrentFile({});
        ShowMessage(texts.TextCarNotSupported + "\r\n" + texts.TextTryAddingIt);
        return true;
    }
    Apply(*settings);
    SetCurrentFile(files.OpenFileName);
    return true;
}

void OpenSettings() {
    const std::string name = AskForFile(RequestFor(false));
    if (name != kPattern) OpenSettingsFile(name);
}

void OpenSettingsFile(const std::string& name) {
    files.OpenFileName = name;
    if (LoadSettingsFile()) fileFollowUps.SettingsOpened();
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

std::string PresentSettingsText() { return SettingsText(PresentSettings()); }

void OpenSettingsText(std::string_view text) {
    const Parsed<SettingsFile> settings = ParseSettings(text);
    if (!settings || !IsThere(settings->CarName)) return;
    Apply(*settings);
    fileFollowUps.SettingsOpened();
}

}  // namespace zolv
