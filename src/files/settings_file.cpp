#include "files/settings_file.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fields/guards.h"
#include "fields/windows.h"
#include "files/file_state.h"
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

/// One line behind the car's name: where its value comes from and goes to.
struct Line {
    std::string_view key;
    TextBox* box;
    Slider* slider;
    std::size_t readFrom;  // the reader's first character, from 0; on the blank behind the key or behind it
};

const std::array<Line, 18>& Lines() {
    GearingPanel& ratios = Zolv.Ratios;
    GearingPanel& speeds = Zolv.Speeds;
    static const std::array<Line, 18> kLines{{
        {"FPressure: ", nullptr, &Zolv.Select_PressureF, 11},
        {"RPressure: ", nullptr, &Zolv.Select_PressureR, 11},
        {"GearF: ", &ratios.FinalDrive, nullptr, 6},
        {"Gear1: ", &ratios.Input[1], nullptr, 6},
        {"Gear2: ", &ratios.Input[2], nullptr, 6},
        {"Gear3: ", &ratios.Input[3], nullptr, 6},
        {"Gear4: ", &ratios.Input[4], nullptr, 6},
        {"Gear5: ", &ratios.Input[5], nullptr, 6},
        {"Gear6: ", &ratios.Input[6], nullptr, 6},
        {"Final: ", &speeds.FinalDrive, nullptr, 6},
        {"Speed1: ", &speeds.Input[1], nullptr, 7},
        {"Speed2: ", &speeds.Input[2], nullptr, 7},
        {"Speed3: ", &speeds.Input[3], nullptr, 7},
        {"Speed4: ", &speeds.Input[4], nullptr, 7},
        {"Speed5: ", &speeds.Input[5], nullptr, 7},
        {"Speed6: ", &speeds.Input[6], nullptr, 7},
        {"FWing: ", nullptr, &Zolv.Select_FrontWingAngle, 6},
        {"RWing: ", nullptr, &Zolv.Select_RearWingAngle, 6},
    }};
    return kLines;
}

constexpr std::string_view kNameKey = "CarName: ";
constexpr std::size_t kLineCount = 19;

/// A short line has nothing from that position on.
std::string_view From(std::string_view line, std::size_t position) {
    return position < line.size() ? line.substr(position) : std::string_view();
}

void Apply(const Line& target, std::string_view line) {
    const double value = Val(From(line, target.readFrom));
    if (target.slider != nullptr) {
        target.slider->SetValue(ToInt32(value));
    } else {
        target.box->SetText(NumberText(value));
    }
}

std::string TooFewLines(std::size_t count) {
    return NumberText(static_cast<std::int32_t>(count)) + " of the " +
           NumberText(static_cast<std::int32_t>(kLineCount)) + " lines of a settings file, which end in CR LF";
}

void SetCurrentFile(const std::string& name) {
    files.CurrentFileName = name;
    std::string title(kProgramName);
    if (!name.empty()) title += " (" + name + ')';
    Zolv.SetTitle(title);
}

FileRequest RequestFor(bool saving) {
    return {.forSaving = saving,
            .title = saving ? texts.TextSaveSettings : texts.TextOpenSettings,
            .filterLabel = texts.TextSettingsFilter,
            .presetName = kPattern,
            .defaultExtension = saving ? "zolv" : ""};
}

}  // namespace

void SaveSettingsFile() {
    std::string text(kNameKey);
    text += Zolv.Select_Car.Text();
    text += "\r\n";
    for (const Line& line : Lines()) {
        text += line.key;
        text += line.slider != nullptr ? NumberText(line.slider->Value()) : NumberText(Val(line.box->Text()));
        text += "\r\n";
    }
    const std::string reason = WriteTextFile(files.CurrentFileName, text);
    if (!reason.empty()) ShowMessage(CannotWrite(files.CurrentFileName, reason));
}

bool LoadSettingsFile() {
    const FileText file = ReadTextFile(files.OpenFileName, kLongestFile);
    if (!file.readable) {
        ShowMessage(CannotRead(files.OpenFileName, file.reason));
        return false;
    }
    const std::vector<std::string_view> lines = EndedLines(file.text);
    if (lines.size() < kLineCount) {
        ShowMessage(CannotRead(files.OpenFileName, TooFewLines(lines.size())));
        return false;
    }
    const std::string name(From(lines[0], kNameKey.size()));
    if (vehicle.FindCar(name) < 0 && vehicle.FindPreset(name) < 0) {
        SetCurrentFile({});
        ShowMessage(texts.TextCarNotSupported + "\r\n" + texts.TextTryAddingIt);
        return true;
    }
    {
        const Raised busy(guards.Busy);
        Zolv.Select_Car.SetText(name);
        for (std::size_t i = 0; i < Lines().size(); ++i) Apply(Lines()[i], lines[i + 1]);
    }
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
    if (name == kPattern) return;
    SetCurrentFile(name);
    SaveSettingsFile();
}

void CloseSettings() { SetCurrentFile({}); }

}  // namespace zolv
