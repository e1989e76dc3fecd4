#include "language/field_words.h"

#include <optional>
#include <vector>

#include "fields/all_windows.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/number_text.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr std::size_t kLongestFile = 65536;
constexpr std::string_view kToolTip = ".ToolTip";

struct Place {
    Field* field = nullptr;
    bool toolTip = false;
    int tab = -1;  // of a strip; -1 is the field itself
};

/// Place of a name such as "FileOpen", "GearR.ToolTip", "Select_RunView(1)" or "Select_Page(1).ToolTip"; no field for
/// any other.
Place PlaceOf(std::string_view name) {
    Place place{.toolTip = name.ends_with(kToolTip)};
    if (place.toolTip) name.remove_suffix(kToolTip.size());
    if (const std::vector<Field*> found = FindFields(name); found.size() == 1) {
        place.field = found.front();
        return place;
    }
    const auto bracket = name.find('(');
    if (bracket == std::string_view::npos) return {};
    place.tab = static_cast<int>(Val(name.substr(bracket + 1)));
    const std::vector<Field*> found = FindFields(name.substr(0, bracket));
    if (found.size() == 1 && found.front()->Kind() == FieldKind::TabStrip) place.field = found.front();
    return place;
}

/// The place of each row of the table of words. No field comes, goes or changes its name while the program runs.
const std::vector<Place>& Places() {
    static const std::vector<Place> places = [] {
        std::vector<Place> found;
        for (const WordRow& row : kWordTable) found.push_back(PlaceOf(row.name));
        return found;
    }();
    return places;
}

}  // namespace

bool GoesToField(std::string_view name) { return PlaceOf(name).field != nullptr; }

void AssignFieldWords() {
    for (std::size_t row = 0; row < kWordTable.size(); ++row) {
        const Place& place = Places()[row];
        if (place.field == nullptr) continue;
        const std::string& text = words.OfRow(row);
        if (place.tab >= 0 && place.toolTip) {
            static_cast<TabStrip&>(*place.field).SetToolTipOf(place.tab, text);
        } else if (place.tab >= 0) {
            static_cast<TabStrip&>(*place.field).SetRow(place.tab, text);
        } else if (place.toolTip) {
            place.field->SetToolTip(text);
        } else {
            place.field->SetCaption(text);
        }
    }
}

void LoadWords(const std::string& language) {
    const std::string path = DataFile("words_" + language + ".txt");
    const FileText file = ReadTextFile(path, kLongestFile);
    if (!file.readable && !file.missing) ShowMessage(CannotRead(path, file.reason));
    words = Words::Read(file.text);
    AssignFieldWords();
}

}  // namespace zolv
