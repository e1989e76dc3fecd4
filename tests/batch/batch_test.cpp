// The command line of zolv-batch, and what it says of a line that it cannot use.

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "batch/batch_run.h"

namespace zolv {
namespace {

using testing::AllOf;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Batch : public testing::Test {
protected:
    TemporaryFolder folder_;
};

// A script whose last line is unusable, and what standard error says of it behind the place.
TEST_F(Batch, AnUnusableLineEndsTheRun) {
    // clang-format off
    constexpr std::pair<const char*, const char*> kCases[] = {
        {"gte Gear1", "unknown command gte; did you mean get?"},
        {"get Gera3", "unknown field Gera3; did you mean Gear3?"},
        {"get GearingLabel(40)", "unknown field GearingLabel(40); did you mean GearingLabel(0)?"},
        {"click UnitConv.CloseConf", "unknown field UnitConv.CloseConf; did you mean UnitConv.CloseConv?"},
        {"get Gear3 color", "unknown property color; did you mean colour?"},
        {"set Select_MassUnits Pounds", "two windows have a field Select_MassUnits; write OptionsPanel.Select_MassUnits or UnitConv.Select_MassUnits"},
        {"set Select_Car Mote 90", "Select_Car has no row \"Mote 90\"; did you mean \"Mote 900\"?"},
        {"get", "the name of a field is missing"},
        {"get Gear1 visible now", "more words than the command takes: now"},
        {"set Select_Ratio1 much", "Select_Ratio1 takes a whole number, not \"much\""},
        {"set Select_Ratio1 nan", "Select_Ratio1 takes a whole number, not \"nan\""},
        {"set Select_Ratio1 12x", "Select_Ratio1 takes a whole number, not \"12x\""},
        {"set BlowTyres yes", "BlowTyres takes on or off, not \"yes\""},
        {"set RPM1 7000", "RPM1 is nothing that a value can be set in"},
        {"click Gear1", "Gear1 is nothing that can be pressed"},
        {"get Gear1 min", "Gear1 is no slider and has no min and max"},
        {"click UseFixedSpeed\nset Select_AeroSpeed 50", "Select_AeroSpeed is disabled"},
        {"set AccelerationTestingEnable off\nset Select_Graphs Acceleration Data Table", "Select_Graphs is locked"},
        {"picture SpeedPlot nowhere/a.svg", "Cannot write nowhere/a.svg: No such file or directory"},
        {"write-language nowhere/a.txt", "Cannot write nowhere/a.txt: No such file or directory"},
    };
    // clang-format on
    for (const auto& [text, said] : kCases) {
        const std::string script = text;
        const auto line = 2 + std::count(script.begin(), script.end(), '\n');
        const BatchRun run = RunBatch("get Gear1\n" + script + "\nget Gear2\n");
        EXPECT_EQ(run.status, 2);
        EXPECT_THAT(run.Answers(), ElementsAre("Gear1 = 3.5")) << "what was printed before stands";
        EXPECT_EQ(run.errors, "zolv-batch: -:" + std::to_string(line) + ": " + said + '\n');
    }
}

TEST_F(Batch, TellsItsUseAndItsVersion) {
    const BatchRun help = RunBatch("", "--help");
    EXPECT_EQ(help.status, 0);
    const std::string manual = ContentOf(ZOLV_SOURCE_DIR "/packaging/man/zolv-batch.1.in");
    for (const char* command : {"set FIELD VALUE", "click FIELD", "get FIELD", "canvas FIELD", "picture FIELD FILE",
                                "answer PATH", "write-language FILE", "write-words FILE", "report", "sheet FILE"}) {
        EXPECT_THAT(help.output, HasSubstr(command));
        const std::string name =
            Replaced(std::string(command).substr(0, std::string_view(command).find(' ')), "-", "\\-");
        EXPECT_THAT(manual, testing::ContainsRegex("\n\\.BI? " + Replaced(name, "\\", "\\\\"))) << "the man page";
    }
    // Where the manual has the words of the help, they are the same.
    const std::string chapter = ContentOf(ZOLV_SOURCE_DIR "/docs/manual/11-zolv-from-the-command-line.md");
    for (const char* words : {"presses a button, an option button or a menu entry", "answers the next file dialog",
                              "prints the whole set-up", "writes the set-up sheet", "as a language file"}) {
        EXPECT_THAT(help.output, HasSubstr(words));
        EXPECT_THAT(chapter, HasSubstr(words));
    }
    EXPECT_EQ(RunBatch("", "--version").output, "zolv-batch " ZOLV_VERSION "\n");
    const BatchRun unknown = RunBatch("", "--halp");
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.output, "");
    EXPECT_THAT(unknown.errors, StartsWith("zolv-batch: unknown option --halp"));
}

TEST_F(Batch, RunsSeveralScriptsInOneProgram) {
    WriteContent("one", "set Gear1 3.6\n");
    WriteContent("two", "get Gear1\n\nget Gaer2");
    const BatchRun run = RunBatch("set Gear1 3.7\n", "one - two one");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.Answers(), ElementsAre("Gear1 = 3.7"));
    EXPECT_EQ(run.errors, "zolv-batch: two:3: unknown field Gaer2; did you mean Gear2?\n");
}

