#include "support/zolv_test.h"
#include "model/whole_number.h"

#include <cctype>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

#include "platform/system_text.h"
#include "platform/text_files.h"
#include "shell/fresh_start.h"
#include "shell/start_up.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

Field* OnlyFieldNamed(std::string_view name) {
    const std::vector<Field*> found = FindFields(name);
    EXPECT_EQ(found.size(), 1U) << "fields named " << name;
    return found.size() == 1 ? found.front() : nullptr;
}

std::string TextOf(const Field& field) {
    switch (field.Kind()) {
        case FieldKind::TextBox: return static_cast<const TextBox&>(field).Text();
        case FieldKind::Slider: return NumberText(static_cast<const Slider&>(field).Value());
        case FieldKind::PickList:
        case FieldKind::TabStrip: return static_cast<const PickList&>(field).Text();
        case FieldKind::CheckBox: return static_cast<const CheckBox&>(field).Checked() ? "on" : "off";
        case FieldKind::OptionButton: return static_cast<const OptionButton&>(field).Checked() ? "on" : "off";
        case FieldKind::Picture: return static_cast<const Picture&>(field).Path();
        default: return field.Caption();
    }
}

/// What a field holds beside its text.
std::string StateOf(const Field& field) {
    std::string state = field.Visible() ? "" : " hidden";
    if (!field.Enabled()) state += " disabled";
    if (field.Locked()) state += " locked";
    if (const auto& colour = field.Colour(); colour.has_value()) {
        for (const int part : {colour->red, colour->green, colour->blue}) state += ' ' + std::to_string(part);
    }
    if (!field.ToolTip().empty()) state += " (" + field.ToolTip() + ')';
    if (field.Kind() == FieldKind::Label) {
        const std::string& held = static_cast<const Label&>(field).Held();
        if (!held.empty()) state += " held " + held;
    }
    if (field.Kind() == FieldKind::Slider) {
        const auto& slider = static_cast<const Slider&>(field);
        state += " of " + std::to_string(slider.Min()) + " to " + std::to_string(slider.Max());
    } else if (field.Kind() == FieldKind::Panel && static_cast<const Panel&>(field).InFront()) {
        state += " in front";
    } else if (field.Kind() == FieldKind::PickList) {
        for (const std::string& row : static_cast<const PickList&>(field).Rows()) state += '|' + row;
    }
    return state;
}

std::string TextOf(const Canvas& drawing) {
    std::string text;
    for (const DrawingOperation& operation : drawing.Operations()) {
        text += '\n';
        for (const double number : {operation.x1, operation.y1, operation.x2, operation.y2}) {
            text += std::to_string(number) + ' ';
        }
        for (const int look : {int{operation.width}, int{operation.colour.red}, int{operation.colour.green},
                               int{operation.colour.blue}}) {
            text += std::to_string(look) + ' ';
        }
        if (operation.kind == DrawingOperation::Kind::Text) text += drawing.TextOf(operation);
    }
    return text;
}

/// Whether one of the words of a text is a number that is none. "Info" is a word of its own.
bool SaysNotANumber(const std::string& text) {
    std::string word;
    for (const char c : text + ' ') {
        if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
            word += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            continue;
        }
        if (word == "nan" || word == "inf" || word == "infinity" || word == "ind") return true;
        word.clear();
    }
    return false;
}

}  // namespace

std::string RecordingDialogs::AskForFile(const FileRequest& request) {
    requests.push_back(request);
    if (answers.empty()) return request.presetName;
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
}

