// A file of any content, opened by the whole program: settings, preset, options, language list, language file or words,
// as the first character says.

#include <cstdint>

#include "files/options_file.h"
#include "files/preset_file.h"
#include "files/settings_file.h"
#include "language/language_list.h"
#include "support/expect.h"
#include "support/fuzzed_program.h"
#include "support/language_input.h"
#include "text/lines.h"
#include "text/texts.h"

namespace zolv {
namespace {

std::map<std::string, std::string> Files() {
    std::map<std::string, std::string> contents = FilesOfStart();
    contents["language_A.txt"] = "no language\r\n";
    return contents;
}

std::string SettingsSavedAs(const std::string& name) {
    files.CurrentFileName = name;
    SaveSettingsFile();
    return FileContent(name);
}

void OpenSettings(FuzzedProgram& program, std::string_view content) {
    PutFile("input.zolv", content);
    OpenSettingsFile("input.zolv");
    if (program.Said("Cannot read")) return program.ExpectAsStarted();
    program.ExpectSound(content);
    if (files.CurrentFileName.empty()) return;  // of an unknown car
    const std::string saved = SettingsSavedAs("saved.zolv");
    OpenSettingsFile("saved.zolv");
    Expect(SettingsSavedAs("again.zolv") == saved, "a saved file opens as it was saved", saved);
    program.ExpectSound(content);
}

/// Added as a car, driven and saved again.
void OpenPreset(FuzzedProgram& program, std::string_view content) {
    PutFile("input.cup", content);
    files.PresetFileName = "input.cup";
    LoadPresetFile();
    if (program.Said("Cannot read")) return program.ExpectAsStarted();
    program.ExpectSound(content);
    CustomPresets.AddCar.Click();
    program.ExpectSound(content);
    if (vehicle.PresetsUsed == 0) return;
    Zolv.Select_Car.SetText(vehicle.CustomName[0]);
    program.ExpectSound(content);
    CustomPresets.EditName.SetText(vehicle.CustomName[0]);
    files.PresetFileName = "saved.cup";
    SavePresetFile();
    LoadPresetFile();
    program.ExpectSound(content);
    Expect(CustomPresets.NewName.Text() == vehicle.CustomName[0], "the name comes back", vehicle.CustomName[0]);
}

std::string SavedOptions() {
    SaveOptions();
    return FileContent("Options.ini");
}

void OpenOptions(FuzzedProgram& program, std::string_view content) {
    static const std::string start = SavedOptions();
    PutFile("Options.ini", content);
    LoadOptions();
    program.ExpectSound(content);
    if (!program.Said("Cannot read") && !program.Said(texts.TextOptionsMissing)) return;
    // The options in memory are applied anew, which draws the tyre under its present load.
    program.ExpectAsStarted({"Zolv.CPS", "Zolv.SV"});
    Expect(FileContent("Options.ini") == content, "a refused file stays");
    Expect(SavedOptions() == start, "a refused file changes no option");
}

void OpenLanguageList(FuzzedProgram& program, std::string_view content) {
    PutFile("languages.lst", content);
    LoadLanguageList();
    const bool refused = program.Said("Cannot read") || program.Said("The language list does not exist");
    if (refused) program.ExpectAsStarted({"LanguageSelection.LanguageSelection"});
    program.ExpectSound(content);
    SaveLanguageChoice();
    const std::string saved = FileContent("languages.lst");
    if (refused) return Expect(saved == content, "a refused list stays", saved);
    const std::vector<std::string_view> lines = EndedLines(saved);
    const std::vector<std::string> names(lines.begin() + 1, lines.end());
    Expect(names == LanguageSelection.LanguageList.Rows(), "a saved choice keeps the names", saved);
}

void OpenLanguage(FuzzedProgram& program, std::string_view input) {
    const std::string content = LanguageFileFrom(input);
    PutFile("language_English.txt", content);
    LanguageSelection.LanguageList.SetText("English");
    if (program.Said("Language file does not") || program.Said("The language file cannot be found")) {
        return program.ExpectAsStarted();
    }
    program.ExpectSound(content);
    Zolv.Ratios.Input[3].Enter("1.65");
    Zolv.Ratios.Input[2].Enter("1.2");  // in the wrong order: the texts of the report
    program.ExpectSound(content);
}

void OpenWords(FuzzedProgram& program, std::string_view content) {
    PutFile("words_English.txt", content);
    LanguageSelection.LanguageList.SetText("English");
    program.ExpectSound(content);
    UnitConv.Distance.Input.Enter("12");  // a sentence around a value
    program.ExpectSound(content);
}

void Open(std::string_view input) {
    static FuzzedProgram program(Files());
    if (input.empty()) return;
    const std::string_view content = input.substr(1);
    switch (input.front()) {
        case 's': OpenSettings(program, content); break;
        case 'p': OpenPreset(program, content); break;
        case 'o': OpenOptions(program, content); break;
        case 'l': OpenLanguageList(program, content); break;
        case 'f': OpenLanguage(program, content); break;
        case 'w': OpenWords(program, content); break;
        default: return;
    }
    program.PutBack();
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Open({reinterpret_cast<const char*>(data), size});
    return 0;
}
