#include "files/options_file.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "fields/all_windows.h"
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

TEST_F(OptionsFile, ThatIsNoneIsReportedOnceAndChangesNothing) {
    WriteContent(kName, kOtherFile);
    LoadOptions();
    int refreshed = 0;
    fileFollowUps.OptionsLoaded = [&] { ++refreshed; };
    struct {
        std::string text;
        const char* reason;
    } const kCases[] = {{With("Acceleration: True\r\n", ""), "30 of the 31 lines"},
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
    ExpectMessage("Cannot read " + InFolder(kName) + ": Is a directory");
    SaveOptions();
    ExpectMessage("Cannot write " + InFolder(kName) + ": Is a directory");
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
