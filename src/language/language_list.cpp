#include "language/language_list.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fields/windows.h"
#include "language/language_state.h"
#include "model/whole_number.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/number_text.h"

namespace zolv {
namespace {

constexpr std::size_t kLongestList = 65536;
constexpr std::string_view kNumberKey = "Language: ";

std::string ListPath() { return platform.AppPath + "languages.lst"; }

/// Reads the file; after a message the result is not readable.
/// @param lost  what cannot be done without the list
FileText ReadList(const std::string& lost) {
    const std::string path = ListPath();
    if (FileExists(path) == 0) {
        ShowMessage("The language list does not exist - the language cannot be " + lost + ".");
        return {};
    }
    FileText file = ReadTextFile(path, kLongestList);
    if (file.readable && EndedLines(file.text).size() < 2) {
        file.readable = false;
        file.reason = "Not a language list, whose lines from the second on name a language each and end in CR LF";
    }
    if (!file.readable) ShowMessage(CannotRead(path, file.reason));
    return file;
}

/// Only the last two characters count, so that 112 is 12.
std::int16_t StoredNumber(std::string_view line) {
    const std::size_t digits = std::min<std::size_t>(2, line.size());
    return std::max<std::int16_t>(0, ToInt16(Val(line.substr(line.size() - digits))));
}

}  // namespace

void LoadLanguageList() {
    const FileText file = ReadList("changed");
    if (!file.readable) {
        LanguageSelection.SetVisible(false);
        return;
    }
    const std::vector<std::string_view> lines = EndedLines(file.text);
    PickList& list = LanguageSelection.LanguageList;
    list.Clear();
    language.LanguageIndex = StoredNumber(lines[0]);
    for (std::size_t i = 1; i < lines.size(); ++i) list.Add(std::string(lines[i]));

    const auto number = static_cast<std::size_t>(language.LanguageIndex);
    if (number < lines.size()) {
        list.SetText(lines[std::max<std::size_t>(1, number)]);
    } else {
        ShowMessage("Invalid language selection.");
    }
}

void SaveLanguageChoice() {
    const FileText file = ReadList("saved");
    if (!file.readable) return;

    // The empty text behind the last line end counts here: where nothing is picked its number is stored, which no
    // language has.
    const std::vector<std::string_view> lines = SplitLines(file.text);
    std::string number;
    std::string names;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (lines[i] == LanguageSelection.LanguageList.Text()) number = NumberText(static_cast<std::int32_t>(i));
        names.append("\r\n").append(lines[i]);
    }
    if (names.ends_with("\r\n")) names.resize(names.size() - 2);
    const std::string reason = WriteTextFile(ListPath(), std::string(kNumberKey) + number + names + "\r\n");
    if (!reason.empty()) ShowMessage(CannotWrite(ListPath(), reason));
}

}  // namespace zolv
