// Every script of tests/batch/scripts against the lines that it must print.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "batch/batch_run.h"
#include "text/number_text.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;

const fs::path kScripts = ZOLV_SOURCE_DIR "/tests/batch/scripts";

std::vector<std::string> ScriptNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(kScripts)) {
        if (entry.path().extension() == ".txt") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> WordsOf(const std::string& line) {
    std::istringstream words(line);
    return {std::istream_iterator<std::string>(words), {}};
}

bool IsNumber(const std::string& word) {
    return !word.empty() && word.find_first_not_of("0123456789.-e+") == std::string::npos;
}

/// Drawing operations agree to six digits.
bool SameOperation(const std::string& printed, const std::string& expected) {
    const std::vector<std::string> a = WordsOf(printed);
    const std::vector<std::string> b = WordsOf(expected);
    if (a.size() != b.size() || b.empty() || (b[0] != "line" && b[0] != "rect" && b[0] != "circle")) return false;
    return std::equal(a.begin(), a.end(), b.begin(), [](const std::string& x, const std::string& y) {
        if (x == y) return true;
        return IsNumber(x) && IsNumber(y) && std::abs(Val(x) - Val(y)) <= std::max(1e-6, 1e-6 * std::abs(Val(y)));
    });
}

/// "[...]" in an expected line stands for any characters.
bool SamePieces(std::string_view printed, std::string_view expected) {
    constexpr std::string_view kAny = "[...]";
    std::size_t next = expected.find(kAny);
    if (next == std::string_view::npos) return printed == expected;
    if (!printed.starts_with(expected.substr(0, next))) return false;
    printed.remove_prefix(next);
    while (true) {
        expected.remove_prefix(next + kAny.size());
        next = expected.find(kAny);
        if (next == std::string_view::npos) return printed.ends_with(expected);
        const std::size_t found = printed.find(expected.substr(0, next));
        if (found == std::string_view::npos) return false;
        printed.remove_prefix(found + next);
    }
}

class ExpectedLines : public testing::TestWithParam<std::string> {
protected:
    TemporaryFolder folder_;
};

TEST_P(ExpectedLines, ArePrinted) {
    const std::string path = (kScripts / GetParam()).string();
    fs::copy(path + ".d", ".", fs::copy_options::recursive);
    const BatchRun run = RunBatch(ContentOf(path + ".txt"));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");

    std::vector<std::string> printed = LinesOf(run.output);
#ifdef _WIN32
    for (std::string& line : printed) {  // between the folders of a path
        if (line.find("zolv-test-") != std::string::npos) line = Replaced(line, R"(\\)", "/");
    }
#endif
    const std::vector<std::string> expected = LinesOf(ContentOf(path + ".expected"));
    ASSERT_GT(expected.size(), 10U);
    EXPECT_EQ(printed.size(), expected.size());
    for (std::size_t i = 0; i < std::min(printed.size(), expected.size()) && !HasFailure(); ++i) {
        EXPECT_TRUE(SamePieces(printed[i], expected[i]) || SameOperation(printed[i], expected[i]))
            << "line " << i + 1 << "\nexpected " << expected[i] << "\nprinted  " << printed[i];
    }
}

INSTANTIATE_TEST_SUITE_P(Scripts, ExpectedLines, testing::ValuesIn(ScriptNames()),
                         [](const auto& row) { return row.param; });

// The comparison itself: what it lets through, and what it must not.
TEST(ComparedLines, DifferWhereTheyShould) {
    EXPECT_TRUE(SamePieces("a b c d", "a [...] d"));
    EXPECT_FALSE(SamePieces("x2y1z", "[...]1[...]2[...]"));
    EXPECT_TRUE(SameOperation("rect 1 2.0000001 3 4 colour 0 0 0", "rect 1 2 3 4 colour 0 0 0"));
    EXPECT_FALSE(SameOperation("rect 1 2.0001 3 4 colour 0 0 0", "rect 1 2 3 4 colour 0 0 0"));
    EXPECT_FALSE(SameOperation("Gear1 = 3.5000001", "Gear1 = 3.5"));
}

}  // namespace
}  // namespace zolv
