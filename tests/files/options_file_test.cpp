#include "files/options_file.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "fields/windows.h"
#include "files/file_state.h"
#include "support/zolv_test.h"
#include "units/option_state.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "Options.ini";
using testing::AllOf;
using testing::HasSubstr;

// The options at start, line by line as the format has them.
constexpr const char* kStartFile =
    "SpdUnits: 0\r\nDstUnits: 0\r\nAreUnits: 0\r\nPrsUnits: 0\r\nMasUnits: 0\r\nFrcUnits: 0\r\n"
    "StfUnits: 0\r\nAccUnits: 0\r\nPwrUnits: 0\r\nTrqUnits: 0\r\nP2WUnits: 0\r\nT2WUnits: 0\r\n"
    "SpeedPlotX: 20\r\nSpeedPlotY: 1000\r\nTorqueX: 250\r\nTorqueY: 500\r\nTractiveX: 10\r\nTractiveY: 1000\r\n"
    "SpeedGraphX: 10\r\nSpeedGraphY: 20\r\n"
    "PowerLine: True\r\nTorqueLine: False\r\nRedline: False\r\nAltGraphStyle: \r\nEngineTorque: False\r\n"
    "VLoads: False\r\nRevsMax: False\r\nRevLimit: False\r\nAutoRevs: True\r\nCustomRevs: 0\r\n"
    "Acceleration: True\r\n";

// Every value another one, and no two scales alike.
constexpr const char* kOtherFile =
    "SpdUnits: 1\r\nDstUnits: 4\r\nAreUnits: 3\r\nPrsUnits: 4\r\nMasUnits: 5\r\nFrcUnits: 2\r\n"
    "StfUnits: 1\r\nAccUnits: 2\r\nPwrUnits: 3\r\nTrqUnits: 1\r\nP2WUnits: 6\r\nT2WUnits: 5\r\n"
    "SpeedPlotX: 35\r\nSpeedPlotY: 1500\r\nTorqueX: 1000\r\nTorqueY: 2500\r\nTractiveX: 5\r\nTractiveY: 5000\r\n"
    "SpeedGraphX: 15\r\nSpeedGraphY: 45\r\n"
    "PowerLine: False\r\nTorqueLine: True\r\nRedline: True\r\nAltGraphStyle: True\r\nEngineTorque: True\r\n"
    "VLoads: True\r\nRevsMax: True\r\nRevLimit: True\r\nAutoRevs: False\r\nCustomRevs: 7000\r\n"
    "Acceleration: False\r\n";

class OptionsFile : public StartedTest {
protected:
    /// What a save would write now.
    std::string InMemory() {
        fs::remove_all(kName);
        SaveOptions();
        return ContentOf(kName);
    }

    /// The start file with one line in place of another.
    static std::string With(const std::string& line, const std::string& other) {
        std::string text = kStartFile;
        return text.replace(text.find(line), line.size(), other);
    }
};

TEST_F(OptionsFile, BringsBackEveryOptionAndAppliesIt) {
    int refreshed = 0;
    fileFollowUps.OptionsLoaded = [&] { ++refreshed; };
    EXPECT_EQ(InMemory(), kStartFile);
    // As an editor may leave it: with a byte order mark, and no line end at its end.
    WriteContent(kName, "\xEF\xBB\xBF" + std::string(kOtherFile, std::string_view(kOtherFile).size() - 2));
    LoadOptions();
    EXPECT_EQ(refreshed, 1);
    EXPECT_EQ(units.Distance.Suffix, " ft");
    EXPECT_EQ(OptionsPanel.Units[11].Select.Text(), "Inch Pounds per Pound");
    EXPECT_EQ(OptionsPanel.Units[11].Caption.Caption(), "lb in/lb");
    EXPECT_EQ(OptionsPanel.TEPlotX.Select.Value(), 5);
    EXPECT_EQ(OptionsPanel.SpeedTimeGraphY.Select.Value(), 45);
    EXPECT_TRUE(OptionsPanel.RC_Fixed.Checked());
    EXPECT_EQ(InMemory(), kOtherFile);
}

TEST_F(OptionsFile, LeavesTheNumbersOfTheSpeedBoxesAlone) {
    WriteContent(kName, With("SpdUnits: 0", "SpdUnits: 1"));
    LoadOptions();
    EXPECT_EQ(Zolv.Speeds.Input[6].Text(), "60");
    EXPECT_EQ(Zolv.Label_SPD[6].Caption(), " km/h");
    EXPECT_EQ(Zolv.Speeds.InputSlider[6].Max(), 720);
}

