#include "language/language_list.h"

#include <filesystem>
#include <string>
#include <utility>

#include "fields/all_windows.h"
#include "language/caption_table.h"
#include "language/language_state.h"
#include "platform/text_files.h"
#include "shell/fresh_start.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;
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

TEST_F(LanguageList, TheStoredLanguageIsPicked) {
    struct {
        std::string first;  // line
        int index;
        int picked;  // -1 is none
    } const kCases[] = {{"Language: 2", 2, 1},
                        {"Language: 0", 0, 0},
                        {"Language: ", 0, 0},
                        {"Language: 112", 12, 11},
                        {"Language: -1", -1, -1},  // none, and no first run
                        {"\xEF\xBB\xBF"
                         "2",
                         2, 1},
                        {"Language: 14", 14, -1}};
    for (const auto& row : kCases) {
        for (const char* end : {"", "\r\n"}) {
            WriteContent(Path(), row.first + "\r\na\r\nb\r\nc\r\nd\r\n\r\nf\r\ng\r\nh\r\ni\r\nj\r\nk\r\nl\r\nm" + end);
            picks = 0;
            LoadLanguageList();
            EXPECT_EQ(language.LanguageIndex, row.index) << row.first;
            EXPECT_THAT(List().Rows(), ElementsAre("a", "b", "c", "d", "", "f", "g", "h", "i", "j", "k", "l", "m"));
            EXPECT_EQ(List().Picked(), row.picked) << row.first;
            EXPECT_EQ(picks, row.picked >= 0 ? 1 : 0);
            if (row.index > 13) ExpectMessage("Invalid language selection.");
        }
    }
}

TEST_F(LanguageList, OnlyANumberOfNoneIsAFirstRun) {
    struct {
        const char* text;
        int index;
        bool firstRun;
        const char* message;
    } const kCases[] = {{"Language: 0\r\nEnglish\r\n", 0, true, ""},
                        {"Language: -1\r\nEnglish\r\n", -1, false, ""},
                        {"Language: 3\r\n", 3, false, "Invalid language selection."},
                        {"Language: 3", 3, false, "Invalid language selection."}};
    for (const auto& row : kCases) {
        FreshStart();
        WriteContent("languages.lst", row.text);
        WriteContent("language_English.txt", BuiltInLanguage());
        Start();
        if (*row.message != '\0') ExpectMessage(row.message);
        EXPECT_EQ(language.LanguageIndex, row.index);
        EXPECT_EQ(LanguageSelection.Visible(), row.firstRun) << row.text;
        EXPECT_EQ(Zolv.Visible(), !row.firstRun) << row.text;
    }
}

TEST_F(LanguageList, ASaveHoldsTheNumberAndAllNames) {
    struct {
        const char* before;
        int pick;  // -1 is none
        const char* after;
    } const kCases[] = {
        {"Language: 1\r\nA\r\nB\r\n", 1, "Language: 2\r\nA\r\nB\r\n"},
        {"Language: 1\r\nA\r\nB\r\nA\r\n", 0, "Language: 3\r\nA\r\nB\r\nA\r\n"},  // the later equal line wins
        {"Language: 2\r\nA\r\nB\r\n\r\n\r\n", 0, "Language: 1\r\nA\r\nB\r\n\r\n\r\n"},
        {"Language: 9\r\na\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\nj", 9,
         "Language: 10\r\na\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\nj\r\n"},
        {"Language: 9\r\nA\r\nB", -1, "Language: \r\nA\r\nB\r\n"},
        {"Language: 1\nA\nB\n", 1, "Language: 2\r\nA\r\nB\r\n"},  // as an editor of another system leaves it
        {"Language: 1\nA\nB", 1, "Language: 2\r\nA\r\nB\r\n"},
    };
    for (const auto& row : kCases) {
        WriteContent(Path(), row.before);
        LoadLanguageList();
        if (row.pick < 0) ExpectMessage("Invalid language selection.");
        List().Pick(row.pick);
        SaveLanguageChoice();
        EXPECT_EQ(ContentOf(Path()), row.after);
    }
}

TEST_F(LanguageList, ThatIsNoneSaysWhyAndChangesNothing) {
    List().Add("Old");
    language.LanguageIndex = 7;
    const auto expectRefusals = [&](const std::string& reason) {
        const std::string content = fs::is_regular_file(Path()) ? ContentOf(Path()) : "";
        LanguageSelection.SetVisible(true);
        LoadLanguageList();
        SaveLanguageChoice();
        for (const char* lost : {"changed.", "saved."}) {
            ExpectMessage(
                reason.empty()
                    ? HasSubstr(std::string("The language list does not exist - the language cannot be ") + lost)
                    : HasSubstr(Path() + ": " + reason));
        }
        EXPECT_FALSE(LanguageSelection.Visible());
        EXPECT_THAT(List().Rows(), ElementsAre("Old"));
        EXPECT_EQ(language.LanguageIndex, 7);
        EXPECT_EQ(fs::is_regular_file(Path()) ? ContentOf(Path()) : "", content);
    };
    expectRefusals("");
    WriteContent(Path(), "");
    expectRefusals("");
    for (const auto& [text, reason] :
         {std::pair("Language: 1\r\n" + std::string(65536, 'x'), "Longer than 65536 bytes"),
          std::pair(std::string("Language: 0\r\n"), "Not a language list")}) {
        WriteContent(Path(), text);
        expectRefusals(reason);
    }
    fs::remove(Path());
    fs::create_directory(Path());
    expectRefusals("");
}

#ifndef _WIN32  // where a name may be as long as anybody likes
TEST_F(LanguageList, FailedSaveNamesFileAndReason) {
    WriteContent(Path(), "Language: 1\r\nA\r\nB\r\n");
    LoadLanguageList();
    List().Pick(1);
    // A path that is just short enough for the list has no room for the longer name of a temporary file.
    const std::string folder = platform.AppPath;
    while (Path().size() + 2 < 4095) platform.AppPath += "./";
    SaveLanguageChoice();
    ExpectMessage("Cannot write " + Path() + ": File name too long");
    platform.AppPath = folder;
    EXPECT_EQ(ContentOf(Path()), "Language: 1\r\nA\r\nB\r\n");
}
#endif

}  // namespace
}  // namespace zolv
