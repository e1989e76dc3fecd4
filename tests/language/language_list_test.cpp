#include "language/language_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "fields/windows.h"
#include "language/language_state.h"
#include "platform/text_files.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

/// The list alone: a pick is counted and loads no language.
class LanguageList : public ZolvTest {
protected:
    LanguageList() {
        Start();
        List().OnClick = [this] { ++picks; };
    }

    static PickList& List() { return LanguageSelection.LanguageList; }
    static std::string Path() { return platform.AppPath + "languages.lst"; }

    int picks = 0;
};

struct LoadCase {
    const char* name;
    std::string content;
    int index;
    std::vector<std::string> rows;
    int picked;  // -1 is none, with a message
};

void PrintTo(const LoadCase& row, std::ostream* out) { *out << row.name; }

class LoadedList : public LanguageList, public testing::WithParamInterface<LoadCase> {};

TEST_P(LoadedList, PicksTheStoredLanguage) {
    WriteContent(Path(), GetParam().content);
    LoadLanguageList();
    EXPECT_EQ(language.LanguageIndex, GetParam().index);
    EXPECT_EQ(List().Rows(), GetParam().rows);
    EXPECT_EQ(List().Picked(), GetParam().picked);
    const bool valid = GetParam().picked >= 0;
    EXPECT_EQ(picks, valid ? 1 : 0);
    if (!valid) ExpectMessage("Invalid language selection.");
}

