#include "text/words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace zolv {
namespace {

// Names of real rows stand for those of a kind: "Degrees" has no value, "ConvertedIs" has one.
TEST(Words, AFileIsReadLineByLine) {
    struct {
        const char* file;
        const char* degrees;
        const char* converted;
    } const kCases[] = {
        {"", "degrees", "is {0}"},
        {"Degrees = Grad\nConvertedIs = sind {0}", "Grad", "sind {0}"},
        {"  ConvertedIs={0}, so ist es \t\r\n\r\nDegrees\t= a = b\r\n", "a = b", "{0}, so ist es"},
        {"# Degrees = Grad\nDegrees Grad\nNoSuchName = x\n= x\nDegrees =\nDegrees.ToolTip = x", "degrees", "is {0}"},
        {"ConvertedIs = sind\nDegrees = {0} Grad", "degrees", "is {0}"},
        {"ConvertedIs = {0} {0}\n", "degrees", "is {0}"},
        {"Degrees = {x} {\n", "{x} {", "is {0}"},
        {"Degrees = \xE5\xBA\xA6\n", "\xE5\xBA\xA6", "is {0}"},
        {"Degrees = \xE5\xBA\nConvertedIs = \xC0\x80{0}\n", "degrees", "is {0}"},  // cut short, overlong
        {"Degrees = one\nDegrees = two\n", "two", "is {0}"},
    };
    for (const auto& row : kCases) {
        const Words read = Words::Read(row.file);
        EXPECT_EQ(read["Degrees"], row.degrees) << row.file;
        EXPECT_EQ(read["ConvertedIs"], row.converted) << row.file;
    }
}

TEST(Words, ASentenceTakesItsValuesWhereTheLanguageWantsThem) {
    EXPECT_EQ(Words().Sentence("ConvertedIs", {"12 kg"}), "is 12 kg");
    EXPECT_EQ(Words().Sentence("ConvertedIs", {"{0}"}), "is {0}") << "a value is no place";
    EXPECT_EQ(Words::Read("ConvertedIs = {0} ist es").Sentence("ConvertedIs", {"12 kg"}), "12 kg ist es");
}

TEST(Words, WhatIsWrittenReadsBackAsEnglish) {
    const std::string file = BuiltInWords();
    EXPECT_THAT(file, testing::HasSubstr("\nDegrees = degrees\n"));
    const Words english;
    const Words read = Words::Read(file);
    for (std::size_t row = 0; row < kWordTable.size(); ++row) EXPECT_EQ(read.OfRow(row), english.OfRow(row));
}

}  // namespace
}  // namespace zolv
