#include "language/language_list.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include "fields/all_windows.h"
#include "language/language_list_text.h"
#include "language/language_state.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"

namespace zolv {
namespace {

constexpr std::size_t kLongestList = 65536;

constexpr const char* kListName = "languages.lst";

std::string ListPath() { return platform.AppPath + kListName; }

/// Reads the file; nothing, after a message, where it cannot be used.
/// @param lost  what cannot be done without the list
std::optional<LanguageListFile> ReadList(const std::string& lost) {
    const std::string path = DataFile(kListName);
    if (FileExists(path) == 0) {
        ShowMessage("The language list does not exist - the language cannot be " + lost + ".");
        return std::nullopt;
    }
    const FileText file = ReadTextFile(path, kLongestList);
    const Parsed<LanguageListFile> list = file.readable ? ParseLanguageList(file.text) : Refusal{file.reason};
    if (list) return *list;
    ShowMessage(CannotRead(path, list.Reason()));
    return std::nullopt;
}

}  // namespace

void LoadLanguageList() {
    const std::optional<LanguageListFile> stored = ReadList("changed");
    if (!stored) {
        LanguageSelection.SetVisible(false);
        return;
    }
    PickList& list = LanguageSelection.LanguageList;
    list.Clear();
    language.LanguageIndex = stored->Number;
    for (const std::string& name : stored->Names) list.Add(name);

    const int number = stored->Number;
    if (number > static_cast<int>(stored->Names.size())) {
        ShowMessage("Invalid language selection.");
    } else if (number >= 0) {
        list.SetText(stored->Names[static_cast<std::size_t>(std::max(1, number)) - 1]);
    }
}

void SaveLanguageChoice() {
    const std::optional<LanguageListFile> list = ReadList("saved");
    if (!list) return;
    const std::string number = NumberToStore(*list, LanguageSelection.LanguageList.Text());
    const std::string reason = WriteTextFile(ListPath(), LanguageListText(number, list->Names));
    if (!reason.empty()) ShowMessage(CannotWrite(ListPath(), reason));
}

}  // namespace zolv
