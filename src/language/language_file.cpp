#include "language/language_file.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

#include "fields/all_windows.h"
#include "language/caption_table.h"
#include "language/field_words.h"
#include "language/language_state.h"
#include "language/language_text.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/texts.h"
#include "units/apply_units.h"
#include "units/unit_catalogue.h"
#include "vehicle/custom_presets.h"

namespace zolv {
namespace {

// A real one has some 9,000 bytes. A suffix as long as the file stands in each of the 1801 rows of the table.
constexpr std::size_t kLongestFile = 65536;

void Fill(PickList& list, std::span<const std::string> rows) {
    list.Clear();
    for (const std::string& row : rows) list.Add(row);
}

/// The row stays, not its text: it is picked by its new name, so that the list's handler sees that. A list with no
/// current row comes back on the first.
void Rebuild(PickList& list, std::span<const std::string> rows) {
    const int row = std::max(0, list.Picked());
    Fill(list, rows);
    list.SetText(rows[static_cast<std::size_t>(row)]);
}

int PlaceOf(Quantity UnitState::*quantity) {
    const auto found = std::ranges::find(UnitCatalogue(), quantity, &QuantityUnits::state);
    return static_cast<int>(found - UnitCatalogue().begin());
}

void RebuildListBehind(const CaptionLine& line) {
    switch (line.list) {
        case LastRowOf::NoList: break;
        case LastRowOf::Drivetrains: FillDrivetrainLists(); break;  // a preset's drivetrain is told by these texts
        case LastRowOf::TyreTypes:
            Fill(Zolv.Select_Tyres2, texts.TyreTypeNames);  // follows the other's click
            Rebuild(Zolv.Select_Tyres, texts.TyreTypeNames);
            break;
        case LastRowOf::Graphs: Rebuild(Zolv.Select_Graphs, texts.GraphNames); break;
        case LastRowOf::Units: RebuildUnitList(PlaceOf(line.targets[0].quantity)); break;
    }
}

/// A name that would lead out of the program's folder has no file there.
bool LeavesFolder(std::string_view name) { return name.find_first_of("/\\") != std::string_view::npos; }

void AssignLines(const LanguageLines& lines) {
    for (const CaptionLine& line : CaptionTable()) {
        AssignCaption(line, lines[static_cast<std::size_t>(line.number)]);
        RebuildListBehind(line);
    }
}

}  // namespace

void ChangeLanguage() {
    const std::string& name = LanguageSelection.LanguageList.Text();
    const std::string path = DataFile("language_" + name + ".txt");
    if (LeavesFolder(name) || FileExists(path) == 0) {
        ShowMessage("The language file cannot be found: " + path);
        return;
    }
    const FileText file = ReadTextFile(path, kLongestFile);
    const Parsed<LanguageLines> lines =
        file.readable ? ParseLanguage(file.text)
                      : Refusal{std::string(kWrongLineCount).append(" ").append(CannotRead(path, file.reason))};
    if (!lines) {
        ShowMessage(lines.Reason());
        return;
    }
    LoadWords(name);  // first, for the lists that are rebuilt below calculate and show
    AssignLines(*lines);
    languageFollowUps.LanguageChanged();
}

std::string WriteBuiltInLanguage(const std::string& path) { return WriteTextFile(path, BuiltInLanguage()); }

}  // namespace zolv
