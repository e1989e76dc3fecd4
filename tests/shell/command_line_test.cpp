#include "shell/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/zolv_test.h"

namespace zolv {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(CommandLine, IsAFileOrAQuestion) {
    const std::string here = Native(std::filesystem::current_path() / "");
    EXPECT_EQ(ReadCommandLine({}).file, "");
    EXPECT_EQ(ReadCommandLine({"a.zolv"}).file, here + "a.zolv");
    EXPECT_EQ(ReadCommandLine({"--", "-a.zolv"}).file, here + "-a.zolv");
    EXPECT_EQ(ReadCommandLine({"/x/a.zolv"}).file, Native(std::filesystem::absolute("/x/a.zolv")));
    EXPECT_THAT(ReadCommandLine({"--help"}).answer, StartsWith("usage: zolv [FILE]"));
    EXPECT_EQ(ReadCommandLine({"a.zolv", "--version"}).answer, "zolv " ZOLV_VERSION "\n");
    EXPECT_THAT(ReadCommandLine({"a.zolv", "b.zolv"}).fault, HasSubstr("b.zolv"));
    EXPECT_THAT(ReadCommandLine({"--halp"}).fault, HasSubstr("unknown option --halp"));
    EXPECT_NE(ReadCommandLine({""}).fault, "");
}

}  // namespace
}  // namespace zolv
