#include "files/settings_file.h"

#include <filesystem>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "desk/present.h"
#include "fields/all_windows.h"
#include "files/file_state.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;

// The set-up at start, line by line as the format has it.
constexpr const char* kStartFile =
    "CarName: Pell S\r\nFPressure: 175\r\nRPressure: 175\r\nGearF: 4\r\n"
    "Gear1: 3.5\r\nGear2: 2.4\r\nGear3: 1.7\r\nGear4: 1.35\r\nGear5: 1.15\r\nGear6: 1\r\nFinal: 4\r\n"
    "Speed1: 16\r\nSpeed2: 23\r\nSpeed3: 32\r\nSpeed4: 39\r\nSpeed5: 50\r\nSpeed6: 60\r\nFWing: 7\r\nRWing: 14\r\n";

// A winged car, with every value another one than at start and no two alike.
constexpr const char* kOtherFile =
    "CarName: Series Lo\r\nFPressure: 131\r\nRPressure: 117\r\nGearF: 3.45\r\n"
    "Gear1: 2.65\r\nGear2: 2.05\r\nGear3: 1.66\r\nGear4: 1.41\r\nGear5: 1.23\r\nGear6: 1.12\r\nFinal: 3.6\r\n"
    "Speed1: 35\r\nSpeed2: 44\r\nSpeed3: 53\r\nSpeed4: 61\r\nSpeed5: 70\r\nSpeed6: 84\r\nFWing: 12\r\nRWing: 21\r\n";

class SettingsFile : public StartedTest {
protected:
    void Open(const std::string& name) {
        Answer(name);
        Zolv.FileOpen.Click();
    }
    void Open(const std::string& name, const std::string& content) {
        WriteContent(name, content);
        Open(name);
    }
    void SaveAs(const std::string& name) {
        Answer(name);
        Zolv.FileSaveAs.Click();
    }
    /// What a save would write now. The title and the current file stay.
    static std::string InMemory() {
        const std::string current = files.CurrentFileName;
        files.CurrentFileName = "memory.zolv";
        SaveSettingsFile();
        files.CurrentFileName = current;
        return ContentOf("memory.zolv");
    }
};

TEST_F(SettingsFile, BringsBackEveryValueAndKeepsWhatItDoesNotHold) {
    SaveAs("start.zolv");
    EXPECT_EQ(ContentOf("start.zolv"), kStartFile);
    Set("Direction2", "");
    Set("Select_Tyres", "Slick R2");
    Set("BlowTyres", "on");
    Open("a.zolv", kOtherFile);
    EXPECT_EQ(InMemory(), kOtherFile);
    EXPECT_EQ(Shown({"Select_Ratio4", "Select_FinalDrive2", "Select_Speed6"}), "1410|3600|84|") << "as their boxes";
    EXPECT_EQ(Shown({"Direction2", "Select_Tyres", "BlowTyres"}), "on|Slick R2|on|");
}

// Series Lo takes 71 to 213 kPa in front. Mote 900 has five gears, and its sixth row is hidden.
TEST_F(SettingsFile, NumbersAreLimitedByTheirSliders) {
    const std::pair<const char*, const char*> kCases[] = {{"FPressure: 999", "FPressure: 213"},
                                                          {"FPressure: 130.5", "FPressure: 130"},
                                                          {"RWing: 1e300", "RWing: 30"},
                                                          {"Gear1: 99", "Gear1: 7.5"},
                                                          {"Speed1: 0", "Speed1: 1"}};
    const auto with = [](const std::string& line) {
        const std::string key = line.substr(0, line.find(' '));
        const std::string text = kOtherFile;
        const auto at = text.find(key);
        return std::string(text).replace(at, text.find('\r', at) - at, line);
    };
    for (const auto& [line, kept] : kCases) {
        Open("a.zolv", "\xEF\xBB\xBF" + with(line));
        EXPECT_EQ(InMemory(), with(kept)) << line;
    }
    Open("a.zolv", Replaced(kOtherFile, "Series Lo", "Mote 900"));
    EXPECT_FALSE(Zolv.Ratios.Input[6].Visible());
    EXPECT_THAT(InMemory(), AllOf(HasSubstr("Gear6: 1.12\r\n"), HasSubstr("Speed6: 84\r\n")));
}

