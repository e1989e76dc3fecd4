#include "support/fuzzed_program.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "fields/guards.h"
#include "files/options_file.h"
#include "model/whole_number.h"
#include "shell/fresh_start.h"
#include "shell/start_up.h"
#include "support/expect.h"
#include "text/number_text.h"
#include "units/options_panel.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;

bool IsLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

char CharacterAt(std::string_view text, std::size_t at) { return at < text.size() ? text[at] : ' '; }

/// A text that no number reads: not part of a longer word, behind a digit for an exponent.
struct BadNumber {
    std::string_view text;
    bool exponent;
};
constexpr BadNumber kBadNumbers[] = {{"nan", false}, {"inf", false}, {"NaN", false}, {"NAN", false},
                                     {"Inf", false}, {"INF", false}, {"e+", true},   {"e-", true}};

bool StandsAt(std::string_view shown, std::size_t at, const BadNumber& bad) {
    const char before = at > 0 ? shown[at - 1] : ' ';
    const char behind = CharacterAt(shown, at + bad.text.size());
    return bad.exponent ? IsDigit(before) && IsDigit(behind) : !IsLetter(before) && !IsLetter(behind);
}

void ExpectNumbers(std::string_view shown, std::string_view input, std::string_view where) {
    for (const BadNumber& bad : kBadNumbers) {
        for (auto at = shown.find(bad.text); at != std::string_view::npos; at = shown.find(bad.text, at + 1)) {
            if (!StandsAt(shown, at, bad)) continue;
            Expect(input.find(bad.text) != std::string_view::npos, where,
                   std::string(shown.substr(at > 20 ? at - 20 : 0, 60)));
        }
    }
}

/// What a user has typed is his own.
bool IsTyped(const Field& field) { return field.Kind() == FieldKind::TextBox && !field.Locked(); }

void ExpectNumbers(const Field& field, std::string_view input) {
    if (IsTyped(field)) return;
    const SavedField shown(field);
    for (const std::string& text : {shown.look.caption, shown.look.toolTip, shown.text}) {
        ExpectNumbers(text, input, field.Name());
    }
    for (const std::string& row : shown.rows) ExpectNumbers(row, input, field.Name());
    if (!shown.drawing) return;
    for (const DrawingOperation& operation : shown.drawing->Operations()) {
        if (operation.kind == DrawingOperation::Kind::Text) {
            ExpectNumbers(shown.drawing->TextOf(operation), input, field.Name());
        }
        for (const double number : {operation.x1, operation.y1, operation.x2, operation.y2}) {
            Expect(std::isfinite(number), "a finite coordinate", field.Name());
        }
    }
}

void ExpectAgree(const TextBox& box, const Slider& slider, double scale) {
    Expect(slider.Value() == ToInt32(Val(box.Text()) * scale), "slider and box agree",
           box.Name() + " = " + box.Text() + ", slider = " + std::to_string(slider.Value()));
}

void ExpectSlidersAgree() {
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) {
        ExpectAgree(panel->FinalDrive, panel->FinalDriveSlider, 1000);
        for (int gear = 1; gear <= 6; ++gear) {
            ExpectAgree(panel->Input[gear], panel->InputSlider[gear], panel == &Zolv.Ratios ? 1000 : 1);
        }
    }
    Expect(Zolv.Select_AeroSpeed.Value() == Zolv.Select_AeroSpeed_TyreTab.Value(), "both sliders of the air's speed");
    for (const PlotScale& scale : PlotScales()) {
        Expect(scale.slider.Value() == options.*scale.value, "slider and option agree", scale.slider.Name());
    }
}

void ExpectGuardsDown() {
    Expect(!guards.Busy, "Busy is down");
    Expect(!guards.Loading, "Loading is down");
    Expect(!presets.LoadingPreset, "LoadingPreset is down");
    Expect(!tyres.CopyingTyreType, "CopyingTyreType is down");
}

}  // namespace

std::string Confined(std::string path) {
    std::ranges::replace_if(
        path, [](char c) { return c == '/' || c == '\\'; }, '_');
    return path;
}

std::string ConfinedDialogs::AskForFile(const FileRequest& request) {
    return Confined(ScriptDialogs::AskForFile(request));
}

FuzzedProgram::FuzzedProgram(std::map<std::string, std::string> contents)
    : files_(std::move(contents)), before_(fs::current_path()) {
    std::string name = (fs::temp_directory_path() / "zolv-fuzz-XXXXXX").string();
    Expect(::mkdtemp(name.data()) != nullptr, "a temporary folder", name);
    folder_ = name;
    fs::current_path(folder_);
    FillFolder();
    dialogs_.emplace();
    UseDialogs(&*dialogs_);
    FreshStart();
    LoadZolv();
    image_.emplace();
}

FuzzedProgram::~FuzzedProgram() {
    UseDialogs(nullptr);
    std::error_code ignored;
    fs::current_path(before_, ignored);
    fs::remove_all(folder_, ignored);
}

void FuzzedProgram::FillFolder() {
    for (const auto& entry : fs::directory_iterator(folder_)) {
        if (!files_.contains(entry.path().filename().string())) fs::remove_all(entry.path());
    }
    for (const auto& [name, content] : files_) PutFile(name, content);
}

void FuzzedProgram::PutBack() {
    image_->PutBack();
    FillFolder();
    dialogs_.emplace();
    UseDialogs(&*dialogs_);
}

bool FuzzedProgram::Said(std::string_view beginning) const {
    return std::ranges::any_of(dialogs_->messages,
                               [&](const std::string& text) { return text.starts_with(beginning); });
}

void FuzzedProgram::ExpectSound(std::string_view input, std::string_view printed) {
    ExpectGuardsDown();
    ExpectSlidersAgree();
    ExpectNumbers(printed, input, "printed");
    for (const std::string& message : dialogs_->messages) ExpectNumbers(message, input, "message");
    for (const Field* field : ChangedFields()) ExpectNumbers(*field, input);
}

void FuzzedProgram::ExpectAsStarted(const std::vector<std::string>& exceptFor) {
    ExpectGuardsDown();
    for (const std::string& name : image_->Differences()) {
        Expect(std::ranges::find(exceptFor, name) != exceptFor.end(), "a refused file changes nothing", name);
    }
}

void PutFile(const std::string& name, std::string_view content) {
    std::ofstream file(name, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    Expect(static_cast<bool>(file.flush()), "a file can be written", name);
}

std::string FileContent(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::map<std::string, std::string> FilesOfStart() {
    std::string content = FileContent(ZOLV_SOURCE_DIR "/data/Options.ini");
    constexpr std::string_view kRun = "Acceleration: ";
    content.replace(content.find(kRun) + kRun.size(), std::string_view("True").size(), "False");
    return {
        {"Options.ini", content},
        {"languages.lst", "Language: 1\r\nEnglish\r\n"},
        {"language_English.txt", FileContent(ZOLV_SOURCE_DIR "/data/language_English.txt")},
        {"unknown.jpg", "a picture"},
    };
}

}  // namespace zolv
