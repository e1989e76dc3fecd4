#include "aero/aero_page.h"

#include "aero/aero_state.h"
#include "fields/guards.h"
#include "gearing/gearing_state.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

class AeroPage : public StartedTest {
protected:
    void ExpectVerdict(const char* verdict, Rgb colour) {
        EXPECT_EQ(Zolv.Aero_AeroDistribution.ToolTip(), verdict);
        EXPECT_EQ(Zolv.Aero_AeroDistribution.Colour(), colour);
    }
};

TEST_F(AeroPage, AtStandstillOnlyTheWeightIsLeft) {
    Set("Select_Car", "Series Lo");
    Set("Select_AeroSpeed", "0");
    EXPECT_EQ(Shown({"Aero_BodyLDR", "Aero_UndertrayLDR", "Aero_FrontWingLDR", "Aero_RearWingLDR", "Aero_TotalLDR",
                     "Aero_AeroDistribution"}),
              "N/A|N/A|N/A|N/A|N/A|N/A|");
    ExpectVerdict("N/A", kBlack);
    EXPECT_EQ(Shown({"Aero_DragSplit", "Aero_WeightMultiple", "Aero_ForceDistribution"}), "0% / 100%|1|47% / 53%|");
}

// From a separate calculation in Python, at 7 and 14 degrees.
TEST_F(AeroPage, ShowsTheForcesAtTheSpeedOfTheSlider) {
    Set("Select_Car", "Series Lo");
    Set("Select_AeroSpeed", "41");
    EXPECT_EQ(Shown({"Aero_BodyCd", "Aero_BodyCl", "Aero_FrontalArea", "Aero_BodyCdA", "Aero_BodyAirDrag",
                     "Aero_BodyLDR", "Aero_UndertrayClA"}),
              "0.2594|0|1.6 m^2|0.42|420 N|0 : 1|-1.6|");
    EXPECT_EQ(Shown({"Aero_UndertrayLift", "Aero_UndertrayLDR", "Aero_FrontWingDrag", "Aero_FrontWingLDR",
                     "Aero_RearWingLift", "Aero_RearWingLDR", "Aero_TotalDrag"}),
              "-1614 N|6 : 1|82 N|6.91 : 1|-830 N|5.74 : 1|916 N|");
    EXPECT_EQ(Shown({"Aero_TotalLift", "Aero_TotalLDR", "Aero_DragSplit", "Aero_RR", "Aero_TotalFriction",
                     "Aero_ForceFrontWheels", "Aero_ForceRearWheels"}),
              "-3012 N|3.29 : 1|87% / 13%|140 N|1056 N|4604 N|5439 N|");
    EXPECT_EQ(Shown({"Aero_ForceDistribution", "Aero_AeroDistribution", "Aero_WeightMultiple", "Aero_AirDensity",
                     "Aero_AirTemp", "WingAngleFront", "AeroSpeed"}),
              "45.8% / 54.2%|43.1% / 56.9%|1.43|1.204 kg/m^3|20\u00B0C|7 degrees|41 m/s|");
}

// From a separate calculation in Python: a car whose undertray does not divide its lift like the weight.
TEST_F(AeroPage, DividesTheLiftOfTheUndertrayByItsOwnPosition) {
    Set("Select_Car", "Series Mu");
    Set("Select_AeroSpeed", "41");
    EXPECT_EQ(Shown({"Aero_ForceFrontWheels", "Aero_ForceRearWheels", "Aero_AeroDistribution"}),
              "4334 N|4908 N|45.2% / 54.8%|");
}

TEST_F(AeroPage, TheSpeedsOfBothPagesAreTwins) {
    Set("OptionsPanel.Select_SpeedUnits", "Kilometers per Hour");
    Set("Select_AeroSpeed", "100");
    EXPECT_EQ(Shown({"Select_AeroSpeed_TyreTab", "AeroSpeed"}), "100|360 km/h|");
    Set("Select_AeroSpeed_TyreTab", "50");
    EXPECT_EQ(Shown({"Select_AeroSpeed", "AeroSpeed_TyreTab"}), "50|180 km/h|");
    EXPECT_EQ(aero.AeroSpeedValue, 50);
}

TEST_F(AeroPage, ASpeedRunsNoGearing) {
    Set("Select_Car", "Series Lo");
    int runs = 0;
    gearingFollowUps.SpeedsFound = [&] { ++runs; };
    Set("Select_AeroSpeed", "90");
    EXPECT_EQ(runs, 0);
    Set("Select_FrontWingAngle", "9");
    EXPECT_EQ(runs, 1);
}

// From a separate calculation in Python: at the top speed the forces are those of its last pass.
TEST_F(AeroPage, AtTheTopSpeedTheSlidersOnlyShowTheirOwn) {
    Set("Select_Car", "Series Lo");
    Set("Select_AeroSpeed", "41");
    Set("UseFixedSpeed", "on");
    EXPECT_FALSE(Zolv.Select_AeroSpeed.Enabled());
    EXPECT_FALSE(Zolv.Select_AeroSpeed_TyreTab.Enabled());
    EXPECT_EQ(Shown({"Aero_TopSpeed", "Aero_TotalDrag", "Aero_TotalLift", "AeroSpeed"}),
              "77.6 m/s|3282 N|-10788 N|41 m/s|");
    Set("Select_AeroSpeed", "10");
    EXPECT_EQ(Shown({"Aero_TotalDrag", "AeroSpeed"}), "3282 N|10 m/s|");
    Set("Select_FrontWingAngle", "15");
    Set("Select_RearWingAngle", "0");
    EXPECT_EQ(Shown({"Aero_TopSpeed", "Aero_TotalDrag"}), "77.7 m/s|3302 N|");
    Set("UseSliderSpeed", "on");
    EXPECT_TRUE(Zolv.Select_AeroSpeed.Enabled());
    EXPECT_EQ(aero.AeroSpeedValue, 10);
    EXPECT_LT(aero.Forces.TotalDrag, 60);
}

// Angles from a separate calculation in Python: the front wing at 7 degrees balances the rear one at 10.
TEST_F(AeroPage, TheBalanceIsToldByColour) {
    Set("Select_Car", "Series Lo");
    Set("Select_RearWingAngle", "11");
    ExpectVerdict("Understeer", kBlue);
    Set("Select_RearWingAngle", "10");
    ExpectVerdict("Neutral", Rgb{0, 160, 0});
    Set("Select_RearWingAngle", "9");
    ExpectVerdict("Oversteer", kRed);
    Set("Select_Car", "Pell S");
    ExpectVerdict("N/A", kBlack);
}

TEST_F(AeroPage, AWingThatMovesDuringABulkRewriteWaits) {
    Set("Select_Car", "Series Lo");
    const std::string before = Shown("Aero_RearWingLift");
    guards.Busy = true;
    Zolv.Select_RearWingAngle.SetValue(30);
    EXPECT_EQ(Shown("Aero_RearWingLift"), before);
    guards.Busy = false;
    CalcAeroCoefficients();
    EXPECT_NE(Shown("Aero_RearWingLift"), before);
}

}  // namespace
}  // namespace zolv
