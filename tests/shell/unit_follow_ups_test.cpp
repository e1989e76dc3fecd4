// What a change of unit writes anew: all that the program shows behind it, beside a program started with that unit.

#include <algorithm>
#include <string>
#include <vector>

#include "shell/fresh_start.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

struct Change {
    const char *list, *unit;
    bool air, run;  // whether the forces of the air, and the run, are worked out anew
};

class AUnitThatIsPicked : public ZolvTest, public testing::WithParamInterface<Change> {
protected:
    /// A winged car behind a run, whose last step has other axle loads than the air at the slider's speed. The wanted
    /// speeds are high enough in any unit, so that no final drive has to rise.
    static void BehindARun() {
        for (int gear = 6; gear > 0; --gear) Set("B_Speed" + std::to_string(gear), std::to_string(140 + 10 * gear));
        Set("Select_Car", "Series Lo");
        Set("EnableVLoads", "on");
        if (!GetParam().air && !GetParam().run) Set("Select_AeroSpeed", "60");  // the air once more, for the tyres
    }

    /// Everything but the wanted speeds: a unit that is picked converts them, one from a file leaves them. Behind it
    /// the tyres under the axle loads as they were left.
    static std::vector<std::string> ShownNowAndForTheOtherTyre() {
        std::vector<std::string> shown = EverythingShown();
        if (GetParam().run || !GetParam().air) {
            Set("RearTyreAnal", "on");
            std::ranges::copy(EverythingShown(), std::back_inserter(shown));
        }
        std::erase_if(shown, [](const std::string& text) {
            return text.starts_with("Zolv.B_") || text.starts_with("Zolv.Select_Speed");
        });
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
    const std::vector<std::string> started = ShownNowAndForTheOtherTyre();
    ASSERT_EQ(picked.size(), started.size());
    for (std::size_t i = 0; i < picked.size(); ++i) EXPECT_EQ(picked[i], started[i]);
}

INSTANTIATE_TEST_SUITE_P(Quantities, AUnitThatIsPicked,
                         testing::Values(Change{"Select_SpeedUnits", "Miles per Hour", true, true},
                                         Change{"Select_DistanceUnits", "Inches", false, false},
                                         Change{"Select_AreaUnits", "Square Inches", true, false},
                                         Change{"Select_PressureUnits", "Pounds per Square Inch", false, false},
                                         Change{"Select_MassUnits", "Pounds", false, false},
                                         Change{"Select_ForceUnits", "Poundals", true, true},
                                         Change{"Select_StiffnessUnits", "Pounds per Inch", false, false},
                                         Change{"Select_AccUnits", "Gal", false, true},
                                         Change{"Select_PowerUnits", "Feet Pound-force per Second", false, false},
                                         Change{"Select_TorqueUnits", "Pound-force Inches", false, true},
                                         Change{"Select_P2WUnits", "Pound per Horsepower", false, false},
                                         Change{"Select_T2WUnits", "Inch Pounds per Pound", false, false}),
                         [](const auto& row) { return std::string(row.param.list).substr(7); });

}  // namespace
}  // namespace zolv
