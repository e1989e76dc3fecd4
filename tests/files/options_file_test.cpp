#include "files/options_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

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

class OptionsFile : public ZolvTest {
protected:
    void SetUp() override { Start(); }

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

TEST_F(OptionsFile, IsWrittenByteForByte) {
    SaveOptions();
    EXPECT_EQ(ContentOf(kName), kStartFile);
}

TEST_F(OptionsFile, BringsBackEveryOptionAndAppliesIt) {
    int refreshed = 0;
    files.OptionsLoaded = [&] { ++refreshed; };
    WriteContent(kName, kOtherFile);
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

/// Lines that are read by position and not by key.
struct ReadCase {
    const char* name;
    const char* line;   // of the start file
    const char* other;  // in its place
    const char* kept;   // what is written back
};

class OptionsLine : public OptionsFile, public testing::WithParamInterface<ReadCase> {};

TEST_P(OptionsLine, IsRead) {
    const ReadCase& row = GetParam();
    WriteContent(kName, With(row.line, row.other));
    LoadOptions();
    EXPECT_EQ(InMemory(), With(row.line, row.kept));
}

INSTANTIATE_TEST_SUITE_P(
    ByPosition, OptionsLine,
    testing::Values(
        ReadCase{"KeysAreNotRead", "AccUnits: 0", "whatever 3", "AccUnits: 3"},
        ReadCase{"OnlyTheLastDigitOfAUnit", "AccUnits: 0", "AccUnits: 13", "AccUnits: 3"},
        ReadCase{"OnlyTheLastFourDigits", "SpeedPlotY: 1000", "SpeedPlotY: 91500", "SpeedPlotY: 1500"},
        ReadCase{"TheBlankOfTheKeyIsSkipped", "TractiveX: 10", "TractiveX: 5", "TractiveX: 5"},
        ReadCase{"ThreeDigitRevsTakeTheColonAlong", "CustomRevs: 0", "CustomRevs: 900", "CustomRevs: 0"},
        ReadCase{"FourDigitRevs", "CustomRevs: 0", "CustomRevs: 1000", "CustomRevs: 1000"},
        ReadCase{"FiveDigitRevs", "CustomRevs: 0", "CustomRevs: 12345", "CustomRevs: 12345"},
        ReadCase{"TrueIsExact", "Redline: False", "Redline: true", "Redline: False"},
        ReadCase{"TrueHasNothingBehindIt", "Redline: False", "Redline: True ", "Redline: False"},
        ReadCase{"TrueStandsInItsPlace", "Redline: False", "Redline:  True", "Redline: False"},
        ReadCase{"ALineShorterThanItsKey", "RevLimit: False", "Rev", "RevLimit: False"},
        ReadCase{"StyleThatIsSet", "AltGraphStyle: \r\n", "AltGraphStyle: False\r\n", "AltGraphStyle: False\r\n"},
        ReadCase{"StyleOfOtherWords", "AltGraphStyle: \r\n", "AltGraphStyle: Yes\r\n", "AltGraphStyle: False\r\n"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(OptionsFile, NeedsNoLineEndAtItsEnd) {
    std::string text = kOtherFile;
    WriteContent(kName, "\xEF\xBB\xBF" + text.substr(0, text.size() - 2));
    LoadOptions();
    EXPECT_EQ(InMemory(), kOtherFile);
}

std::string Repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += text;
    return all;
}

std::string Replaced(std::string text, const std::string& what, const std::string& other) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + other.size())) {
        text.replace(at, what.size(), other);
    }
    return text;
}

struct RefusedCase {
    const char* name;
    std::function<void()> make;
    const char* reason;
};

std::function<void()> File(std::string text) {
    return [text] { WriteContent(kName, text); };
}
std::function<void()> FileWith(const char* line, const char* other) { return File(Replaced(kStartFile, line, other)); }

class RefusedOptions : public OptionsFile, public testing::WithParamInterface<RefusedCase> {};

TEST_P(RefusedOptions, AreReportedOnceAndChangeNothing) {
    WriteContent(kName, kOtherFile);
    LoadOptions();
    fs::remove(kName);
    int refreshed = 0;
    files.OptionsLoaded = [&] { ++refreshed; };
    GetParam().make();
    LoadOptions();
    ExpectMessage(AllOf(HasSubstr(InFolder(kName)), HasSubstr(GetParam().reason)));
    EXPECT_EQ(refreshed, 1) << "a start needs its first calculation all the same";
    EXPECT_EQ(InMemory(), kOtherFile);
}

INSTANTIATE_TEST_SUITE_P(
    BadFile, RefusedOptions,
    testing::Values(RefusedCase{"ThirtyLines", FileWith("Acceleration: True\r\n", ""), "30 of the 31 lines"},
                    RefusedCase{"LineFeedsAlone", File(Replaced(kStartFile, "\r\n", "\n")), "1 of the 31 lines"},
                    RefusedCase{"Rubbish", File(Repeated("\x80\xFF\x01\r\n", 40)), "Line 13 holds 0"},
                    RefusedCase{"UnitBeyondItsTable", FileWith("StfUnits: 0", "StfUnits: 2"),
                                "Line 7 holds 2, which is not from 0 to 1"},
                    RefusedCase{"LastUnitBeyondItsTable", FileWith("T2WUnits: 0", "T2WUnits: 6"), "Line 12 holds 6"},
                    RefusedCase{"ScaleBelowItsSlider", FileWith("SpeedPlotX: 20", "SpeedPlotX: 9"),
                                "Line 13 holds 9, which is not from 10 to 50"},
                    RefusedCase{"ScaleBeyondItsSlider", FileWith("TorqueY: 500", "TorqueY: 2501"),
                                "Line 16 holds 2501"},
                    RefusedCase{"TooLong", File(kStartFile + std::string(65536, ' ')), "Longer than 65536 bytes"},
                    RefusedCase{"AFolder", [] { fs::create_directory(kName); }, "s a directory"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(OptionsFile, MissingOrEmptyIsSaidAndTheOptionsInMemoryAreApplied) {
    for (const bool empty : {false, true}) {
        if (empty) WriteContent(kName, "");
        options.RedlineOn = true;
        int refreshed = 0;
        files.OptionsLoaded = [&] { ++refreshed; };
        LoadOptions();
        ExpectMessage("Error: Options.ini does not exist.");
        EXPECT_TRUE(OptionsPanel.EnableRedline.Checked());
        EXPECT_EQ(refreshed, 1);
    }
}

TEST_F(OptionsFile, AFailedWriteNamesFileAndReason) {
    fs::create_directory(kName);
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
