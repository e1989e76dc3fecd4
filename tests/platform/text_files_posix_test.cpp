// What can be shown of text files where the system has permissions, pipes, links and limits.

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

/// In a folder of its own, which is the current directory.
class PosixFiles : public testing::Test {
private:
    TemporaryFolder folder_;
};

TEST_F(PosixFiles, ThatWouldBeWaitedForAreRefused) {
    ASSERT_EQ(::mkfifo("pipe", 0600), 0);  // opened like a file it would wait for a writer for ever
    EXPECT_EQ(ReadTextFile("pipe", 100).reason, "Not a regular file");
    EXPECT_EQ(WriteTextFile("pipe", "new"), "Not a regular file");
}

// A program that is started with its input closed gets 0 as the number of the next file.
TEST_F(PosixFiles, AreWrittenUnderTheNumberOfTheInput) {
    const int input = ::dup(0);
    ::close(0);
    EXPECT_EQ(WriteTextFile("first", "text"), "");
    EXPECT_EQ(ReadTextFile("first", 10).text, "text");
    ::dup2(input, 0);
    ::close(input);
}

TEST_F(PosixFiles, KeepTheirPermissions) {
    WriteContent("file", "first");
    fs::permissions("file", fs::perms(0640));
    EXPECT_EQ(WriteTextFile("file", "2"), "");
    EXPECT_EQ(fs::status("file").permissions(), fs::perms(0640));
}

TEST_F(PosixFiles, PassWholeThroughCallsThatAreInterruptedOrTakeAPart) {
    writes = reads = {.interrupted = 2, .shortened = 2};
    EXPECT_EQ(WriteTextFile("file", "abcdef"), "");
    EXPECT_EQ(ReadTextFile("file", 100).text, "abcdef");
    EXPECT_EQ(writes.interrupted + writes.shortened + reads.interrupted + reads.shortened, 0);
    writes = reads = {.error = EIO};
    EXPECT_EQ(WriteTextFile("file", "new"), "Input/output error");
    EXPECT_EQ(ReadTextFile("file", 100).reason, "Input/output error");
    EXPECT_EQ(ContentOf("file"), "abcdef");
}

TEST_F(PosixFiles, ThatAreRefusedStayOpenNoLonger) {
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

TEST_F(PosixFiles, BehindALinkAreReplacedAndTheLinkStays) {
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

TEST_F(PosixFiles, UnderTheLongestNameAreWritten) {
    constexpr std::size_t kLongestName = 255;  // bytes, on the usual file systems
    const std::string name(kLongestName, 'n');
    EXPECT_EQ(WriteTextFile(name, "new"), "");
    EXPECT_EQ(ContentOf(name), "new");
}

TEST_F(PosixFiles, OnAFullDiskTheOldFileStaysWhole) {
    WriteContent("file", "old and whole");
    std::string reason;
    {
        const FullDisk full(1000);
        reason = WriteTextFile("file", std::string(5000, 'n'));
    }
    EXPECT_EQ(reason, "File too large");
    EXPECT_EQ(ContentOf("file"), "old and whole");
    EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), 1) << "something is left beside it";
}

TEST_F(PosixFiles, AFolderThatWasRemovedIsNotTheRoot) {
    fs::create_directory("gone");
    fs::current_path("gone");
    fs::remove("../gone");
    EXPECT_EQ(CurrentDirectory(), "./");
}

}  // namespace
}  // namespace zolv
