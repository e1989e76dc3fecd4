// What a change of unit, of language or of options writes anew: all that the program shows behind it, beside a program
// that was started so.

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "desk/history.h"
#include "search/sweep.h"
#include "shell/fresh_start.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

/// The final drive found in a narrow range, and a sweep over it and a pressure, with another gearbox than the one that
/// is held. Of results that are times the name would tell the unit of speed.
void HoldFindAndSweep(std::string_view result = "Top Speed") {
    Zolv.SetUpHold.Click();
    const auto step = [](const char* name, const char* value) {
        Set(name, value);
        NoteInput(*Zolv.Find(name));
    };
    step("Gear2", "2.2");
    for (const auto& [field, value] : {std::pair("Finder.FreeFinalDrive", "on"), std::pair("Finder.LowFinalDrive", "4"),
                                       std::pair("Finder.HighFinalDrive", "4.02"), std::pair("Sweep.Steps", "3")}) {
        Set(field, value);
    }
    Set("Finder.Straights", "name,entry speed,length\r\nHill,20,300\r\n");
    constexpr int kFrontPressure = 8;  // row of the inputs of a car with six gears, behind "None" and the final drive
    SweepPanel.Second.Input.Pick(kFrontPressure);
    Set("Sweep.Steps2", "3");
    const auto row = std::ranges::find(SweepResults(), result, &SweepResultRow::Name);
    SweepPanel.Result.Pick(static_cast<int>(row - SweepResults().begin()));
    Finder.Start.Click();
    SweepPanel.Start.Click();
}

/// Everything but the wanted speeds: a unit that is picked converts them, one from a file leaves them.
std::vector<std::string> EverythingButWantedSpeeds() {
    std::vector<std::string> shown = EverythingShown();
    std::erase_if(shown, [](const std::string& text) {
        return text.starts_with("Zolv.B_") || text.starts_with("Zolv.Select_Speed");
    });
    return shown;
}

void ExpectSame(const std::vector<std::string>& changed, const std::vector<std::string>& started) {
    ASSERT_EQ(changed.size(), started.size());
    for (std::size_t i = 0; i < changed.size(); ++i) EXPECT_EQ(changed[i], started[i]);
}

struct Change {
    const char *list, *unit;
    bool air, run;  // whether the forces of the air, and the run, are worked out anew
    const char* result = "Top Speed";
};

class AUnitThatIsPicked : public ZolvTest, public testing::WithParamInterface<Change> {
protected:
    /// A winged car behind a run, whose last step has other axle loads than the air at the slider's speed. The wanted
    /// speeds are high enough in any unit, so that no final drive has to rise.
    static void BehindARun() {
        for (int gear = 6; gear > 0; --gear) Set("B_Speed" + std::to_string(gear), std::to_string(140 + 10 * gear));
        Set("Select_Car", "Series Lo");
        Set("EnableVLoads", "on");
        HoldFindAndSweep(GetParam().result);
        if (!GetParam().air && !GetParam().run) Set("Select_AeroSpeed", "60");  // the air once more, for the tyres
    }

    /// Behind it the tyres under the axle loads as they were left.
    static std::vector<std::string> ShownNowAndForTheOtherTyre() {
        std::vector<std::string> shown = EverythingButWantedSpeeds();
        if (GetParam().run || !GetParam().air) {
            Set("RearTyreAnal", "on");
            std::ranges::copy(EverythingButWantedSpeeds(), std::back_inserter(shown));
        }
        return shown;
    }
};

TEST_P(AUnitThatIsPicked, ShowsWhatAStartWithItShows) {
    Start();
    BehindARun();
    Set(std::string("OptionsPanel.") + GetParam().list, GetParam().unit);
    const std::vector<std::string> picked = ShownNowAndForTheOtherTyre();
    OptionsPanel.OptionsSave.Click();

    FreshStart();
    Start();
    BehindARun();
    ExpectSame(picked, ShownNowAndForTheOtherTyre());
}

INSTANTIATE_TEST_SUITE_P(
    Quantities, AUnitThatIsPicked,
    testing::Values(Change{"Select_SpeedUnits", "Miles per Hour", true, true},
                    Change{"Select_DistanceUnits", "Inches", false, false},
                    Change{"Select_AreaUnits", "Square Inches", true, false, "Front Contact Patch"},
                    Change{"Select_PressureUnits", "Pounds per Square Inch", false, false},
                    Change{"Select_MassUnits", "Pounds", false, false},
                    Change{"Select_ForceUnits", "Poundals", true, true},
                    Change{"Select_StiffnessUnits", "Pounds per Inch", false, false},
                    Change{"Select_AccUnits", "Gal", false, true},
                    Change{"Select_PowerUnits", "Feet Pound-force per Second", false, false},
                    Change{"Select_TorqueUnits", "Pound-force Inches", false, true, "Torque in Gear 1"},
                    Change{"Select_P2WUnits", "Pound per Horsepower", false, false},
                    Change{"Select_T2WUnits", "Inch Pounds per Pound", false, false}),
    [](const auto& row) { return std::string(row.param.list).substr(7); });

