#include "aero/aero_state.h"
#include "fields/guards.h"
#include "gearing/gearing_state.h"
#include "support/zolv_test.h"
#include "text/texts.h"
#include "units/option_state.h"

namespace zolv {
namespace {

class GearingChains : public ZolvTest {
protected:
    GearingChains() {
        Start();
        CountRuns(gearingFollowUps.SpeedsFound, speedRuns);
        CountRuns(gearingFollowUps.RatiosFound, ratioRuns);
    }

    static void CountRuns(Hook& hook, int& runs) {
        hook = [&runs, wired = hook] {
            ++runs;
            wired();
        };
    }

    static std::string Row(const std::string& name, int first, int last) {
        std::string shown;
        for (int i = first; i <= last; ++i) shown += Shown(name + std::to_string(i)) + '|';
        return shown;
    }

    static std::vector<std::string> Printed() {
        std::vector<std::string> texts;
        for (const DrawingOperation& operation : Zolv.TorquePlot.Drawing().Operations()) {
            if (operation.kind != DrawingOperation::Kind::Text) continue;
            EXPECT_EQ(operation.colour, kRed);
            texts.push_back(Zolv.TorquePlot.Drawing().TextOf(operation));
        }
        return texts;
    }

    int speedRuns = 0, ratioRuns = 0;
};

TEST_F(GearingChains, ACarRunsTheSpeedsTwiceAndTheRatiosOnce) {
    Set("Select_Car", "Series Lo");
    EXPECT_EQ(speedRuns, 2);  // once behind the top speed, once for the car
    EXPECT_EQ(ratioRuns, 1);
}

// A slider that moves rewrites its box; where that changes the text, a second run comes from inside the first event.
TEST_F(GearingChains, BoxesAndTheirSlidersFollowEachOtherAndRecalculate) {
    struct {
        const char *field, *typed, *text, *follower, *value;
        int runs;
    } const kCases[] = {{"Select_Ratio2", "2000", "2000", "Gear2", "2", 1},
                        {"Gear1", "3,65", "3.65", "Select_Ratio1", "3650", 1},
                        {"Gear1", "3.650", "3.65", "Select_Ratio1", "3650", 2},
                        {"Gear1", "3.5004", "3.500", "Select_Ratio1", "3500", 1},
                        {"GearF", "9", "7.5", "Select_FinalDrive1", "7500", 2},
                        {"GearF", "", "0.5", "Select_FinalDrive1", "500", 2},
                        {"B_Speed1", "17.4", "17.4", "Select_Speed1", "17", 1},
                        {"B_Speed1", "", "1", "Select_Speed1", "1", 2},
                        {"B_Final", "9", "7.5", "Select_FinalDrive2", "7500", 2}};
    for (const auto& row : kCases) {
        for (const auto& [box, text] : {std::pair("Gear1", "3.5"), std::pair("Gear2", "2.4"), std::pair("GearF", "3.7"),
                                        std::pair("B_Final", "3.7"), std::pair("B_Speed1", "17")}) {
            Set(box, text);
        }
        speedRuns = ratioRuns = 0;
        Set(row.field, row.typed);
        EXPECT_EQ(Shown(row.field), row.text);
        EXPECT_EQ(Shown(row.follower), row.value);
        EXPECT_EQ(speedRuns + ratioRuns, row.runs) << row.field << " = " << row.typed;
    }
}

TEST_F(GearingChains, ANumberBeyondTheLimitIsRewrittenAlsoWhereTheSliderStands) {
    for (const char* typed : {"9", "8", "77777"}) {
        Set("Gear1", typed);
        EXPECT_EQ(Shown("Gear1"), "7.5");
        EXPECT_EQ(gearing.FromRatios.GearRatio[1], 7.5F);
    }
    Set("Gear6", "0");
    Set("Gear6", "");
    EXPECT_EQ(gearing.FromRatios.GearRatio[6], 0.5F);
    EXPECT_FALSE(guards.Busy);
}

TEST_F(GearingChains, WhileBusyABoxOnlyMovesItsSlider) {
    guards.Busy = true;
    Set("Gear1", "3.9");
    Set("B_Final", "3");
    EXPECT_EQ(Shown({"Select_Ratio1", "Select_FinalDrive2"}), "3900|3000|");
    EXPECT_EQ(speedRuns + ratioRuns, 0);
}

TEST_F(GearingChains, RatiosInTheWrongOrderAreReportedAndNothingElseChanges) {
    Set("Select_Graphs", texts.GraphNames[2]);
    const std::string speeds = Row("Speed", 1, 6);
    Set("Gear3", "2.5");
    EXPECT_THAT(Printed(),
                testing::ElementsAre("Speeds have NOT been updated\r\nbecause of the following 1 error(s):\r\n",
                                     "The ratio for 3rd cannot be shorter than the ratio for 2nd\r\n"));
    EXPECT_EQ(Shown("Select_Graphs"), texts.GraphNames[0]);
    EXPECT_TRUE(Zolv.TorquePlot.Visible());
    EXPECT_EQ(Row("Speed", 1, 6), speeds);
    EXPECT_EQ(speedRuns, 0);
    Set("Gear5", "3");
    EXPECT_THAT(Printed(),
                testing::ElementsAre(testing::HasSubstr(" 2 error(s)"), testing::HasSubstr("for 3rd"),
                                     testing::HasSubstr("for 5th cannot be shorter than the ratio for 4th")));
    Set("Gear2", "2.5");  // equal ratios pass
    Set("Gear5", "1.35");
    EXPECT_TRUE(Printed().empty());
    EXPECT_EQ(speedRuns, 1);
}

TEST_F(GearingChains, SpeedsInTheWrongOrderAreReportedInTheirColours) {
    Set("Direction2", "on");
    const std::string ratios = Row("B_Gear", 1, 6);
    Set("B_Speed2", "90");  // above the top speed of 53.6 m/s
    EXPECT_THAT(Printed(),
                testing::ElementsAre("Ratios have NOT been updated\r\nbecause of the following 1 error(s):\r\n",
                                     "The speed for 3rd cannot be less than that of 2nd\r\n"));
    EXPECT_EQ(Zolv.Speeds.Input[2].Colour(), kRed);
    EXPECT_EQ(Zolv.Speeds.Input[3].Colour(), kBlack);
    EXPECT_EQ(Row("B_Gear", 1, 6), ratios);
    EXPECT_EQ(ratioRuns, 1);
}

TEST_F(GearingChains, AGearThatTheCarLacksKeepsItsText) {
    Set("Select_Car", "Mote 900");
    EXPECT_EQ(gearing.FromRatios.GearRatio[5], 0.5F);
    EXPECT_EQ(gearing.FromSpeeds.GearSpeed[6], 200);
    EXPECT_EQ(Shown("Gear5"), "1.15");
    Set("Gear4", "0.5");
    EXPECT_TRUE(Printed().empty());
}

TEST_F(GearingChains, LabelsAreColouredByTheirLimits) {
    EXPECT_EQ(Zolv.Ratios.RPM[1].Colour(), std::nullopt);
    EXPECT_EQ(Zolv.Ratios.Result[5].Colour(), kBlack);
    Set("Gear1", "4.6");  // 1.72 times the next and more reaches the limit of 1.27
    EXPECT_EQ(Zolv.Ratios.RPM[1].Colour(), kRed);
    EXPECT_EQ(Zolv.Ratios.RAC[1].Colour(), kBlue);  // 1.27 / 1.92 of 7033 is below the 5456 of peak torque
    Set("GearF", "2");
    EXPECT_EQ(Zolv.Ratios.Result[5].Colour(), kRed);
    Set("GearF", "4");
    Set("RevLimitEnable", "on");
    EXPECT_EQ(Shown("RPM1"), "8932 rpm");  // 7033 * 1.27
}

// A script has the results that they hand across.
TEST_F(GearingChains, TheDirectionsBringTheirPageToTheFrontAndRunOnce) {
    Set("Direction2", "on");
    EXPECT_TRUE(Zolv.Speeds.Frame.InFront());
    EXPECT_EQ(ratioRuns, 1);
    for (int repeat = 0; repeat < 2; ++repeat) Set("Direction1", "on");
    EXPECT_TRUE(Zolv.Ratios.Frame.InFront());
    EXPECT_EQ(speedRuns, 1);
}

TEST_F(GearingChains, ARaisedFinalDriveIsWrittenBack) {
    Set("Direction2", "on");
    Set("B_Speed1", "6");  // from a separate calculation in Python, as below
    EXPECT_EQ(Shown({"B_Final", "B_Gear1"}), "7.5|12.276|");
    EXPECT_EQ(Zolv.Speeds.Result[1].Colour(), kRed);
    Set("B_Speed1", "20");
    Set("B_Final", "2");
    ratioRuns = 0;
    Set("B_Speed1", "9");
    EXPECT_EQ(Shown({"B_Final", "Select_FinalDrive2", "B_Gear1", "B_RPM1"}), "5.951|5951|7.5|13956 rpm|");
    EXPECT_EQ(ratioRuns, 1);  // the write came while the box was busy
    // A pressure starts while nothing is busy: the write of the box is a change, its slider's rounding is another, and
    // both run inside the outer run.
    ratioRuns = 0;
    Set("Select_PressureF", "300");
    EXPECT_EQ(Shown({"B_Final", "B_Gear1", "B_TorqueR"}), "5.993|7.5|4675 Nm|");
    EXPECT_EQ(ratioRuns, 3);
    EXPECT_FALSE(guards.Busy);
}

// From a separate calculation in Python: the ratios page takes its axle loads from the wanted speeds, and reverse its
// final drive from the speeds page.
TEST_F(GearingChains, AChangeOfCarOnTheSpeedsPageLeavesTheOtherUnderItsLoads) {
    Set("Direction2", "on");
    Set("B_Final", "3");
    Set("B_Speed6", "150");
    Set("Select_Car", "Series Lo");
    EXPECT_NEAR(gearing.FromRatios.GearSpeed[6], 80.02098846, 1e-5);
    EXPECT_NEAR(gearing.FromRatios.GearSpeed[0], 28.52385712, 1e-5);
    EXPECT_NEAR(gearing.Loads.GearAxleLoads[6].rear, 26644.23633, 0.01);
    EXPECT_NEAR(gearing.FromSpeeds.GearRatio[1], 7.324604034, 1e-5);
    EXPECT_NEAR(aero.FrontWheelForce, 4056.06104, 0.01);  // of the run's last step
    EXPECT_EQ(gearing.AccelLastRow, 685);
    Set("Direction1", "on");
    for (const auto& [box, text] :
         {std::pair("Gear1", "3.5"), std::pair("Gear2", "2.4"), std::pair("Gear3", "1.7"), std::pair("Gear4", "1.35"),
          std::pair("Gear5", "1.15"), std::pair("Gear6", "1"), std::pair("GearF", "4")}) {
        Set(box, text);
    }
    EXPECT_NEAR(gearing.FromRatios.GearSpeed[6], 83.97493744, 1e-5);
}

TEST_F(GearingChains, ACarThatCannotBeSaysNothingThatIsNoNumber) {
    const std::vector<ChangedFigure> kCases[] = {
        {{CarField::Mass, 0}},
        {{CarField::Wheelbase, 0}},
        {{CarField::Power, 0}, {CarField::Torque, 0}, {CarField::Efficiency, 0}},
        {{CarField::TorqueRPM, 9063}, {CarField::IdleRPM, 9063}},  // one peak
        {{CarField::PowerRPM, 0}, {CarField::Reverse, 0}},
        {{CarField::FTW, 0}, {CarField::RTW, 0}, {CarField::FWS, 0}, {CarField::RWS, 0}},
        {{CarField::Cl, 1000}, {CarField::WeightDist, 1}},  // lifted by its body
        {{CarField::UndertrayType, 99}, {CarField::FrontWingType, -1}, {CarField::RearWingType, 4}},
        {{CarField::FMinPressure, 300}, {CarField::FMaxPressure, 100}, {CarField::NumGears, 99}}};
    for (const std::vector<ChangedFigure>& figures : kCases) {
        SCOPED_TRACE(std::to_string(static_cast<int>(figures[0].field)) + " is " + std::to_string(figures[0].value));
        UseCustomCar("Series Lo", figures);
        ExpectOnlyNumbers();
        for (const auto& [name, value] :
             {std::pair("Direction2", "on"), std::pair("B_Speed1", "3"), std::pair("Select_AeroSpeed", "200"),
              std::pair("BlowTyres", "on"), std::pair("UseFixedSpeed", "on"), std::pair("RearTyreAnal", "on"),
              std::pair("Direction1", "on")}) {
            Set(name, value);
        }
        ExpectOnlyNumbers();
        Set("Select_Car", "Pell S");
        EXPECT_EQ(Shown("Aero_TopSpeed"), "53.6 m/s");
        for (const char* name : {"UseSliderSpeed", "FrontTyreAnal"}) Set(name, "on");
        Set("BlowTyres", "off");
    }
}

}  // namespace
}  // namespace zolv