// One line of the start file in place of another, and what is written back. They are read by position, not by key.
TEST_F(OptionsFile, LinesAreReadByPosition) {
    struct {
        const char *line, *other, *kept;
    } const kCases[] = {
        {"AccUnits: 0", "whatever 13", "AccUnits: 3"},  // only the last digit counts
        {"SpeedPlotY: 1000", "SpeedPlotY: 91500", "SpeedPlotY: 1500"},
        {"TractiveX: 10", "TractiveX: 5", "TractiveX: 5"},
        {"CustomRevs: 0", "CustomRevs: 900", "CustomRevs: 0"},  // three digits take the colon along
        {"CustomRevs: 0", "CustomRevs: 1000", "CustomRevs: 1000"},
        {"CustomRevs: 0", "CustomRevs: 12345", "CustomRevs: 12345"},
        {"Redline: False", "Redline: true", "Redline: False"},
        {"Redline: False", "Redline: True ", "Redline: False"},
        {"Redline: False", "Redline:  True", "Redline: False"},
        {"RevLimit: False", "Rev", "RevLimit: False"},
        {"AltGraphStyle: \r\n", "AltGraphStyle: Yes\r\n", "AltGraphStyle: False\r\n"},
    };
    for (const auto& row : kCases) {
        WriteContent(kName, With(row.line, row.other));
        LoadOptions();
        EXPECT_EQ(InMemory(), With(row.line, row.kept)) << row.other;
    }
}

TEST_F(OptionsFile, ThatIsNoneIsReportedOnceAndChangesNothing) {
    WriteContent(kName, kOtherFile);
    LoadOptions();
    int refreshed = 0;
    fileFollowUps.OptionsLoaded = [&] { ++refreshed; };
    std::string rubbish;
    for (int i = 0; i < 40; ++i) rubbish += "\x80\xFF\x01\r\n";
    struct {
        std::string text;
        const char* reason;
    } const kCases[] = {{With("Acceleration: True\r\n", ""), "30 of the 31 lines"},
                        {Replaced(kStartFile, "\r\n", "\n"), "1 of the 31 lines"},
                        {rubbish, "Line 13 holds 0"},
                        {With("StfUnits: 0", "StfUnits: 2"), "Line 7 holds 2, which is not from 0 to 1"},
                        {With("T2WUnits: 0", "T2WUnits: 6"), "Line 12 holds 6"},
                        {With("SpeedPlotX: 20", "SpeedPlotX: 9"), "Line 13 holds 9, which is not from 10 to 50"},
                        {With("TorqueY: 500", "TorqueY: 2501"), "Line 16 holds 2501"},
                        {kStartFile + std::string(65536, ' '), "Longer than 65536 bytes"}};
    for (const auto& row : kCases) {
        WriteContent(kName, row.text);
        LoadOptions();
        ExpectMessage(AllOf(HasSubstr(InFolder(kName)), HasSubstr(row.reason)));
        EXPECT_EQ(std::exchange(refreshed, 0), 1) << "a start needs its first calculation all the same";
        EXPECT_EQ(InMemory(), kOtherFile) << row.reason;
    }
}

TEST_F(OptionsFile, MissingOrEmptyIsSaidAndTheOptionsInMemoryAreApplied) {
    for (const bool empty : {false, true}) {
        if (empty) WriteContent(kName, "");
        options.RedlineOn = true;
        int refreshed = 0;
        fileFollowUps.OptionsLoaded = [&] { ++refreshed; };
        LoadOptions();
        ExpectMessage("Error: Options.ini does not exist.");
        EXPECT_TRUE(OptionsPanel.EnableRedline.Checked());
        EXPECT_EQ(refreshed, 1);
    }
}

TEST_F(OptionsFile, AFolderInItsPlaceIsNamedWithTheReason) {
    fs::create_directory(kName);
    LoadOptions();
    ExpectMessage(AllOf(HasSubstr(InFolder(kName)), HasSubstr("s a directory")));
    SaveOptions();
    ExpectMessage(AllOf(HasSubstr(InFolder(kName)), HasSubstr("s a directory")));
}

TEST_F(OptionsFile, TheButtonsSaveAndLoad) {
    OptionsPanel.EnableVLoads.SetChecked(true);
    OptionsPanel.OptionsSave.Click();
    EXPECT_EQ(ContentOf(kName), With("VLoads: False", "VLoads: True"));
    WriteContent(kName, With("SpeedGraphX: 10", "SpeedGraphX: 20"));
    OptionsPanel.OptionsLoad.Click();
    EXPECT_EQ(OptionsPanel.SpeedTimeGraphX.Select.Value(), 20);
}

}  // namespace
}  // namespace zolv