TEST_F(Batch, TellsAScriptThatCannotBeRead) {
    for (const char* name : {"nowhere", "."}) {
        WriteContent("good", "get Gear1\n");
        const BatchRun run = RunBatch("", std::string("good ") + name);
        EXPECT_EQ(run.status, 2);
        EXPECT_THAT(run.Answers(), ElementsAre("Gear1 = 3.5"));
        EXPECT_THAT(run.errors,
                    AllOf(StartsWith(std::string("zolv-batch: ") + name + ": cannot be "), Not(ContainsRegex("\n."))));
    }
}

TEST_F(Batch, TellsWhereTheInputBreaksOffUnread) {
#ifndef _WIN32
    EXPECT_EQ(RunBatch("", "- < .").errors, "zolv-batch: -:1: cannot be read\n");
    EXPECT_EQ(RunBatch("", "- < /dev/zero").errors, "zolv-batch: -:1: the line is longer than 1048576 bytes\n");
#endif
    const std::string longest = "# " + std::string((std::size_t{1} << 20U) - 2, 'x');
    EXPECT_EQ(RunBatch(longest + '\n' + longest).errors, "");
    EXPECT_EQ(RunBatch("\n" + longest + "x\n").errors, "zolv-batch: -:2: the line is longer than 1048576 bytes\n");
}

TEST_F(Batch, ReadsEveryKindOfLineEnd) {
    for (const char* script : {"set NewName a b\nget NewName", "set NewName a b\r\nget NewName\r\n",
                               "\xEF\xBB\xBF# x\r\nset NewName a b\r\n"
                               "get NewName"}) {
        const BatchRun run = RunBatch(script);
        EXPECT_EQ(run.errors, "");
        EXPECT_THAT(run.Answers(), ElementsAre("NewName = a b"));
    }
    EXPECT_THAT(RunBatch("").Answers(), ElementsAre());
}

#ifndef _WIN32
// Who asks waits at most ten seconds for the answer before he gives the next line.
TEST_F(Batch, AnswersBeforeItWaitsForTheNextLine) {
    const char* const conversation =
        "( echo get Gear1; tries=0; while [ $tries -lt 1000 ] && ! grep -q Gear1 answers; do sleep 0.01; "
        "tries=$((tries + 1)); done; [ $tries -lt 1000 ] && echo get Gear2 ) | \"" ZOLV_BATCH "\" > answers";
    WriteContent("answers", "");
    EXPECT_EQ(std::system(conversation), 0);
    EXPECT_THAT(ContentOf("answers"), HasSubstr("Gear2 = "));
}
#endif

TEST_F(Batch, LosesNoAnswerWithoutAWord) {
    const BatchRun run = RunBatch("get Gear1\n", "> /dev/full");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, "zolv-batch: standard output cannot be written\n");
}

TEST_F(Batch, WritesPicturesAndTheBuiltInLanguage) {
    const BatchRun run = RunBatch(
        "picture SpeedPlot my plot.svg\nwrite-language language_English.txt\nwrite-words words_English.txt\n"
        "get Zolv\n");
    EXPECT_EQ(run.errors, "");
    EXPECT_THAT(run.Answers(), ElementsAre("Zolv = Tarmaq Zolv"));
    EXPECT_THAT(ContentOf("my plot.svg"), AllOf(HasSubstr("<svg "), HasSubstr(">Engine speed [rpm]</text>")));
    const std::string words = ContentOf("language_English.txt");
    EXPECT_THAT(words, StartsWith("English\r\n"));
    EXPECT_EQ(std::count(words.begin(), words.end(), '\n'), 338) << "339 lines, the last without an end";
    EXPECT_THAT(ContentOf("words_English.txt"), HasSubstr("\nDegrees = degrees\n"));
}

TEST_F(Batch, ReportKeepsACaptionWithALineFeedOnItsLine) {
    RunBatch("write-language language_English.txt\n");
    WriteContent("languages.lst", "Language: 1\r\nEnglish\r\n");
    const std::string plain = RunBatch("report\n").output;
    std::string words = ContentOf("language_English.txt");
    for (const std::string word : {"Power:", "Acceleration", "Ratios ==> Speeds", "1st", "Drag:", "Front", "Gear"}) {
        words = Replaced(words, '\n' + word + '\r', '\n' + word + "\nx\r");
    }
    WriteContent("language_English.txt", words);
    const BatchRun run = RunBatch("report\n");
    EXPECT_EQ(LinesOf(run.output).size(), LinesOf(plain).size());
    EXPECT_THAT(run.output, AllOf(HasSubstr("Power: x "), HasSubstr("Ratios ==> Speeds x\n--------------------------"
                                                                    "--\n")));
}

}  // namespace
}  // namespace zolv
