#include <cctype>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "fields/all_windows.h"
#include "files/options_file.h"
#include "language/caption_table.h"
#include "language/language_state.h"
#include "platform/text_files.h"
#include "support/zolv_test.h"
#include "text/lines.h"
#include "text/words.h"
#include "units/option_state.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;
using testing::SizeIs;

const fs::path kData = fs::path(ZOLV_SOURCE_DIR) / "data";

std::string Shipped(const std::string& name) { return ContentOf((kData / name).string()); }

std::vector<std::string> LinesOf(const std::string& text) {
    const std::vector<std::string_view> lines = SplitLines(text);
    return {lines.begin(), lines.end()};
}

/// The languages of the list, without its first line and the empty one behind the last line end.
std::vector<std::string> Languages() {
    const std::vector<std::string> lines = LinesOf(Shipped("languages.lst"));
    return lines.size() < 3 ? std::vector<std::string>() : std::vector(lines.begin() + 1, lines.end() - 1);
}

class ShippedFiles : public ZolvTest {};

class ShippedLanguage : public ZolvTest, public testing::WithParamInterface<std::string> {
protected:
    /// @return 339 lines, empty ones for what the file lacks
    static std::vector<std::string> Lines() {
        std::vector<std::string> lines = LinesOf(Shipped("language_" + GetParam() + ".txt"));
        EXPECT_THAT(lines, SizeIs(kCaptionLines));
        lines.resize(kCaptionLines);
        return lines;
    }
};

INSTANTIATE_TEST_SUITE_P(Data, ShippedLanguage, testing::ValuesIn(Languages()),
                         [](const auto& row) { return row.param; });

TEST_P(ShippedLanguage, HasAWordForEachLineAndNothingElse) {
    const std::vector<std::string> lines = Lines();
    for (const CaptionLine& line : CaptionTable()) {
        const std::string& text = lines[static_cast<std::size_t>(line.number)];
        EXPECT_EQ(text.empty(), line.builtIn.empty()) << "line " << line.number;
        EXPECT_EQ(text.find_first_of("\r\n\t"), std::string::npos) << "line " << line.number;
        if (text.empty()) continue;
        EXPECT_TRUE(text.front() != ' ' && text.back() != ' ') << "blank around line " << line.number;
    }
    EXPECT_FALSE(Shipped("language_" + GetParam() + ".txt").starts_with("\xEF\xBB\xBF"));
    EXPECT_THAT(lines[5], testing::EndsWith("(*.zolv)"));
}

// The rows of each list that is picked by its text: two equal rows would be one.
constexpr std::pair<int, int> kLists[] = {{39, 41},   {64, 68},   {70, 72},   {251, 255}, {256, 260},
                                          {261, 265}, {266, 270}, {271, 276}, {277, 281}, {282, 283},
                                          {284, 288}, {289, 292}, {293, 296}, {297, 303}, {304, 309}};

TEST_P(ShippedLanguage, RowsOfAListDiffer) {
    const std::vector<std::string> lines = Lines();
    for (const auto& [first, last] : kLists) {
        const std::set<std::string> rows(lines.begin() + first, lines.begin() + last + 1);
        EXPECT_THAT(rows, SizeIs(static_cast<std::size_t>(last - first + 1))) << "lines from " << first;
    }
}

// The menu bar, then File, Tools and Help.
const std::vector<std::vector<std::size_t>> kMenus = {{2, 13, 22}, {3, 8, 9, 11, 12}, {14, 15, 16}, {23}};

/// The keys that a caption marks, in capitals.
std::string KeysOf(const std::string& caption) {
    std::string keys;
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        const char key = caption[++i];
        if (key != '&') keys += static_cast<char>(std::toupper(static_cast<unsigned char>(key)));
    }
    return keys;
}

bool IsKey(const std::string& keys) { return keys.size() == 1 && keys >= "A" && keys <= "Z"; }

TEST_P(ShippedLanguage, AccessKeysDifferWithinAMenu) {
    const std::vector<std::string> lines = Lines();
    std::set<std::size_t> entries;
    for (const std::vector<std::size_t>& menu : kMenus) {
        std::set<std::string> keys;
        for (const std::size_t line : menu) {
            const std::string key = KeysOf(lines[line]);
            EXPECT_TRUE(IsKey(key)) << lines[line];
            EXPECT_TRUE(keys.insert(key).second) << lines[line] << " has the key of another entry";
            entries.insert(line);
        }
    }
    for (std::size_t line = 0; line < kCaptionLines; ++line) {
        if (entries.contains(line)) continue;
        EXPECT_EQ(KeysOf(lines[line]), "") << lines[line];
    }
}