TEST_F(SettingsFile, HoldsNoUnitOfSpeed) {
    Open("a.zolv", kOtherFile);
    Set("OptionsPanel.Select_SpeedUnits", "Kilometers per Hour");
    EXPECT_EQ(Shown("B_Speed1"), "126") << "35 m/s";
    SaveAs("kmh.zolv");
    Set("OptionsPanel.Select_SpeedUnits", "Meters per Second");
    Open("kmh.zolv");
    EXPECT_EQ(Shown("B_Speed1"), "126") << "read as m/s";
}

TEST_F(SettingsFile, ThatIsNoneIsReportedOnceAndChangesNothing) {
    Open("good.zolv", kOtherFile);
    const std::vector<std::string> before = EverythingShown();
    fs::create_directory("folder");
    struct {
        const char *name, *reason;
        std::string text = {};  // of the file; none is written where it is empty
    } const kCases[] = {{"missing", "No such file"},
                        {"folder", "s a directory"},
                        {"short", "18 of 19 lines", Replaced(kStartFile, "RWing: 14\r\n", "")},
                        {"long", "Longer than 65536 bytes", kStartFile + std::string(65536, ' ')}};
    for (const auto& row : kCases) {
        if (!row.text.empty()) WriteContent(row.name, row.text);
        Open(row.name);
        ExpectMessage(AllOf(HasSubstr(std::string("Cannot read ") + row.name + ": "), HasSubstr(row.reason)));
        EXPECT_EQ(EverythingShown(), before) << row.name;
        EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv (good.zolv)") << row.name;
        EXPECT_EQ(files.CurrentFileName, "good.zolv");
    }
}

TEST_F(SettingsFile, OfAnUnknownCarIsRefusedAndCloses) {
    int refreshed = 0;
    for (const char* car : {"Nobody", "series lo"}) {
        Open("good.zolv", kOtherFile);
        refreshed = 0;
        deskFollowUps.LaidOut = [&] { ++refreshed; };
        Open("bad.zolv", Replaced(kStartFile, "Pell S", car));
        ExpectMessage("That car is not supported by Tarmaq Zolv.\r\nTry adding it from the Custom Presets panel.");
        EXPECT_EQ(InMemory(), kOtherFile) << car;
        EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv") << car;
        EXPECT_EQ(files.CurrentFileName, "") << car;
        EXPECT_EQ(refreshed, 1) << "the pages are refreshed, applied or not";
    }
}

TEST_F(SettingsFile, OfAPresetOpensWhileThePresetExists) {
    const std::string name = "My \xC3\xA9t\xC3\xA9";
    Set("NewName", name);
    Set("NewCar", "Mote 900");
    CustomPresets.AddCar.Click();
    ExpectMessage(HasSubstr("Added custom preset"));
    Open("a.zolv", Replaced(kStartFile, "Pell S", name));
    EXPECT_EQ(InMemory(), Replaced(kStartFile, "Pell S", name));
}

TEST_F(SettingsFile, TitleAndCurrentFileFollowTheMenu) {
    Zolv.FileSave.Click();  // without a name it asks for one, and the dialog is cancelled
    EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv");
    EXPECT_FALSE(fs::exists("*.zolv"));

    Answer("one.zolv");
    Zolv.FileSave.Click();
    EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv (one.zolv)");
    Set("Gear2", "2.3");
    Zolv.FileSave.Click();  // no dialog any more
    EXPECT_EQ(ContentOf("one.zolv"), Replaced(kStartFile, "Gear2: 2.4", "Gear2: 2.3"));

    Zolv.FileOpen.Click();  // cancelled
    Zolv.FileSaveAs.Click();
    EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv (one.zolv)");

    Zolv.FileClose.Click();
    EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv");
    EXPECT_EQ(files.CurrentFileName, "");
    EXPECT_EQ(Shown("Gear2"), "2.3") << "the pages keep their values";

    ASSERT_EQ(Requests().size(), 4U);
    const FileRequest& open = Requests()[2];
    const FileRequest& save = Requests()[3];
    EXPECT_EQ(open.title + '|' + open.filterLabel + '|' + open.presetName,
              "Open settings file...|Zolv Settings File (*.zolv)|*.zolv");
    EXPECT_EQ(save.title + '|' + save.defaultExtension, "Save settings file as...|zolv");
    EXPECT_TRUE(save.forSaving && !open.forSaving);
}

