#include "platform/text_files.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <utility>

#include "support/zolv_test.h"
#include "text/lines.h"

namespace {

/// Calls of read or write that a signal is to interrupt, behind them those that take one byte only, and then an error.
struct Trouble {
    int interrupted = 0, shortened = 0, error = 0;
} reads, writes;

template <class Call>
long InTrouble(Trouble& trouble, std::size_t size, Call call) {
    const int error = trouble.interrupted > 0 ? EINTR : trouble.shortened > 0 ? 0 : std::exchange(trouble.error, 0);
    if (trouble.interrupted > 0) {
        --trouble.interrupted;
    } else if (trouble.shortened > 0) {
        --trouble.shortened;
        size = std::min<std::size_t>(size, 1);
    }
    if (error == 0) return call(size);
    errno = error;
    return -1;
}

}  // namespace

// These stand in front of the C library's for the whole program.
extern "C" ssize_t read(int file, void* to, std::size_t size) {
    return InTrouble(reads, size, [&](std::size_t n) { return ::syscall(SYS_read, file, to, n); });
}
extern "C" ssize_t write(int file, const void* from, std::size_t size) {
    return InTrouble(writes, size, [&](std::size_t n) { return ::syscall(SYS_write, file, from, n); });
}

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
    ASSERT_EQ(::mkfifo("pipe", 0600), 0);  // opened like a file it would wait for a writer for ever
    EXPECT_EQ(ReadTextFile("folder", 100).reason, "Is a directory");
    EXPECT_FALSE(ReadTextFile("folder", 100).missing);
    EXPECT_EQ(ReadTextFile("pipe", 100).reason, "Not a regular file");
    EXPECT_EQ(ReadTextFile("nothing", 100).reason, "No such file or directory");
    EXPECT_TRUE(ReadTextFile("nothing", 100).missing);
    EXPECT_EQ(WriteTextFile("folder", "new"), "Is a directory");
    EXPECT_EQ(WriteTextFile("pipe", "new"), "Not a regular file");
    EXPECT_THAT(Names(), ElementsAre("folder", "pipe"));
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

TEST_F(TextFiles, AreReplacedWithTheirPermissionsAndNothingLeftBeside) {
    EXPECT_EQ(WriteTextFile("file", "first\r\n"), "");
    EXPECT_EQ(ContentOf("file"), "first\r\n");
    fs::permissions("file", fs::perms(0640));
    EXPECT_EQ(WriteTextFile("file", "2"), "");
    EXPECT_EQ(ContentOf("file"), "2");
    EXPECT_EQ(fs::status("file").permissions(), fs::perms(0640));
    EXPECT_THAT(Names(), ElementsAre("file"));
}

TEST_F(TextFiles, PassWholeThroughCallsThatAreInterruptedOrTakeAPart) {
    writes = reads = {.interrupted = 2, .shortened = 2};
    EXPECT_EQ(WriteTextFile("file", "abcdef"), "");
    EXPECT_EQ(ReadTextFile("file", 100).text, "abcdef");
    EXPECT_EQ(writes.interrupted + writes.shortened + reads.interrupted + reads.shortened, 0);
    writes = reads = {.error = EIO};
    EXPECT_EQ(WriteTextFile("file", "new"), "Input/output error");
    EXPECT_EQ(ReadTextFile("file", 100).reason, "Input/output error");
    EXPECT_EQ(ContentOf("file"), "abcdef");
}

TEST_F(TextFiles, ThatAreRefusedStayOpenNoLonger) {
    rlimit before{};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const rlimit few{64, before.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &few);
    WriteContent("file", "abcdef");
    std::string reason;
    for (int i = 0; i < 100; ++i) reason = ReadTextFile("file", 5).reason;
    ::setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(reason, "Longer than 5 bytes");
}

TEST_F(TextFiles, BehindALinkAreReplacedAndTheLinkStays) {
    fs::create_directory("folder");
    WriteContent("folder/file", "old");
    fs::create_symlink("folder/file", "link");
    EXPECT_EQ(WriteTextFile("link", "new"), "");
    EXPECT_TRUE(fs::is_symlink("link"));
    EXPECT_EQ(ContentOf("folder/file"), "new");

    fs::create_symlink("folder/later", "dangling");
    EXPECT_EQ(WriteTextFile("dangling", "made"), "");
    EXPECT_TRUE(fs::is_symlink("dangling"));
    EXPECT_EQ(ContentOf("folder/later"), "made");

    fs::create_symlink("circle", "circle");
    EXPECT_EQ(WriteTextFile("circle", "new"), "Too many levels of symbolic links");
}

TEST_F(TextFiles, WithoutAPlaceAreNotWritten) {
    EXPECT_EQ(WriteTextFile("nowhere/file", "new"), "No such file or directory");
    EXPECT_EQ(WriteTextFile("", "new"), "Invalid argument");
    EXPECT_TRUE(Names().empty());
}

TEST_F(TextFiles, UnderTheLongestNameAreWritten) {
    constexpr std::size_t kLongestName = 255;  // bytes, on the usual file systems
    const std::string name(kLongestName, 'n');
    EXPECT_EQ(WriteTextFile(name, "new"), "");
    EXPECT_EQ(ContentOf(name), "new");
}

TEST_F(TextFiles, OnAFullDiskTheOldFileStaysWhole) {
    WriteContent("file", "old and whole");
    std::string reason;
    {
        const FullDisk full(1000);
        reason = WriteTextFile("file", std::string(5000, 'n'));
    }
    EXPECT_EQ(reason, "File too large");
    EXPECT_EQ(ContentOf("file"), "old and whole");
    EXPECT_THAT(Names(), ElementsAre("file"));
}

TEST_F(TextFiles, AFolderThatWasRemovedIsNotTheRoot) {
    fs::create_directory("gone");
    fs::current_path("gone");
    fs::remove("../gone");
    EXPECT_EQ(CurrentDirectory(), "./");
}

}  // namespace
}  // namespace zolv