class WhatStandsAlready : public ZolvTest {
protected:
    static void SetUpAWingedCar() {
        Set("Select_Car", "Series Lo");
        Set("Select_AeroSpeed", "60");  // the tyres under the forces of the air
        HoldFindAndSweep();
    }

    /// Everything but the drawings, without its numbers: a language leaves the tyres under the loads of the last run.
    /// The figures of the direction that is not in view keep their words until it is.
    static std::vector<std::string> WordsShown() {
        std::vector<std::string> shown;
        for (std::string text : EverythingButWantedSpeeds()) {
            text = text.substr(0, text.find('\n'));
            std::string words;
            for (const char c : text.substr(0, text.find(" 255 "))) {
                if (std::isdigit(static_cast<unsigned char>(c)) == 0 && c != '.' && c != '-') words += c;
            }
            shown.push_back(words);
        }
        return shown;
    }
};

TEST_F(WhatStandsAlready, IsInALanguageThatIsPicked) {
    const std::filesystem::path data = std::filesystem::path(ZOLV_SOURCE_DIR) / "data";
    for (const char* name : {"language_English.txt", "words_English.txt", "language_German.txt", "words_German.txt"}) {
        WriteContent(InFolder(name), ContentOf((data / name).string()));
    }
    WriteContent(InFolder("languages.lst"), "Language: 1\r\nEnglish\r\nGerman\r\n");
    Start();
    SetUpAWingedCar();
    OptionsPanel.OptionsSave.Click();
    Set("LanguageSelection.LanguageList", "German");
    const std::vector<std::string> picked = WordsShown();
    LanguageSelection.SaveLanguage.Click();
    LanguageSelection.SetVisible(false);

    FreshStart();
    Start();
    SetUpAWingedCar();
    ExpectSame(picked, WordsShown());
}

TEST_F(WhatStandsAlready, IsInTheUnitsOfOptionsThatAreLoaded) {
    Start();
    for (UnitChoice& quantity : OptionsPanel.Units) {
        if (quantity.Select.Name() != "Select_SpeedUnits") quantity.Select.Pick(1);  // that brings other wanted speeds
    }
    OptionsPanel.OptionsSave.Click();
    const std::string other = ContentOf("Options.ini");
    std::filesystem::remove("Options.ini");

    FreshStart();
    Start();
    SetUpAWingedCar();
    WriteContent("Options.ini", other);
    OptionsPanel.OptionsLoad.Click();
    const std::vector<std::string> loaded = EverythingButWantedSpeeds();

    FreshStart();
    Start();
    SetUpAWingedCar();
    ExpectSame(loaded, EverythingButWantedSpeeds());
}

TEST_F(WhatStandsAlready, FollowsTheSetUp) {
    Start();
    SetUpAWingedCar();
    EXPECT_THAT(Shown("Sweep.Status"), testing::Not(testing::HasSubstr("not for the one on the pages")));
    const std::string times = Shown("Finder.StraightTimes");
    Set("Gear3", "1.9");
    for (const char* status : {"Sweep.Status", "Finder.Status"}) {
        EXPECT_THAT(Shown(status), testing::HasSubstr("not for the one on the pages"));
    }
    EXPECT_NE(Shown("Finder.StraightTimes"), times);

    // What is held while no runs are driven has the times of its own one as soon as they are.
    Set("AccelerationTestingEnable", "off");
    Zolv.SetUpHold.Click();
    EXPECT_EQ(Zolv.AccDataLabel[1].Held(), "");
    Set("AccelerationTestingEnable", "on");
    EXPECT_EQ(Zolv.AccDataLabel[1].Held(), Zolv.AccDataLabel[1].Caption());
    OptionsPanel.OptionsSave.Click();
    Set("AccelerationTestingEnable", "off");
    Zolv.SetUpHold.Click();
    OptionsPanel.OptionsLoad.Click();
    EXPECT_EQ(Zolv.AccDataLabel[1].Held(), Zolv.AccDataLabel[1].Caption());
}

}  // namespace
}  // namespace zolv
