#include "files/settings_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "fields/guards.h"
#include "fields/windows.h"
#include "files/file_state.h"
#include "shell/fresh_start.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
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

std::string Replaced(std::string text, const std::string& what, const std::string& other) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + other.size())) {
        text.replace(at, what.size(), other);
    }
    return text;
}

class SettingsFile : public ZolvTest {
protected:
    void SetUp() override { Start(); }

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

TEST_F(SettingsFile, IsWrittenByteForByte) {
    SaveAs("a.zolv");
    EXPECT_EQ(ContentOf("a.zolv"), kStartFile);
}

TEST_F(SettingsFile, BringsBackEveryValue) {
    Open("a.zolv", kOtherFile);
    EXPECT_EQ(InMemory(), kOtherFile);
    EXPECT_EQ(Shown("Select_Ratio4"), "1410") << "a slider follows its box";
    EXPECT_EQ(Shown("Select_FinalDrive2"), "3600");
    EXPECT_EQ(Shown("Select_Speed6"), "84");
}

TEST_F(SettingsFile, KeepsWhatItDoesNotHold) {
    Set("Direction2", "");
    Set("Select_Tyres", "Slick R2");
    Set("BlowTyres", "on");
    Open("a.zolv", kOtherFile);
    EXPECT_EQ(Shown("Direction2"), "on");
    EXPECT_EQ(Shown("Select_Tyres"), "Slick R2");
    EXPECT_EQ(Shown("BlowTyres"), "on");
    EXPECT_EQ(Shown("B_Speed1"), "35");
}

TEST_F(SettingsFile, HoldsNoUnitOfSpeed) {
    Open("a.zolv", kOtherFile);
    Set("OptionsPanel.Select_SpeedUnits", "Kilometers per Hour");
    const std::string inKmh = Replaced(Shown("B_Speed1"), " ", "");
    EXPECT_EQ(inKmh, "126") << "35 m/s";
    SaveAs("kmh.zolv");
    Set("OptionsPanel.Select_SpeedUnits", "Meters per Second");
    Open("kmh.zolv");
    EXPECT_EQ(Shown("B_Speed1"), "126") << "read as m/s";
}

TEST_F(SettingsFile, IsReadByPositionWithoutTheKeys) {
    Open("a.zolv", Replaced(Replaced(kOtherFile, "Gear1: ", "abcdef"), "FPressure:", "12345678901"));
    EXPECT_EQ(InMemory(), kOtherFile);
}

TEST_F(SettingsFile, NeedsNoLineEndAtItsEndAndTakesAByteOrderMark) {
    const std::string text = kOtherFile;
    Open("a.zolv", "\xEF\xBB\xBF" + text.substr(0, text.size() - 2));
    EXPECT_EQ(InMemory(), kOtherFile);
}

/// One line of the other file in place of another, and what comes back.
struct LineCase {
    const char* name;
    const char* line;
    const char* other;
    const char* kept;
};

class SettingsLine : public SettingsFile, public testing::WithParamInterface<LineCase> {};

TEST_P(SettingsLine, IsRead) {
    const LineCase& row = GetParam();
    Open("a.zolv", Replaced(kOtherFile, row.line, row.other));
    EXPECT_EQ(InMemory(), Replaced(kOtherFile, row.line, row.kept));
}

// Series Lo takes 71 to 213 kPa in front and 58 to 176 kPa behind.
INSTANTIATE_TEST_SUITE_P(
    OddNumbers, SettingsLine,
    testing::Values(LineCase{"TheNumberEndsAtALetter", "Gear2: 2.05", "Gear2: 2.10abc", "Gear2: 2.1"},
                    LineCase{"ACommaEndsIt", "Gear2: 2.05", "Gear2: 2,05", "Gear2: 2"},
                    LineCase{"HalfToEvenDown", "FPressure: 131", "FPressure: 130.5", "FPressure: 130"},
                    LineCase{"HalfToEvenUp", "RWing: 21", "RWing: 21.5", "RWing: 22"},
                    LineCase{"PressureAboveTheCars", "FPressure: 131", "FPressure: 999", "FPressure: 213"},
                    LineCase{"PressureBelowTheCars", "RPressure: 117", "RPressure: -5", "RPressure: 58"},
                    LineCase{"NoNumberIsZero", "FWing: 12", "FWing: x", "FWing: 0"},
                    LineCase{"WingBeyondItsSlider", "RWing: 21", "RWing: 1e300", "RWing: 30"},
                    LineCase{"RatioBelowItsSlider", "Gear6: 1.12", "Gear6: 0", "Gear6: 0.5"},
                    LineCase{"RatioBeyondItsSlider", "Gear1: 2.65", "Gear1: 99", "Gear1: 7.5"},
                    LineCase{"NothingBehindTheKey", "Speed1: 35", "Sp", "Speed1: 1"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(SettingsFile, HiddenRowsAreSavedAndRead) {
    Open("a.zolv", Replaced(kOtherFile, "Series Lo", "Mote 900"));
    EXPECT_FALSE(Zolv.Ratios.Input[6].Visible());
    EXPECT_EQ(Shown("Gear6"), "1.12");
    EXPECT_THAT(InMemory(), AllOf(HasSubstr("Gear6: 1.12\r\n"), HasSubstr("Speed6: 84\r\n")));
}

TEST_F(SettingsFile, PutsItsWingAnglesInForce) {
    Set("Select_Car", "Series Lo");
    Set("Select_FrontWingAngle", "12");
    Set("Select_RearWingAngle", "21");
    const std::string lift = Shown("Aero_TotalLift");
    Set("Select_FrontWingAngle", "1");
    Set("Select_RearWingAngle", "2");
    ASSERT_NE(Shown("Aero_TotalLift"), lift);
    Open("a.zolv", kOtherFile);
    EXPECT_EQ(Shown("Aero_TotalLift"), lift);
    EXPECT_EQ(Shown("WingAngleRear"), "21 degrees");
}

TEST_F(SettingsFile, LeavesThePagesAsIfItsValuesHadBeenTyped) {
    struct {
        const char* field;
        const char* value;
    } const kTyped[] = {
        {"Select_Car", "Series Lo"},
        {"Select_PressureF", "131"},
        {"Select_PressureR", "117"},
        {"GearF", "3.45"},
        {"Gear1", "2.65"},
        {"Gear2", "2.05"},
        {"Gear3", "1.66"},
        {"Gear4", "1.41"},
        {"Gear5", "1.23"},
        {"Gear6", "1.12"},
        {"Select_FrontWingAngle", "12"},
        {"Select_RearWingAngle", "21"},
    };
    const auto results = [] {
        std::vector<std::string> shown;
        for (const char* name : {"Speed1", "Speed6", "RPM1", "RAC5", "Torque6", "SpeedR", "AccDataLabel(0)",
                                 "AccDataLabel(9)", "AccelerationData", "TD", "TRRC", "TS", "CPA", "Aero_TotalDrag",
                                 "Aero_TotalLift", "Aero_TopSpeed", "Aero_ForceRearWheels", "Info_Power"}) {
            shown.push_back(std::string(name) + " = " + Shown(name));
        }
        return shown;
    };
    for (const auto& row : kTyped) Set(row.field, row.value);
    const std::vector<std::string> typed = results();
    FreshStart();
    Start();
    Open("a.zolv", kOtherFile);
    EXPECT_EQ(results(), typed);
}

TEST_F(SettingsFile, AppliesEverythingBeforeItCalculates) {
    std::vector<std::string> order;
    const auto note = [&](const char* what) {
        return [&order, what] { order.push_back(what + std::string(guards.Busy ? ", busy" : "")); };
    };
    Zolv.Select_Car.OnClick = note("car");
    Zolv.Ratios.FinalDrive.OnChange = note("GearF");
    Zolv.Ratios.Input[1].OnChange = note("Gear1");
    Zolv.Speeds.FinalDrive.OnChange = note("B_Final");
    Zolv.Speeds.Input[6].OnChange = note("B_Speed6");
    Zolv.Select_PressureF.OnChange = note("pressure");
    Zolv.Select_RearWingAngle.OnChange = note("wing");
    files.SettingsOpened = note("refresh");
    Open("a.zolv", kOtherFile);
    EXPECT_THAT(order, ElementsAre("car, busy", "pressure, busy", "GearF, busy", "Gear1, busy", "B_Final, busy",
                                   "B_Speed6, busy", "wing, busy", "refresh"));
    EXPECT_EQ(files.CurrentFileName, "a.zolv");
}

/// A file that is no set-up: how it is made, and what the message says of it.
struct RefusedCase {
    const char* name;
    std::function<void(const std::string& path)> make;
    const char* reason;
};

std::function<void(const std::string&)> File(std::string text) {
    return [text](const std::string& path) { WriteContent(path, text); };
}

class RefusedSettings : public SettingsFile, public testing::WithParamInterface<RefusedCase> {};

TEST_P(RefusedSettings, AreReportedOnceAndChangeNothing) {
    Open("good.zolv", kOtherFile);
    const std::vector<std::string> before = EverythingShown();
    GetParam().make("bad.zolv");
    Open("bad.zolv");
    ExpectMessage(AllOf(HasSubstr("Cannot read bad.zolv: "), HasSubstr(GetParam().reason)));
    EXPECT_EQ(EverythingShown(), before);
    EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv (good.zolv)");
    EXPECT_EQ(files.CurrentFileName, "good.zolv");
    EXPECT_FALSE(guards.Busy);
}

INSTANTIATE_TEST_SUITE_P(
    BadFile, RefusedSettings,
    testing::Values(
        RefusedCase{"Missing", [](const std::string&) {}, "No such file"},
        RefusedCase{"Empty", File(""), "0 of the 19 lines"},
        RefusedCase{"EighteenLines", File(Replaced(kStartFile, "RWing: 14\r\n", "")), "18 of the 19 lines"},
        RefusedCase{"LineFeedsAlone", File(Replaced(kStartFile, "\r\n", "\n")), "1 of the 19 lines"},
        RefusedCase{"Rubbish", File(std::string("\x80\xFF\0\x01\r\n\r\n\xC3", 8)), "of the 19 lines"},
        RefusedCase{"TooLong", File(kStartFile + std::string(65536, ' ')), "Longer than 65536 bytes"},
        RefusedCase{"AFolder", [](const std::string& path) { fs::create_directory(path); }, "s a directory"},
        RefusedCase{"ALinkToItself", [](const std::string& path) { fs::create_symlink(path, path); }, "symbolic link"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(SettingsFile, OfAnUnknownCarIsRefusedAndCloses) {
    for (const char* car : {"Nobody", "series lo", "Series Lo ", ""}) {
        Open("good.zolv", kOtherFile);
        const std::string before = InMemory();
        int refreshed = 0;
        files.SettingsOpened = [&] { ++refreshed; };
        Open("bad.zolv", Replaced(kStartFile, "Pell S", car));
        ExpectMessage("That car is not supported by Tarmaq Zolv.\r\nTry adding it from the Custom Presets panel.");
        EXPECT_EQ(InMemory(), before) << car;
        EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv") << car;
        EXPECT_EQ(files.CurrentFileName, "") << car;
        EXPECT_EQ(refreshed, 1) << "the pages are refreshed, applied or not";
    }
}

TEST_F(SettingsFile, OfAPresetOpensWhileThePresetExists) {
    const std::string text = Replaced(kStartFile, "Pell S", "My \xC3\xA9t\xC3\xA9");
    Set("NewName", "My \xC3\xA9t\xC3\xA9");
    Set("NewCar", "Mote 900");
    CustomPresets.AddCar.Click();
    ExpectMessage(HasSubstr("Added custom preset"));
    Open("a.zolv", text);
    EXPECT_EQ(Shown("Select_Car"), "My \xC3\xA9t\xC3\xA9");
    EXPECT_EQ(InMemory(), text);
}

TEST_F(SettingsFile, TitleAndCurrentFileFollowTheMenu) {
    Zolv.FileSave.Click();  // without a name it asks for one, and the dialog is cancelled
    EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv");
    EXPECT_FALSE(fs::exists("*.zolv"));

    Answer("one.zolv");
    Zolv.FileSave.Click();
    EXPECT_EQ(Zolv.Title(), "Tarmaq Zolv (one.zolv)");
    EXPECT_EQ(ContentOf("one.zolv"), kStartFile);

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
    EXPECT_EQ(Requests().size(), 4U);
}

TEST_F(SettingsFile, DialogsAskInTheWordsOfTheLanguage) {
    Zolv.FileOpen.Click();
    Zolv.FileSaveAs.Click();
    ASSERT_EQ(Requests().size(), 2U);
    const FileRequest& open = Requests()[0];
    const FileRequest& save = Requests()[1];
    EXPECT_EQ(open.title, "Open settings file...");
    EXPECT_EQ(open.filterLabel, "Zolv Settings File (*.zolv)");
    EXPECT_EQ(open.presetName, "*.zolv");
    EXPECT_FALSE(open.forSaving);
    EXPECT_EQ(save.title, "Save settings file as...");
    EXPECT_EQ(save.defaultExtension, "zolv");
    EXPECT_TRUE(save.forSaving);
}

TEST_F(SettingsFile, ThatCannotBeWrittenIsReportedAndNothingIsLost) {
    fs::create_directory("folder.zolv");
    WriteContent("a file", "");
    struct {
        const char* path;
        const char* reason;
    } const kCases[] = {
        {"nowhere/a.zolv", "No such file"}, {"folder.zolv", "s a directory"}, {"a file/a.zolv", "ot a directory"}};
    for (const auto& row : kCases) {
        SaveAs(row.path);
        ExpectMessage(AllOf(HasSubstr(std::string("Cannot write ") + row.path), HasSubstr(row.reason)));
    }
    EXPECT_TRUE(fs::is_empty("folder.zolv"));
}

/// While it lives, no file of this process grows beyond that size, as on a disk that fills up.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    void (*handler_)(int);
    rlimit before_{};
};

TEST_F(SettingsFile, ThatDoesNotFitOnTheDiskLeavesTheOldOneWhole) {
    SaveAs("a.zolv");
    Set("Gear2", "2.2");
    {
        const FullDisk full(100);
        Zolv.FileSave.Click();
    }
    ExpectMessage(HasSubstr("Cannot write a.zolv: File too large"));
    EXPECT_EQ(ContentOf("a.zolv"), kStartFile);
    for (const auto& entry : fs::directory_iterator(".")) EXPECT_NE(entry.path().extension(), ".tmp");
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

double LeadingNumber(const std::string& text) { return std::stod(text); }

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
    const std::string top = "Speed" + Shown("Info_Gears");
    const double reach = LeadingNumber(Shown(top)) / LeadingNumber(Shown("Aero_TopSpeed"));
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

TEST(Examples, AreOfManyKinds) { EXPECT_GE(Examples().size(), 4U); }

INSTANTIATE_TEST_SUITE_P(All, ExampleFile, testing::ValuesIn(Examples()),
                         [](const auto& row) { return row.param.stem().string(); });

}  // namespace
}  // namespace zolv