// What is the same word in English: names of units, terms of the trade, and loan words.
const std::set<std::string> kWordsAsInEnglish = {"French Force", "German Neutral", "German SetUpMenu"};
const std::map<std::string, std::set<int>> kAsInEnglish = {
    {"French", {15, 68, 266, 272, 277, 279, 280, 289, 322}},  // options, slick, force; regular plurals of units
    {"German", {26, 66, 68, 268, 274, 285}},                  // info, hybrid, slick; bar, slug, gal
    {"Italian", {2, 68, 268, 274, 285}},                      // file, slick; bar, slug, gal
    {"Japanese", {89}},                                       // rpm
    {"Polish", {68}},                                         // slick
    {"Spanish", {23, 68, 89, 277, 280}},                      // manual, slick, rpm; newtons, poundals
};

TEST_P(ShippedLanguage, NothingIsLeftInEnglish) {
    if (GetParam() == "English") return;
    ASSERT_TRUE(kAsInEnglish.contains(GetParam()));
    const std::vector<std::string> lines = Lines();
    std::set<int> same;
    for (const CaptionLine& line : CaptionTable()) {
        if (!line.builtIn.empty() && lines[static_cast<std::size_t>(line.number)] == line.builtIn) {
            same.insert(line.number);
        }
    }
    EXPECT_EQ(same, kAsInEnglish.at(GetParam()));
}

// Where the shipped English corrects the built-in words, which stay as they are.
TEST_F(ShippedFiles, EnglishDiffersFromTheBuiltInWordsInTheseLines) {
    const std::map<int, std::string> kCorrected = {
        {61, "Ratios \u2192 Speeds"},  // an arrow for "==>"
        {62, "Speeds \u2192 Ratios"},
        {128, "Contact patch length:"},                                                         // "lenth"
        {172, "Undertray Info"},                                                                // "Undertay"
        {214, "You did not enter a valid weight distribution. It must not be more than 95%."},  // "must be not be"
        {226, "Edit existing custom preset"},                                                   // "exisiting"
    };
    std::map<int, std::string> differing;
    const std::vector<std::string> lines = LinesOf(Shipped("language_English.txt"));
    ASSERT_THAT(lines, SizeIs(kCaptionLines));
    for (const CaptionLine& line : CaptionTable()) {
        const std::string& text = lines[static_cast<std::size_t>(line.number)];
        if (text != line.builtIn) differing[line.number] = text;
    }
    EXPECT_EQ(differing, kCorrected);
}

/// A text without what its place adds: the mark of a key, the colon of a label, capitals.
std::string Bare(std::string text) {
    for (const char* mark : {"&", ":", "...", "\u2026", "\u00A0"}) text = Replaced(text, mark, "");
    if (text.ends_with(')') && text.size() > 3 && text[text.size() - 3] == '(') text.resize(text.size() - 3);  // "(F)"
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return Replaced(text, "\u00C1", "\u00E1");  // "Ángulo": the one capital letter of more than a byte
}

// The same English that means two things.
const std::map<std::string, std::set<std::string>> kTwoMeanings = {
    {"German", {"torque", "peak power", "engine speed"}},  // short on an axis; its revs; told from the wheels'
    {"Japanese", {"acceleration"}},                        // the run, the figure
    {"Polish", {"torque"}},                                // short on an axis
    {"Spanish", {"torque"}},                               // short on an axis
};

TEST_P(ShippedLanguage, TheSameEnglishReadsTheSame) {
    std::map<std::string, std::set<std::string>> readings;
    const std::vector<std::string> lines = Lines();
    for (const CaptionLine& line : CaptionTable()) {
        readings[Bare(std::string(line.builtIn))].insert(Bare(lines[static_cast<std::size_t>(line.number)]));
    }
    const Words read = Words::Read(Shipped("words_" + GetParam() + ".txt"));
    for (std::size_t row = 0; row < kWordTable.size(); ++row) {
        readings[Bare(std::string(kWordTable[row].english))].insert(Bare(read.OfRow(row)));
    }
    std::set<std::string> two;
    for (const auto& [english, own] : readings) {
        if (own.size() > 1) two.insert(english);
    }
    const auto expected = kTwoMeanings.find(GetParam());
    EXPECT_EQ(two, expected == kTwoMeanings.end() ? std::set<std::string>() : expected->second);
}

