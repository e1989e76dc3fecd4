#include "platform/text_files.h"

#include <algorithm>
#include <filesystem>

#include "support/zolv_test.h"
#include "text/lines.h"
#ifdef _WIN32
#include <windows.h>
#endif

namespace zolv {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

/// In a folder of its own, which is the current directory.
class TextFiles : public testing::Test {
protected:
    static std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(".")) names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    TemporaryFolder folder_;
};

TEST(SplitLines, SplitsAtCarriageReturnAndLineFeedTogether) {
    EXPECT_THAT(SplitLines(""), ElementsAre(""));
    EXPECT_THAT(SplitLines("one\r\n\r\n"), ElementsAre("one", "", ""));
    EXPECT_THAT(SplitLines("a\nb\rc\r\nd"), ElementsAre("a\nb\rc", "d"));
}

TEST_F(TextFiles, AreReadUpToTheLimitWithoutByteOrderMark) {
    WriteContent("marked", "\xEF\xBB\xBFone\r\n" + std::string(20000, 'x'));
    EXPECT_EQ(ReadTextFile("marked", 20008).text, "one\r\n" + std::string(20000, 'x'));
    const FileText refused = ReadTextFile("marked", 20007);
    EXPECT_FALSE(refused.readable);
    EXPECT_TRUE(refused.text.empty());
    EXPECT_EQ(refused.reason, "Longer than 20007 bytes");
    WriteContent("empty", "");
    EXPECT_TRUE(ReadTextFile("empty", 100).readable);
}

TEST_F(TextFiles, WhatIsNoFileIsRefusedWithItsReason) {
    fs::create_directory("folder");
    EXPECT_EQ(ReadTextFile("folder", 100).reason, "Is a directory");
    EXPECT_FALSE(ReadTextFile("folder", 100).missing);
    EXPECT_EQ(ReadTextFile("nothing", 100).reason, "No such file or directory");
    EXPECT_TRUE(ReadTextFile("nothing", 100).missing);
    EXPECT_EQ(WriteTextFile("folder", "new"), "Is a directory");
    EXPECT_THAT(Names(), ElementsAre("folder"));
}

TEST_F(TextFiles, ExistOnlyWithSomethingInThem) {
    WriteContent("full", "x");
    WriteContent("empty", "");
    fs::create_directory("folder");
    EXPECT_EQ(FileExists("full"), 1);
    EXPECT_EQ(FileExists("empty"), 0);
    EXPECT_EQ(FileExists("folder"), 0);
    EXPECT_EQ(FileExists("nothing"), 0);
}

TEST_F(TextFiles, AreReplacedAndNothingIsLeftBeside) {
    EXPECT_EQ(WriteTextFile("file", "first\r\n"), "");
    EXPECT_EQ(ContentOf("file"), "first\r\n");
    EXPECT_EQ(WriteTextFile("file", "2"), "");
    EXPECT_EQ(ContentOf("file"), "2");
    EXPECT_THAT(Names(), ElementsAre("file"));
}

TEST_F(TextFiles, WithoutAPlaceAreNotWritten) {
    EXPECT_EQ(WriteTextFile("nowhere/file", "new"), "No such file or directory");
    EXPECT_EQ(WriteTextFile("", "new"), "Invalid argument");
    EXPECT_TRUE(Names().empty());
}

TEST_F(TextFiles, AreFoundByNamesOfEveryScript) {
    fs::create_directory(u8"Größe");
    EXPECT_EQ(WriteTextFile("Größe/ギヤ比 ½.zolv", "new"), "");
    EXPECT_EQ(ReadTextFile("Größe/ギヤ比 ½.zolv", 100).text, "new");
    EXPECT_TRUE(fs::exists(u8"Größe/ギヤ比 ½.zolv"));
    EXPECT_EQ(FileExists("Größe/ギヤ比 ½.zolv"), 1);
    EXPECT_EQ(ReadTextFile("no name: \xFF", 100).readable, false);
}

#ifdef _WIN32
TEST_F(TextFiles, ThatAnotherProgramHoldsOrAreLockedStayAsTheyAre) {
    WriteContent("held", "old");
    const HANDLE other = CreateFileW(L"held", GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(WriteTextFile("held", "new"), "Permission denied");
    CloseHandle(other);
    EXPECT_EQ(ContentOf("held"), "old");
    SetFileAttributesW(L"held", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(WriteTextFile("held", "new"), "Permission denied");
    SetFileAttributesW(L"held", FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(WriteTextFile("held", "new"), "");
    EXPECT_THAT(Names(), ElementsAre("held"));
}
#endif

}  // namespace
}  // namespace zolv