TEST_F(SettingsFile, KnowsEachInputThatItDoesNotHoldYet) {
    for (const auto& [field, value, line] : {std::tuple("Gear5", "1.1", "Gear5: 1.1"),
                                             {"GearF", "4.1", "GearF: 4.1"},
                                             {"B_Speed6", "61", "Speed6: 61"},
                                             {"B_Final", "3.9", "Final: 3.9"},
                                             {"Select_PressureR", "176", "RPressure: 176"}}) {
        NoteSaved();
        EXPECT_FALSE(SettingsChanged()) << field;
        Set(field, value);
        EXPECT_TRUE(SettingsChanged()) << field;
        EXPECT_THAT(PresentSettingsText(), HasSubstr(line));
    }
}

TEST_F(SettingsFile, ThatCannotBeWrittenIsReportedAndNothingIsLost) {
    fs::create_directory("folder.zolv");
    for (const auto& [path, reason] :
         {std::pair("nowhere/a.zolv", "No such file"), std::pair("folder.zolv", "s a directory")}) {
        SaveAs(path);
        ExpectMessage(AllOf(HasSubstr(std::string("Cannot write ") + path), HasSubstr(reason)));
        EXPECT_EQ(Zolv.Title() + '|' + files.CurrentFileName, "Tarmaq Zolv|");
    }
    SaveAs("a.zolv");
    SaveAs("nowhere/a.zolv");
    ExpectMessage(HasSubstr("Cannot write nowhere/a.zolv"));
    EXPECT_EQ(Zolv.Title() + '|' + files.CurrentFileName, "Tarmaq Zolv (a.zolv)|a.zolv");
#ifndef _WIN32
    Set("Gear2", "2.2");
    {
        const FullDisk full(100);
        Zolv.FileSave.Click();
    }
    ExpectMessage(HasSubstr("Cannot write a.zolv: File too large"));
#endif
    EXPECT_EQ(ContentOf("a.zolv"), kStartFile);
}

/// The examples that come with the program.
class ExampleFile : public ZolvTest, public testing::WithParamInterface<fs::path> {};

std::vector<fs::path> Examples() {
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(ZOLV_SOURCE_DIR "/examples")) {
        if (entry.path().extension() == ".zolv") found.push_back(entry.path());
    }
    return found;
}

TEST_P(ExampleFile, OpensWithoutAWordAndIsASetUpThatMakesSense) {
    Start();
    const std::string path = GetParam().string();
    Answer(path);
    Zolv.FileOpen.Click();
    EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv (" + path + ')');

    Answer("again.zolv");
    Zolv.FileSaveAs.Click();
    EXPECT_EQ(ContentOf("again.zolv"), ContentOf(path)) << "every number is within its range and in its shortest form";

    // The top gear reaches the top speed before the engine's last revs, and not long before: within a third.
    const double reach = std::stod(Shown("Speed" + Shown("Info_Gears"))) / std::stod(Shown("Aero_TopSpeed"));
    EXPECT_GE(reach, 1);
    EXPECT_LE(reach, 1.34);

    for (const char* direction : {"Direction1", "Direction2"}) {
        Set(direction, "");
        for (const DrawingOperation& operation : Zolv.TorquePlot.Drawing().Operations()) {
            EXPECT_NE(operation.kind, DrawingOperation::Kind::Text) << "an order error";
        }
    }
    ExpectOnlyNumbers();
}

INSTANTIATE_TEST_SUITE_P(All, ExampleFile, testing::ValuesIn(Examples()),
                         [](const auto& row) { return row.param.stem().string(); });

}  // namespace
}  // namespace zolv
