#include "text/words.h"

#include <cctype>
#include <filesystem>
#include <set>
#include <string>
#include <utility>

#include "support/zolv_test.h"
#include "text/aligned_table.h"

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

/// The words of a text in small letters, without key marks and hyphens.
std::set<std::string> SpelledIn(const std::string& text) {
    std::set<std::string> spelled;
    std::string word;
    for (const char c : text + ' ') {
        if (c == '&' || c == '-') continue;
        if (std::isalpha(static_cast<unsigned char>(c)) != 0 || c == '\'') {
            word += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        } else if (!word.empty()) {
            spelled.insert(std::exchange(word, {}));
        }
    }
    return spelled;
}

// A slip of the keyboard is a word that stands nowhere else: not in the documents, nor in the English language file.
TEST(Words, AreSpeltAsTheDocumentsSpellThem) {
    std::string written;
    for (const auto& file : std::filesystem::recursive_directory_iterator(ZOLV_SOURCE_DIR "/docs")) {
        if (file.path().extension() == ".md") written += ContentOf(file.path().string());
    }
    for (const char* file : {"/README.md", "/CHANGELOG.md", "/data/language_English.txt"}) {
        written += ContentOf(std::string(ZOLV_SOURCE_DIR) + file);
    }
    std::set<std::string> known = SpelledIn(written);
    // What the documents do not happen to say; "anaylse" is old and has its mend in the English words.
    known.merge(
        SpelledIn("anaylse aerodynamic analyser caused clear deforms depending discs displays effective et fitted "
                  "information patches placed relative rings rpms searching sources static stopped total "
                  "tyre's various vehicles vertically visualised wished yet"));
    for (const WordRow& row : kWordTable) {
        for (const std::string& word : SpelledIn(std::string(row.english))) {
            EXPECT_TRUE(known.contains(word)) << word << " in " << row.name;
        }
    }
}

TEST(AlignedTable, CountsTheColumnsOfEachCharacter) {
    EXPECT_EQ(ColumnsOf("Zolv"), 4U);
    EXPECT_EQ(ColumnsOf("\xC3\x9C"
                        "ber"),
              4U);
    EXPECT_EQ(ColumnsOf("\xE6\x97\xA5\xE6\x9C\xAC"), 4U);  // two characters of two columns
    EXPECT_EQ(ColumnsOf("\xF0\xA0\x80\x80"), 2U);
    EXPECT_EQ(ColumnsOf("\xE6"), 1U) << "broken off";
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
