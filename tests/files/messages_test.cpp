#include "text/messages.h"

#include <filesystem>

#include "files/missing_lines.h"
#include "files/options_text.h"
#include "language/language_list.h"
#include "language/language_list_text.h"
#include "language/language_text.h"
#include "platform/text_files.h"
#include "support/zolv_test.h"
#include "text/words.h"
#include "vehicle/info_page.h"

namespace zolv {
namespace {

/// Words of a language that calls each by the name of its row: "CannotRead({0}|{1})".
Words NamesAsWords() {
    std::string file;
    for (const WordRow& row : kWordTable) {
        file.append(row.name).append(" = ").append(row.name).append("(");
        for (const char* place : {"{0}", "{1}", "{2}", "{3}"}) {
            if (row.english.find(place) != std::string_view::npos) file.append(place).append("|");
        }
        file += ")\n";
    }
    return Words::Read(file);
}

class Messages : public ZolvTest {};

// As the procedures themselves put them together.
TEST_F(Messages, AreSaidInTheWordsInForce) {
    const std::string outOfRange = "Line 1 holds 9, which is not from 0 to 3";
    const struct {
        std::string english, said;
    } kCases[] = {
        {CannotRead("a.zolv", MissingLines("", "a set-up", 97)), "CannotRead(a.zolv|NotSetUp(0|97|)|)"},
        {CannotRead("a.cup", MissingLines("", "a custom preset", 40)), "CannotRead(a.cup|NotPreset(0|40|)|)"},
        {MissingLines("\n\n\n", "a set-up", 3), "LineEndsChanged()"},
        {CannotWrite("b.csv", ReadTextFile("no such file", 10).reason), "CannotWrite(b.csv|NoSuchFile()|)"},
        {ReadTextFile(".", 10).reason, "IsDirectory()"},
#ifndef _WIN32
        {ReadTextFile("/dev/null", 10).reason, "NotRegularFile()"},
        {ReadTextFile("/dev/null/x", 10).reason, "NotADirectory()"},
        {ReadTextFile(std::string(300, 'x'), 10).reason, "NameTooLong()"},
#endif
        {ParseOptions("").Reason(), "NotOptions(0|31|)"},
        {outOfRange, "OptionOutOfRange(1|9|0|3|)"},
        {ParseLanguageList("").Reason(), "NotLanguageList()"},
        {ParseLanguage("").Reason(), "LanguageFileCut(LanguageLinesOther(1|339|)|)"},
        {ParseLanguage("a\nb").Reason(), "LanguageFileCut(LanguageLinesBare()|)"},
        {ParseLanguage("a\r\n").Reason(), "LanguageFileCut(LanguageLinesEnded(2|339|)|)"},
        {ParseLanguage("a\nb\r\nc").Reason(), "LanguageFileCut(LanguageLinesMixed(2|339|)|)"},
        {"Quarter mile ET:", "DistanceQuarter()"},
        {"no sentence of the program", "no sentence of the program"},
    };
    for (const auto& row : kCases) {
        words = Words();
        EXPECT_EQ(InWords(row.english), row.english);
        words = NamesAsWords();
        EXPECT_EQ(InWords(row.english), row.said);
    }
}

TEST_F(Messages, OfAFolderWithoutFilesAreKnown) {
    std::filesystem::remove("unknown.jpg");
    words = NamesAsWords();
    ShowCarPicture();
    EXPECT_EQ(InWords(TakeMessage()), "PictureMissing()");
    LoadLanguageList();
    EXPECT_EQ(InWords(TakeMessage()), "LanguageNotChosen()");
    SaveLanguageChoice();
    EXPECT_EQ(InWords(TakeMessage()), "LanguageNotSaved()");
}

}  // namespace
}  // namespace zolv
