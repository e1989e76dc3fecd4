#include "language/caption_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <algorithm>

#include <map>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "fields/all_windows.h"
#include "shell/fresh_start.h"
#include "text/words.h"

namespace zolv {
namespace {

using testing::IsEmpty;

bool NamesField(const Target& target) {
    return target.kind == Target::Kind::Caption || target.kind == Target::Kind::ToolTip ||
           target.kind == Target::Kind::Tab;
}

template <class Work>
void ForEachFieldTarget(Work work) {
    for (const CaptionLine& line : CaptionTable()) {
        for (const Target& target : line.targets) {
            if (NamesField(target)) work(line, target);
        }
    }
}

TEST(CaptionTable, EachTargetIsOneField) {
    ForEachFieldTarget([](const CaptionLine& line, const Target& target) {
        const std::vector<Field*> fields = FindFields(target.field);
        ASSERT_EQ(fields.size(), 1U) << "line " << line.number << ": " << target.field;
        if (target.kind != Target::Kind::Tab) return;
        const auto* const strip = dynamic_cast<const TabStrip*>(fields.front());
        ASSERT_NE(strip, nullptr) << target.field;
        EXPECT_LT(target.row, static_cast<int>(strip->Rows().size())) << target.field;
    });
}

TEST(CaptionTable, NoTargetHasTwoLines) {
    std::map<std::string, int> lines;
    ForEachFieldTarget([&](const CaptionLine& line, const Target& target) {
        const std::string key = std::string(target.field) + (target.kind == Target::Kind::ToolTip ? " tip " : " ") +
                                std::to_string(target.row);
        const auto [entry, isNew] = lines.emplace(key, line.number);
        EXPECT_TRUE(isNew) << key << " has the lines " << entry->second << " and " << line.number;
    });
}

// Words that are the same in every language, or that the program writes in its own time.
const std::regex kWithoutLine(
    "Zolv|"                                  // the title, with the name of the open file
    "CustomPresets|Zolv_version|AboutZolv|"  // a title that stays; a number; several lines at once
    "AeroLabel\\((12|13|15|24|25|29|30|34|35)\\)|CUPLabel\\((12|29)\\)|GearingLabel\\(3[0-7]\\)|"  // Cd, ClA ..., v-max
    "Label_SPD[1-6]|Label_[A-Za-z0-9]+Units|"                                                      // units
    "(Distance|Mass|Power|Torque)Output|InputSlash|InputR|DistanceUnit");

/// Whether a field has its words by its name.
bool HasWordByName(const Field& field) {
    const std::string full = field.Owner().Name() + '.' + field.Name();
    return std::ranges::any_of(kWordTable,
                               [&](const WordRow& row) { return row.name == field.Name() || row.name == full; });
}

/// Captions beside a control and titles of a group: they have words also before they get their line.
const std::regex kNamesOthers(
    "(Info|Gearing|Tyre|Aero|CUP|Options|Language)Label\\([0-9]+\\)|"
    "(InfoPanel|AeroPanel|OptionsGroup|ConvertFrame)\\([0-9]\\)|Frame_.*|Show.*|Calc.*|"
    "Label_(XScale|YScale|rpm|Perc|Car|Mass|Power|Torque|Distance).*");

bool HasWords(const Field& field) {
    if (std::regex_match(field.Name(), kNamesOthers)) return true;
    switch (field.Kind()) {
        case FieldKind::Button:
        case FieldKind::MenuEntry:
        case FieldKind::CheckBox:
        case FieldKind::OptionButton:
        case FieldKind::Window: return true;
        default: return !field.Caption().empty();
    }
}

TEST(CaptionTable, EachFieldWithWordsHasALine) {
    FreshStart();
    std::vector<std::string> forgotten;
    for (Window* window : AllWindows()) {
        std::vector<Field*> fields = window->Fields();
        fields.push_back(window);
        for (const Field* field : fields) {
            if (!HasWords(*field) || HasWordByName(*field)) continue;
            if (std::regex_match(field->Name(), kWithoutLine)) continue;
            bool found = false;
            ForEachFieldTarget([&](const CaptionLine&, const Target& target) {
                found = found || (target.kind == Target::Kind::Caption && target.field == field->Name());
            });
            if (!found) forgotten.push_back(window->Name() + '.' + field->Name());
        }
    }
    EXPECT_THAT(forgotten, IsEmpty());
}

}  // namespace
}  // namespace zolv
