#include "platform/data_folder.h"

#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>

#include "platform/text_files.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;

class DataFolder : public ZolvTest {
protected:
    /// Makes a folder in the test's own, with a list of languages in it.
    fs::path Filled(const std::string& name) const {
        const fs::path folder = InFolder(name);
        fs::create_directories(folder);
        WriteContent((folder / "languages.lst").string(), "Language: 1\r\nEnglish\r\n");
        return folder;
    }
    static DataFolders Find(const fs::path& program, const fs::path& user) { return FindDataFolders(program, user); }
};

TEST_F(DataFolder, IsTheUsersBesideWhatIsInstalled) {
    const fs::path installed = Filled("usr/share/zolv");
    const fs::path user = InFolder("home/zolv");
    const fs::path program = InFolder("usr/bin/zolv");
    EXPECT_EQ(Find(program, user).own, Native(user / ""));
    EXPECT_EQ(Find(program, user).shared, Native(installed / ""));
    EXPECT_EQ(Find(program, {}).own, Native(fs::current_path() / "")) << "nobody's home";
    EXPECT_EQ(Find(InFolder("elsewhere/bin/zolv"), user).shared, "") << "nothing is installed";

    const fs::path built = Filled("build/data");
    EXPECT_EQ(Find(InFolder("build/bin/zolv"), user).shared, Native(built / ""));
}

TEST_F(DataFolder, IsThatOfAnUnpackedProgramOrTheCurrentOneIfItHoldsTheFiles) {
    const fs::path unpacked = Filled("unpacked");
    EXPECT_EQ(Find(unpacked / "zolv", InFolder("home")).own, Native(unpacked / ""));
    EXPECT_EQ(Find(unpacked / "zolv", InFolder("home")).shared, "");
    const fs::path current = Filled(".");
    EXPECT_EQ(Find(unpacked / "zolv", InFolder("home")).own, Native(fs::current_path() / ""));
}

#ifndef _WIN32
TEST_F(DataFolder, LosesTheLinksOfAnOlderVersionAndNothingElse) {
    const DataFolders folders{.own = InFolder("home/zolv/"), .shared = Filled("share").string() + "/"};
    EXPECT_EQ(PrepareFolder(folders), "");
    EXPECT_TRUE(fs::is_directory(folders.own)) << "it is made at the first start";
    WriteContent(folders.own + "Mine.jpg", "picture");
    fs::create_symlink(folders.own + "Mine.jpg", folders.own + "Also mine.jpg");
    fs::create_symlink(folders.shared + "languages.lst", folders.own + "languages.lst");
    fs::create_symlink(folders.shared + "gone.jpg", folders.own + "gone.jpg");
    EXPECT_EQ(PrepareFolder(folders), "");
    std::set<std::string> left;
    for (const auto& entry : fs::directory_iterator(folders.own)) left.insert(entry.path().filename().string());
    EXPECT_EQ(left, (std::set<std::string>{"Mine.jpg", "Also mine.jpg"}));
    EXPECT_TRUE(fs::exists(folders.shared + "languages.lst"));

    WriteContent(InFolder("file"), "x");
    EXPECT_NE(PrepareFolder({.own = InFolder("file/zolv/"), .shared = {}}), "");
}
#endif

#ifdef _WIN32
TEST_F(DataFolder, OfAUserIsWhereTheSystemSays) {
    _wputenv(L"APPDATA=C:\\ü");
    EXPECT_EQ(UserFolder(), fs::path(L"C:\\ü\\Zolv"));
    _wputenv(L"APPDATA=relative");
    EXPECT_TRUE(UserFolder().empty());
}
#else
TEST_F(DataFolder, OfAUserIsWhereTheSystemSays) {
    const std::string home = InFolder("h");
    setenv("HOME", home.c_str(), 1);
    unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(UserFolder(), home + "/.local/share/zolv");
    setenv("XDG_DATA_HOME", "relative", 1);
    EXPECT_EQ(UserFolder(), home + "/.local/share/zolv");
    setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(UserFolder(), "/data/zolv");
}
#endif

TEST_F(DataFolder, WhatIsMissingThereIsTheInstalledFile) {
    fs::create_directory(InFolder("shared"));
    platform.AppPath = InFolder("");
    platform.SharedPath = InFolder("shared/");
    for (const char* name : {"both", "shared/both", "shared/installed", "own"}) WriteContent(InFolder(name), "x");
    EXPECT_EQ(DataFile("both"), InFolder("both"));
    EXPECT_EQ(DataFile("own"), InFolder("own"));
    EXPECT_EQ(DataFile("installed"), InFolder("shared/installed"));
    EXPECT_EQ(DataFile("neither"), InFolder("neither"));
}

}  // namespace
}  // namespace zolv
