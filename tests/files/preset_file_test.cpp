#include "files/preset_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "support/preset_window.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;

/// The window with a folder of its own for files.
class PresetFileWindow : public PresetWindow {
protected:
    PresetFileWindow() {
        std::string name = (fs::temp_directory_path() / "zolv-presets-XXXXXX").string();
        folder_ = ::mkdtemp(name.data());
    }
    ~PresetFileWindow() override { fs::remove_all(folder_); }

    std::string PathOf(const std::string& name) const { return (folder_ / name).string(); }

    void Write(const std::string& name, const std::string& text) const {
        std::ofstream(PathOf(name), std::ios::binary) << text;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(PathOf(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    void LoadFrom(const std::string& name) {
        answer = PathOf(name);
        LoadPresetFrom();
    }

private:
    fs::path folder_;
};

std::string Joined(const std::vector<std::string>& lines, const std::string& lineEnd = "\r\n") {
    std::string text;
    for (const std::string& line : lines) text += line + lineEnd;
    return text;
}

// A preset behind Ondo T, worked out by hand from the catalogue: power and torque (104.5, 186.4) and unsprung mass
// (60.123) as whole numbers, pressures and reverse of the base car.
std::vector<std::string> OndoLines() {
    return {"Name: Ondo \u03B2 ", "Power: 104",        "PowerRPM: 6017",    "Torque: 186",       "TorqueRPM: 4531",
            "IdleRPM: 1000",      "DrivetrainType: 1", "NumGears: 5",       "Mass: 1244",        "WeightDist: 0.505",
            "Cd: 0.38",           "FTW: 185",          "FTP: 0.55",         "FWS: 16",           "FTrack: 1.56",
            "RTW: 220",           "RTP: 0.5",          "RWS: 16",           "RTrack: 1.55",      "Wheelbase: 2.453",
            "UnsprungMass: 60",   "Efficiency: 0.82",  "Reverse: 3.6",      "FrontalArea: 1.84", "Cl: 0",
            "FMinPressure: 122",  "FMaxPressure: 364", "RMinPressure: 112", "RMaxPressure: 334"};
}

class PresetFileTest : public testing::Test, protected PresetFileWindow {};

TEST_F(PresetFileTest, SavesTwentyNineLinesToTheByte) {
    Add("Other", "Corvane");
    Add("Ondo \u03B2 ", "Ondo T");
    CustomPresets.EditName.SetText("Ondo \u03B2 ");
    Write("\u03B1.cup", "an old file, longer than the new one" + std::string(1000, '.'));
    answer = PathOf("\u03B1.cup");
    SavePresetAs();
    EXPECT_EQ(Read("\u03B1.cup"), Joined(OndoLines()));

    ASSERT_EQ(requests.size(), 1U);
    EXPECT_TRUE(requests[0].forSaving);
    EXPECT_EQ(requests[0].title, "Save custom preset as...");
    EXPECT_EQ(requests[0].filterLabel, "Zolv Custom Preset File (*.cup)");
    EXPECT_EQ(requests[0].presetName, "*.cup");
    EXPECT_EQ(requests[0].defaultExtension, "cup");
}

TEST_F(PresetFileTest, LoadedPresetIsTheOneThatWasSaved) {
    Add("Mine", "Pell S");
    CustomPresets.EditName.SetText("Mine");
    std::vector<std::string> saved = AddPanel();
    files.PresetFileName = PathOf("mine.cup");
    SavePresetFile();

    CustomPresets.NewCar.SetText("Series Mu");
    CustomPresets.NewName.Enter("");
    LoadFrom("mine.cup");
    EXPECT_EQ(AddPanel(), saved);
    EXPECT_FALSE(CustomPresets.New.RTyreWidth.Visible());
    EXPECT_FALSE(presets.LoadingPreset);
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_FALSE(requests[0].forSaving);
    EXPECT_EQ(requests[0].title, "Load custom preset...");

    CustomPresets.NewName.Enter("Mine too");
    AddPreset();
    EXPECT_EQ(TakeMessage(), "Added custom preset: Mine too");
    EXPECT_EQ(vehicle.FiguresOfPreset(1), vehicle.FiguresOfPreset(0));
}

struct LineCase {
    const char* name;
    int line;  // from 1
    const char* text;
    const char* shown;  // on the add panel
};

class PresetFileLine : public testing::TestWithParam<LineCase>, protected PresetFileWindow {};

// One line differs from a good file; the panel showed the Corvane before.
TEST_P(PresetFileLine, FillsItsField) {
    CustomPresets.NewCar.SetText("Corvane");
    std::vector<std::string> lines = OndoLines();
    lines[static_cast<std::size_t>(GetParam().line - 1)] = GetParam().text;
    Write("file.cup", Joined(lines));
    LoadFrom("file.cup");
    EXPECT_THAT(AddPanel(), testing::Contains(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(
    ByHand, PresetFileLine,
    testing::Values(LineCase{"NameIsNotTrimmed", 1, "Name:  a  b ", "NewName =  a  b "},
                    LineCase{"KeysAreNotRead", 2, "Power? 77", "NewPower = 77"},
                    LineCase{"BlankMayBeMissing", 3, "PowerRPM:7000", "NewPowerRPM = 7000"},
                    LineCase{"NumberEndsAtRubbish", 4, "Torque: 12,5 Nm", "NewTorque = 12"},
                    LineCase{"NoNumberIsZero", 5, "", "NewTorqueRPM = 0"},
                    LineCase{"DrivetrainByLastCharacter", 7, "anything 2", "NewDrivetrain = All Wheel Drive"},
                    LineCase{"UnknownDrivetrainLeavesTheList", 7, "DrivetrainType: 3",
                             "NewDrivetrain = Rear Wheel Drive"},
                    LineCase{"GearsByLastCharacter", 8, "NumGears: 14", "NewGears = 4"},
                    LineCase{"UnknownGearsLeaveTheList", 8, "NumGears: 7", "NewGears = 6"},
                    LineCase{"FractionAsPerCent", 10, "WeightDist: 0.5612345678", "NewDist = 56.12345678"},
                    LineCase{"LongNumbersStandWhole", 11, "Cd: 0.1234567890123", "NewCx = 0.1234567890123"},
                    LineCase{"Efficiency", 22, "Efficiency: 0.875", "NewDrivetrainEff = 87.5"},
                    LineCase{"BaseCarOverwritesNothing", 9, "Mass: 1", "NewMass = 1"}),
    [](const auto& row) { return std::string(row.param.name); });

struct BaseCarCase {
    const char* name;
    const char* reverse;
    const char* maxPressure;
    const char* baseCar;
};

class PresetFileBaseCar : public testing::TestWithParam<BaseCarCase>, protected PresetFileWindow {};

// By hand from the catalogue; the panel showed Gnat 5 (152 kPa) before, which stays where no car is found.
TEST_P(PresetFileBaseCar, IsFound) {
    CustomPresets.NewCar.SetText("Gnat 5");
    std::vector<std::string> lines = OndoLines();
    lines[22] = std::string("Reverse: ") + GetParam().reverse;
    lines[28] = std::string("RMaxPressure: ") + GetParam().maxPressure;
    Write("file.cup", Joined(lines));
    LoadFrom("file.cup");
    EXPECT_EQ(CustomPresets.NewCar.Text(), GetParam().baseCar);
}

INSTANTIATE_TEST_SUITE_P(ByPressureAndReverse, PresetFileBaseCar,
                         testing::Values(BaseCarCase{"OnlyOneNeedsNoReverse", "99", "320", "Pell S"},
                                         BaseCarCase{"ReverseTellsSeveralApart", "5.6", "334", "Sable T"},
                                         BaseCarCase{"FirstOfTwins", "3.5", "334", "Varo Boost"},
                                         BaseCarCase{"LastOfTheLargestGroup", "3.7", "243", "Corvane R"},
                                         BaseCarCase{"ComparedAsSingles", "3.35000001", "243.000001", "Wisp 4"},
                                         BaseCarCase{"NoSuchReverse", "3.4", "334", "Gnat 5"},
                                         BaseCarCase{"NoSuchPressure", "3.6", "335", "Gnat 5"}),
                         [](const auto& row) { return std::string(row.param.name); });

struct RefusalCase {
    const char* name;
    std::optional<std::string> text;  // of the file; none for no file
    const char* file = "file.cup";
};

class PresetFileRefusal : public testing::TestWithParam<RefusalCase>, protected PresetFileWindow {};

TEST_P(PresetFileRefusal, LeavesThePanel) {
    CustomPresets.NewCar.SetText("Corvane");
    CustomPresets.NewName.Enter("Keep");
    const std::vector<std::string> before = AddPanel();
    if (GetParam().text) Write(GetParam().file, *GetParam().text);
    LoadFrom(GetParam().file);
    EXPECT_THAT(TakeMessage(), HasSubstr(PathOf(GetParam().file) + ": "));
    EXPECT_EQ(AddPanel(), before);
}

const std::string kOndoText = Joined(OndoLines());

INSTANTIATE_TEST_SUITE_P(
    OfAFile, PresetFileRefusal,
    testing::Values(RefusalCase{"Missing", {}}, RefusalCase{"Folder", {}, "."}, RefusalCase{"Empty", ""},
                    RefusalCase{"LineTooFew", kOndoText.substr(0, kOndoText.rfind("RMaxPressure"))},
                    RefusalCase{"LineFeedsAlone", Joined(OndoLines(), "\n")},
                    RefusalCase{"Rubbish", std::string("\0\xFF\x80\r\n\0", 6)},
                    RefusalCase{"TooLong", kOndoText + std::string(65536, ' ')}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(PresetFileTest, LastLineNeedsNoEnd) {
    Write("file.cup", kOndoText.substr(0, kOndoText.size() - 2));
    LoadFrom("file.cup");
    EXPECT_EQ(CustomPresets.NewCar.Text(), "Ondo T");
}

TEST_F(PresetFileTest, FailedSaveSaysWhichFileAndWhy) {
    Add("Mine", "Corvane");
    CustomPresets.EditName.SetText("Mine");
    answer = PathOf("no folder/mine.cup");
    SavePresetAs();
    EXPECT_THAT(TakeMessage(), AllOf(HasSubstr(answer), HasSubstr("No such file or directory")));
}

TEST_F(PresetFileTest, SavingNeedsAPreset) {
    Add("Mine", "Corvane");
    answer = files.PresetFileName = PathOf("mine.cup");
    for (void (*save)() : {SavePresetAs, SavePresetFile}) {
        save();
        EXPECT_NE(TakeMessage(), "");
    }
    EXPECT_FALSE(fs::exists(PathOf("mine.cup")));
}

TEST_F(PresetFileTest, CancelledDialogDoesNothing) {
    Add("Mine", "Corvane");
    CustomPresets.EditName.SetText("Mine");
    const std::vector<std::string> before = AddPanel();
    SavePresetAs();
    LoadPresetFrom();
    EXPECT_EQ(requests.size(), 2U);
    EXPECT_EQ(files.PresetFileName, "");
    EXPECT_EQ(AddPanel(), before);
}

}  // namespace
}  // namespace zolv
