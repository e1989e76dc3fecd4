#include "files/preset_file.h"

#include <filesystem>
#include <string>
#include <vector>

#include "files/file_state.h"
#include "support/preset_window.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

using testing::AllOf;
using testing::HasSubstr;

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
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

class PresetFileTest : public PresetWindow {
protected:
    void LoadFrom(const std::string& name) {
        Answer(name);
        LoadPresetFrom();
    }
    void LoadLines(const std::vector<std::string>& lines) {
        WriteContent("file.cup", Joined(lines));
        LoadFrom("file.cup");
    }
};

TEST_F(PresetFileTest, SavesTwentyNineLinesToTheByte) {
    Add("Other", "Corvane");
    AddAndEdit("Ondo \u03B2 ", "Ondo T");
    WriteContent("\u03B1.cup", "an old file, longer than the new one" + std::string(1000, '.'));
    Answer("\u03B1.cup");
    SavePresetAs();
    EXPECT_EQ(ContentOf("\u03B1.cup"), Joined(OndoLines()));

    ASSERT_EQ(Requests().size(), 1U);
    EXPECT_TRUE(Requests()[0].forSaving);
    EXPECT_EQ(Requests()[0].title + '|' + Requests()[0].filterLabel + '|' + Requests()[0].presetName,
              "Save custom preset as...|Zolv Custom Preset File (*.cup)|*.cup");
    EXPECT_EQ(Requests()[0].defaultExtension, "cup");
}

// One line differs from a good file; the panel showed the Corvane before.
TEST_F(PresetFileTest, EachLineFillsItsField) {
    struct {
        std::size_t line;  // from 1
        const char *text, *shown;
    } const kCases[] = {{1, "Name:  a  b ", "NewName =  a  b "},
                        {5, "", "NewTorqueRPM = 0"},
                        {7, "anything 2", "NewDrivetrain = All Wheel Drive"},
                        {7, "DrivetrainType: 3", "NewDrivetrain = Rear Wheel Drive"},  // leaves the list
                        {8, "NumGears: 7", "NewGears = 6"},
                        {9, "Mass: 1", "NewMass = 1"},  // the base car overwrites nothing
                        {10, "WeightDist: 0.5612345678", "NewDist = 56.12345678"},
                        {22, "Efficiency: 0.875", "NewDrivetrainEff = 87.5"}};
    for (const auto& row : kCases) {
        CustomPresets.NewCar.SetText("Corvane");
        std::vector<std::string> lines = OndoLines();
        lines[row.line - 1] = row.text;
        LoadLines(lines);
        EXPECT_THAT(AddPanel(), testing::Contains(row.shown)) << row.text;
    }
}

// By hand from the catalogue; the panel showed Gnat 5 (152 kPa) before, which stays where no car is found.
TEST_F(PresetFileTest, TheBaseCarIsFoundByPressureAndReverse) {
    struct {
        const char *reverse, *maxPressure, *baseCar;
    } const kCases[] = {{"99", "320", "Pell S"},                                    // the only one of that pressure
                        {"5.6", "334", "Sable T"},   {"3.5", "334", "Varo Boost"},  // the first of twins
                        {"3.7", "243", "Corvane R"}, {"3.35000001", "243.000001", "Wisp 4"},  // compared as singles
                        {"3.4", "334", "Gnat 5"},    {"3.6", "335", "Gnat 5"}};
    for (const auto& row : kCases) {
        CustomPresets.NewCar.SetText("Gnat 5");
        std::vector<std::string> lines = OndoLines();
        lines[22] = std::string("Reverse: ") + row.reverse;
        lines[28] = std::string("RMaxPressure: ") + row.maxPressure;
        LoadLines(lines);
        EXPECT_EQ(CustomPresets.NewCar.Text(), row.baseCar) << row.reverse << ' ' << row.maxPressure;
    }
}

const std::string kOndoText = Joined(OndoLines());

TEST_F(PresetFileTest, AFileThatIsNoneLeavesThePanel) {
    CustomPresets.NewCar.SetText("Corvane");
    CustomPresets.NewName.Enter("Keep");
    const std::vector<std::string> before = AddPanel();
    WriteContent("short", kOndoText.substr(0, kOndoText.rfind("RMaxPressure")));
    WriteContent("long", kOndoText + std::string(65536, ' '));
    for (const auto& [name, reason] : {std::pair("missing", "No such file"), std::pair(".", "s a directory"),
                                       std::pair("short", "28 of 29 lines"), std::pair("long", "65536 bytes")}) {
        LoadFrom(name);
        EXPECT_THAT(TakeMessage(), AllOf(HasSubstr(std::string(name) + ": "), HasSubstr(reason)));
        EXPECT_EQ(AddPanel(), before) << name;
    }
}

TEST_F(PresetFileTest, SavingNeedsAPresetAndAPlace) {
    Add("Mine", "Corvane");
    files.PresetFileName = "mine.cup";
    for (void (*save)() : {SavePresetAs, SavePresetFile}) {
        save();
        EXPECT_NE(TakeMessage(), "");
    }
    EXPECT_FALSE(std::filesystem::exists("mine.cup"));
    CustomPresets.EditName.SetText("Mine");
    Answer("no folder/mine.cup");
    SavePresetAs();
    EXPECT_THAT(TakeMessage(), AllOf(HasSubstr("no folder/mine.cup: "), HasSubstr("No such file or directory")));
}

TEST_F(PresetFileTest, CancelledDialogDoesNothing) {
    AddAndEdit("Mine", "Corvane");
    const std::vector<std::string> before = AddPanel();
    SavePresetAs();
    LoadPresetFrom();
    ASSERT_EQ(Requests().size(), 2U);
    EXPECT_EQ(Requests()[1].title, "Load custom preset...");
    EXPECT_FALSE(Requests()[1].forSaving);
    EXPECT_EQ(files.PresetFileName, "");
    EXPECT_EQ(AddPanel(), before);
}

}  // namespace
}  // namespace zolv