/// The names of a file of words, in its order; each line that is no remark has one.
std::vector<std::string> NamesOf(const std::string& file) {
    std::vector<std::string> names;
    std::istringstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with('#')) names.push_back(line.substr(0, line.find(" = ")));
    }
    return names;
}

// Of English there is only what the built-in words misspell.
TEST_P(ShippedLanguage, HasEachWordByItsName) {
    const std::string file = Shipped("words_" + GetParam() + ".txt");
    const Words read = Words::Read(file);
    const std::vector<std::string> names = NamesOf(file);
    const std::set<std::string> given(names.begin(), names.end());
    EXPECT_THAT(names, SizeIs(given.size())) << "a name stands twice";
    std::set<std::string> taken;
    for (std::size_t row = 0; row < kWordTable.size(); ++row) {
        const std::string name(kWordTable[row].name);
        const bool isGiven = given.contains(name);
        if (isGiven) taken.insert(name);
        if (GetParam() != "English") {
            EXPECT_TRUE(isGiven) << name << " has no word";
        }
        if (isGiven && !kWordsAsInEnglish.contains(GetParam() + ' ' + name)) {
            EXPECT_NE(read.OfRow(row), kWordTable[row].english) << name << " was left in English, or passed over";
        }
    }
    EXPECT_EQ(taken, given) << "a name that nothing has";
}

// The entries of the Tools menu that have words by name share it with those of the language lines.
TEST_P(ShippedLanguage, AccessKeysOfTheToolsMenuDiffer) {
    const Words read = Words::Read(Shipped("words_" + GetParam() + ".txt"));
    const std::vector<std::string> lines = Lines();
    const std::set<std::string> keys = {KeysOf(lines[14]), KeysOf(lines[15]), KeysOf(lines[16]),
                                        KeysOf(read["ToolsFinder"]), KeysOf(read["ToolsSweep"])};
    EXPECT_THAT(
        keys, testing::AllOf(SizeIs(5), testing::Each(testing::AllOf(SizeIs(1), testing::Ge("A"), testing::Le("Z")))));
}

// The keys of the menu of a drawing.
TEST_P(ShippedLanguage, AccessKeysOfTheDrawingsMenuDiffer) {
    const Words read = Words::Read(Shipped("words_" + GetParam() + ".txt"));
    const std::set<std::string> keys = {KeysOf(read["CopyPicture"]), KeysOf(read["SaveAsSvgEntry"]),
                                        KeysOf(read["SaveAsPngEntry"])};
    EXPECT_THAT(keys, testing::AllOf(SizeIs(3), testing::Each(testing::Truly(IsKey))));
}

TEST_P(ShippedLanguage, LoadsInAStartedProgram) {
    Start();
    fs::copy(kData / ("words_" + GetParam() + ".txt"), fs::current_path());
    fs::copy(kData / ("language_" + GetParam() + ".txt"), fs::current_path());
    LanguageSelection.LanguageList.Add(GetParam());
    LanguageSelection.LanguageList.SetText(GetParam());
    const std::vector<std::string> lines = Lines();
    EXPECT_EQ(LanguageSelection.LanguageNow.Caption(), lines[0]);
    EXPECT_EQ(OptionsPanel.OptionsSave.Caption(), lines[338]);
    EXPECT_EQ(OptionsPanel.Units[11].Select.Text(), lines[304]);
    ExpectOnlyNumbers();
}

TEST_F(ShippedFiles, FirstStartShowsTheLanguagesAndNoMessage) {
    std::set<std::string> languages;
    for (const fs::directory_entry& file : fs::directory_iterator(kData)) {
        if (!file.is_regular_file()) continue;
        fs::copy(file, fs::current_path(), fs::copy_options::overwrite_existing);
        const std::string name = file.path().stem().string();
        if (name.starts_with("language_")) languages.insert(name.substr(9));
    }
    Start();
    EXPECT_EQ(language.LanguageIndex, 0);
    EXPECT_TRUE(LanguageSelection.Visible());
    EXPECT_EQ(LanguageSelection.LanguageList.Text(), "English");
    EXPECT_THAT(LanguageSelection.LanguageList.Rows(), testing::UnorderedElementsAreArray(languages));
}

// With one difference: the style of graphs is set, so that the first save by the user changes nothing but his choice.
TEST_F(ShippedFiles, OptionsAreTheStartValues) {
    options.AltGraphStyle = false;
    SaveOptions();
    EXPECT_EQ(ContentOf("Options.ini"), Shipped("Options.ini"));
}

}  // namespace
}  // namespace zolv