TemporaryFolder::TemporaryFolder() : before_(std::filesystem::current_path()) {
    std::random_device random;
    path_ = std::filesystem::canonical(std::filesystem::temp_directory_path()) /
            ("zolv-test-" + std::to_string(random()) + std::to_string(random()));
    if (!std::filesystem::create_directory(path_)) std::abort();
    std::filesystem::current_path(path_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
    std::filesystem::remove_all(path_, ignored);
}

ZolvTest::ZolvTest() {
    UseDialogs(&dialogs_);
    FreshStart();
    WriteContent("unknown.jpg", "a picture");
}

ZolvTest::~ZolvTest() { UseDialogs(nullptr); }

void ZolvTest::TearDown() {
    for (const std::string& message : dialogs_.messages) ADD_FAILURE() << "A message that nobody expected: " << message;
    for (const std::string& answer : dialogs_.answers) ADD_FAILURE() << "No dialog took the answer " << answer;
}

void ZolvTest::Start() {
    LoadZolv();
    if (FileExists("Options.ini") == 0) ExpectMessage(texts.TextOptionsMissing);
    if (FileExists("languages.lst") == 0) ExpectMessage(testing::HasSubstr("language list does not exist"));
}

std::string ZolvTest::TakeMessage() {
    if (dialogs_.messages.empty()) {
        ADD_FAILURE() << "No message came";
        return {};
    }
    std::string message = dialogs_.messages.front();
    dialogs_.messages.pop_front();
    return message;
}

std::string Shown(std::string_view name) {
    const Field* field = OnlyFieldNamed(name);
    return field != nullptr ? TextOf(*field) : std::string();
}

std::string Shown(std::initializer_list<std::string_view> names) {
    std::string shown;
    for (const std::string_view name : names) shown += Shown(name) + '|';
    return shown;
}

void Set(std::string_view name, std::string_view value) {
    Field* field = OnlyFieldNamed(name);
    if (field == nullptr) return;
    switch (field->Kind()) {
        case FieldKind::TextBox: static_cast<TextBox*>(field)->Enter(value); break;
        case FieldKind::Slider: static_cast<Slider*>(field)->Drag(ToInt32(Val(value))); break;
        case FieldKind::PickList:
        case FieldKind::TabStrip: {
            auto& list = static_cast<PickList&>(*field);
            EXPECT_GE(list.Find(value), 0) << name << " has no row " << value;
            list.SetText(value);
            break;
        }
        case FieldKind::CheckBox: static_cast<CheckBox*>(field)->SetChecked(value == "on"); break;
        case FieldKind::OptionButton: static_cast<OptionButton*>(field)->Choose(); break;
        default: ADD_FAILURE() << name << " takes no " << value;
    }
}

void UseCustomCar(const std::string& base, const std::vector<ChangedFigure>& changes) {
    CarFigures figures = vehicle.FiguresOfCar(vehicle.FindCar(base));
    for (const ChangedFigure& change : changes) {
        figures[static_cast<std::size_t>(change.field)] = static_cast<float>(change.value);
    }
    const std::string name = "Custom " + std::to_string(vehicle.PresetsUsed);
    vehicle.StorePreset(vehicle.PresetsUsed++, name, figures);
    Zolv.Select_Car.Add(name);
    Zolv.Select_Car.SetText(name);
}

std::vector<std::string> EverythingShown() {
    std::vector<std::string> shown;
    for (const Window* window : AllWindows()) {
        for (const Field* field : window->Fields()) {
            std::string text = window->Name() + '.' + field->Name() + " = " + TextOf(*field) + StateOf(*field);
            if (field->Kind() == FieldKind::Canvas) text += TextOf(static_cast<const CanvasField&>(*field).Drawing());
            shown.push_back(std::move(text));
        }
    }
    return shown;
}

void ExpectOnlyNumbers() {
    for (const std::string& text : EverythingShown()) EXPECT_FALSE(SaysNotANumber(text)) << text;
}

std::string ContentOf(const std::string& path) {
    std::ifstream file(PathOf(path), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteContent(const std::string& path, std::string_view content) {
    std::ofstream file(PathOf(path), std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    EXPECT_TRUE(file.good()) << path;
}

std::string Replaced(std::string text, const std::string& what, const std::string& other) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + other.size())) {
        text.replace(at, what.size(), other);
    }
    return text;
}

#ifndef _WIN32
FullDisk::FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

FullDisk::~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
}
#endif

}  // namespace zolv