const std::vector<std::string> kThirteen{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m"};

const LoadCase kLoads[] = {
    {"Stored", "Language: 2\r\nEnglish\r\nDeutsch\r\n", 2, {"English", "Deutsch"}, 1},
    {"NoneYet", "Language: 0\r\nEnglish\r\nDeutsch\r\n", 0, {"English", "Deutsch"}, 0},
    {"NoNumber", "Language: \r\nEnglish\r\nDeutsch\r\n", 0, {"English", "Deutsch"}, 0},
    {"NoLastLineEnd", "Language: 2\r\nEnglish\r\nDeutsch", 2, {"English", "Deutsch"}, 1},
    {"OnlyTwoDigitsCount", "Language: 112\r\na\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\nj\r\nk\r\nl\r\nm\r\n", 12,
     kThirteen, 11},
    {"EmptyLinesAreEntries", "Language: 1\r\nEnglish\r\n\r\n\r\n", 1, {"English", "", ""}, 0},
    {"BelowZero", "Language: -1\r\nEnglish\r\n", 0, {"English"}, 0},
    {"ShortFirstLine", "2\r\nEnglish\r\nDeutsch\r\n", 2, {"English", "Deutsch"}, 1},
    {"ByteOrderMark",
     "\xEF\xBB\xBF"
     "2\r\nEnglish\r\nDeutsch\r\n",
     2,
     {"English", "Deutsch"},
     1},
    {"BeyondTheList", "Language: 3\r\nEnglish\r\nDeutsch\r\n", 3, {"English", "Deutsch"}, -1},
};
INSTANTIATE_TEST_SUITE_P(Files, LoadedList, testing::ValuesIn(kLoads),
                         [](const auto& row) { return std::string(row.param.name); });

struct SaveCase {
    const char* name;
    const char* before;
    int pick;  // -1 is none
    const char* after;
};

void PrintTo(const SaveCase& row, std::ostream* out) { *out << row.name; }

class SavedList : public LanguageList, public testing::WithParamInterface<SaveCase> {};

TEST_P(SavedList, HoldsTheNumberAndAllNames) {
    WriteContent(Path(), GetParam().before);
    LoadLanguageList();
    if (GetParam().pick < 0) ExpectMessage("Invalid language selection.");
    List().Pick(GetParam().pick);
    SaveLanguageChoice();
    EXPECT_EQ(ContentOf(Path()), GetParam().after);
}

const SaveCase kSaves[] = {
    {"Second", "Language: 1\r\nA\r\nB\r\n", 1, "Language: 2\r\nA\r\nB\r\n"},
    {"LaterEqualLineWins", "Language: 1\r\nA\r\nB\r\nA\r\n", 0, "Language: 3\r\nA\r\nB\r\nA\r\n"},
    {"LineEndAdded", "Language: 1\r\nA\r\nB", 1, "Language: 2\r\nA\r\nB\r\n"},
    {"EmptyLinesStay", "Language: 2\r\nA\r\nB\r\n\r\n\r\n", 0, "Language: 1\r\nA\r\nB\r\n\r\n\r\n"},
    {"TwoDigits", "Language: 9\r\na\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\nj", 9,
     "Language: 10\r\na\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\nj\r\n"},
    {"NonePicked", "Language: 9\r\nA\r\nB", -1, "Language: \r\nA\r\nB\r\n"},
};
INSTANTIATE_TEST_SUITE_P(Choices, SavedList, testing::ValuesIn(kSaves),
                         [](const auto& row) { return std::string(row.param.name); });

constexpr const char* kMissing = "The language list does not exist - the language cannot be ";

struct RefusedCase {
    const char* name;
    std::function<void(const std::string& path)> make;
    const char* reason;  // empty where the list counts as missing
};

void PrintTo(const RefusedCase& row, std::ostream* out) { *out << row.name; }

class RefusedList : public LanguageList, public testing::WithParamInterface<RefusedCase> {
protected:
    void ExpectRefusal(const std::string& lost) {
        const std::string reason = GetParam().reason;
        if (reason.empty()) {
            ExpectMessage(kMissing + lost + ".");
        } else {
            ExpectMessage(AllOf(HasSubstr(Path()), HasSubstr(reason)));
        }
    }
};

TEST_P(RefusedList, SaysWhyAndChangesNothing) {
    GetParam().make(Path());
    const std::string content = fs::is_regular_file(Path()) ? ContentOf(Path()) : "";
    List().Add("Old");
    language.LanguageIndex = 7;
    LanguageSelection.SetVisible(true);

    LoadLanguageList();
    ExpectRefusal("changed");
    EXPECT_FALSE(LanguageSelection.Visible());
    EXPECT_THAT(List().Rows(), ElementsAre("Old"));
    EXPECT_EQ(language.LanguageIndex, 7);

    SaveLanguageChoice();
    ExpectRefusal("saved");
    EXPECT_EQ(fs::is_regular_file(Path()) ? ContentOf(Path()) : "", content);
}

const RefusedCase kRefused[] = {
    {"Missing", [](const std::string&) {}, ""},
    {"Empty", [](const std::string& path) { WriteContent(path, ""); }, ""},
    {"AFolder", [](const std::string& path) { fs::create_directory(path); }, ""},
    {"TooLong", [](const std::string& path) { WriteContent(path, "Language: 1\r\n" + std::string(65536, 'x')); },
     "Longer than 65536 bytes"},
    {"LineFeedsAlone", [](const std::string& path) { WriteContent(path, "Language: 1\nEnglish\n"); }, "CR LF"},
    {"NoNames", [](const std::string& path) { WriteContent(path, "Language: 0\r\n"); }, "name"},
};
INSTANTIATE_TEST_SUITE_P(Files, RefusedList, testing::ValuesIn(kRefused),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(LanguageList, FailedSaveNamesFileAndReason) {
    WriteContent(Path(), "Language: 1\r\nA\r\nB\r\n");
    LoadLanguageList();
    List().Pick(1);
    // A path that is just short enough for the list has no room for the longer name of a temporary file.
    const std::string folder = platform.AppPath;
    while (Path().size() + 2 < 4095) platform.AppPath += "./";
    SaveLanguageChoice();
    ExpectMessage(AllOf(HasSubstr(Path()), HasSubstr("File name too long")));
    platform.AppPath = folder;
    EXPECT_EQ(ContentOf(Path()), "Language: 1\r\nA\r\nB\r\n");
}

}  // namespace
}  // namespace zolv
