#include "aero/aero_state.h"
#include "fields/guards.h"
#include "gearing/gearing_state.h"
#include "language/number_text.h"
#include "language/texts.h"
#include "support/zolv_test.h"
#include "units/option_state.h"

namespace zolv {
namespace {

class GearingChains : public ZolvTest {
protected:
    GearingChains() {
        Start();
        CountRuns(gearing.SpeedsFound, speedRuns);
        CountRuns(gearing.RatiosFound, ratioRuns);
    }

    static void CountRuns(Hook& hook, int& runs) {
        hook = [&runs, wired = hook] {
            ++runs;
            wired();
        };
    }

    static std::string Row(const std::string& name, int first, int last) {
        std::vector<std::string> names;
        for (int i = first; i <= last; ++i) names.push_back(name + std::to_string(i));
        return Shown(names);
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

struct PageCase {
    const char* name;
    const char* car;
    const char *rpm, *speed, *rac, *torque, *reverse;
    const char *rpmOfSpeeds, *ratio, *racOfSpeeds;
};
class PagesOf : public GearingChains, public testing::WithParamInterface<PageCase> {};

TEST_P(PagesOf, DescribeTheCar) {
    const PageCase& row = GetParam();
    Set("Select_Car", row.car);
    EXPECT_EQ(Row("RPM", 1, 6), row.rpm);
    EXPECT_EQ(Row("Speed", 1, 6), row.speed);
    EXPECT_EQ(Row("RAC", 1, 5), row.rac);
    EXPECT_EQ(Row("Torque", 1, 6), row.torque);
    EXPECT_EQ(Shown({"RPMR", "SpeedR", "TorqueR"}), row.reverse);
    EXPECT_EQ(Row("B_RPM", 1, 6), row.rpmOfSpeeds);
    EXPECT_EQ(Row("B_Gear", 1, 6), row.ratio);
    EXPECT_EQ(Row("B_RAC", 1, 5), row.racOfSpeeds);
    EXPECT_EQ(speedRuns, 2);  // once behind the top speed, once for the car
    EXPECT_EQ(ratioRuns, 1);
}

// From a separate calculation in Python, at the texts that the boxes hold at start.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Computed, PagesOf, testing::Values(
    PageCase{"FourGearsFrontDriven", "Mote 900",
        "6598 rpm|6505 rpm|6186 rpm|6427 rpm|6427 rpm|6427 rpm|", "11.2 m/s|16.1 m/s|21.6 m/s|28.2 m/s|76.2 m/s|76.2 m/s|",
        "4525 rpm|4608 rpm|4912 rpm|2380 rpm|6427 rpm|", "986 Nm|676 Nm|479 Nm|380 Nm|141 Nm|141 Nm|", "6427 rpm|6.7 m/s|1605 Nm|",
        "6235 rpm|6990 rpm|5850 rpm|6427 rpm|6427 rpm|6427 rpm|", "2.311|1.802|1.084|0.977|0.191|0.191|", "4862 rpm|4205 rpm|5274 rpm|1253 rpm|6427 rpm|"},
    PageCase{"SixGearsRearDrivenWithWings", "Series Lo",
        "10700 rpm|10548 rpm|10031 rpm|9725 rpm|9638 rpm|10422 rpm|", "25.1 m/s|36 m/s|48.2 m/s|58.7 m/s|68 m/s|84 m/s|",
        "7337 rpm|7471 rpm|7965 rpm|8285 rpm|8381 rpm|", "4743 Nm|3252 Nm|2304 Nm|1830 Nm|1558 Nm|1355 Nm|", "10422 rpm|21.4 m/s|5421 Nm|",
        "9990 rpm|11532 rpm|9308 rpm|10712 rpm|9426 rpm|10422 rpm|", "5.129|4.111|2.377|2.237|1.53|1.4|", "8006 rpm|6670 rpm|8760 rpm|7326 rpm|8622 rpm|"},
    PageCase{"SixGearsAllDriven", "Varo R",
        "7412 rpm|7307 rpm|6948 rpm|6737 rpm|6676 rpm|7220 rpm|", "18.6 m/s|26.7 m/s|35.9 m/s|43.7 m/s|50.8 m/s|63 m/s|",
        "5082 rpm|5176 rpm|5518 rpm|5739 rpm|5805 rpm|", "6847 Nm|4695 Nm|3326 Nm|2641 Nm|2250 Nm|1956 Nm|", "7220 rpm|18.1 m/s|6847 Nm|",
        "6911 rpm|7992 rpm|6432 rpm|7429 rpm|6505 rpm|7220 rpm|", "3.798|3.053|1.764|1.67|1.139|1.051|", "5556 rpm|4618 rpm|6088 rpm|5068 rpm|6000 rpm|"}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

struct BoxCase {
    const char* name;
    const char *box, *typed, *text, *slider, *value;
    int runs;
};
class Boxes : public GearingChains, public testing::WithParamInterface<BoxCase> {};

TEST_P(Boxes, MoveTheirSlidersAndRecalculate) {
    const BoxCase& row = GetParam();
    if (std::string_view(row.box).starts_with("B_")) Set("Direction2", "on");
    Set("GearF", "3.7");
    Set("B_Final", "3.7");
    Set("B_Speed1", "17");
    speedRuns = ratioRuns = 0;
    Set(row.box, row.typed);
    EXPECT_EQ(Shown(row.box), row.text);
    EXPECT_EQ(Shown(row.slider), row.value);
    EXPECT_EQ(speedRuns + ratioRuns, row.runs);
}

// A slider that moves rewrites its box; where that changes the text, a second run comes from inside the first event.
INSTANTIATE_TEST_SUITE_P(
    ByRule, Boxes,
    testing::Values(BoxCase{"CommaKey", "Gear1", "3,65", "3.65", "Select_Ratio1", "3650", 1},
                    BoxCase{"SliderThereAlready", "Gear1", "3.500", "3.500", "Select_Ratio1", "3500", 1},
                    BoxCase{"SliderRoundsIt", "Gear1", "3.650", "3.65", "Select_Ratio1", "3650", 2},
                    BoxCase{"FinerThanTheSlider", "Gear1", "3.5004", "3.500", "Select_Ratio1", "3500", 1},
                    BoxCase{"AboveRange", "GearF", "9", "7.5", "Select_FinalDrive1", "7500", 2},
                    BoxCase{"EmptyFinalDrive", "GearF", "", "0.5", "Select_FinalDrive1", "500", 2},
                    BoxCase{"Words", "GearF", "none", "0.5", "Select_FinalDrive1", "500", 2},
                    BoxCase{"ExponentFarBeyond", "GearF", "9e99", "7.5", "Select_FinalDrive1", "7500", 2},
                    BoxCase{"SpeedWithDecimals", "B_Speed1", "18.4", "18", "Select_Speed1", "18", 2},
                    BoxCase{"SpeedThereAlready", "B_Speed1", "17.4", "17.4", "Select_Speed1", "17", 1},
                    BoxCase{"SpeedOfNothing", "B_Speed1", "", "1", "Select_Speed1", "1", 2},
                    BoxCase{"SpeedAboveRange", "B_Speed6", "999", "200", "Select_Speed6", "200", 2},
                    BoxCase{"FinalDriveOfSpeeds", "B_Final", "9", "7.5", "Select_FinalDrive2", "7500", 2}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(GearingChains, ANumberBeyondTheLimitIsRewrittenAlsoWhereTheSliderStands) {
    for (const char* typed : {"9", "8", "77777"}) {
        Set("Gear1", typed);
        EXPECT_EQ(Shown("Gear1"), "7.5");
        EXPECT_EQ(gearing.GearRatio[0][1], 7.5F);
    }
    Set("Gear6", "0");
    Set("Gear6", "");
    EXPECT_EQ(gearing.GearRatio[0][6], 0.5F);
    EXPECT_FALSE(guards.Busy);
}

TEST_F(GearingChains, ASliderWritesItsBoxAndRunsOnce) {
    Set("Select_Ratio2", "2000");
    EXPECT_EQ(Shown("Gear2"), "2");
    EXPECT_EQ(speedRuns, 1);
    Set("Select_FinalDrive1", "3950");
    EXPECT_EQ(Shown("GearF"), "3.95");
    EXPECT_EQ(speedRuns, 2);
}

TEST_F(GearingChains, WhileBusyABoxOnlyMovesItsSlider) {
    guards.Busy = true;
    Set("Gear1", "3.9");
    Set("B_Final", "3");
    EXPECT_EQ(Shown("Select_Ratio1"), "3900");
    EXPECT_EQ(Shown("Select_FinalDrive2"), "3000");
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
    Set("Gear2", "0.6");
    EXPECT_THAT(Printed(), testing::SizeIs(2));
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
    EXPECT_EQ(gearing.GearRatio[0][5], 0.5F);
    EXPECT_EQ(gearing.GearSpeed[1][6], 200);
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

TEST_F(GearingChains, TheDirectionsHandTheirResultsAcross) {
    Set("GearF", "3.8");
    Set("Direction2", "on");
    EXPECT_TRUE(Zolv.Speeds.Frame.InFront());
    EXPECT_EQ(Shown("B_Final"), "3.8");
    EXPECT_EQ(ratioRuns, 1);
    for (int gear = 1; gear <= 5; ++gear) {
        const double speed = gearing.GearSpeed[0][static_cast<std::size_t>(gear)];
        EXPECT_EQ(Shown("B_Speed" + std::to_string(gear)), RoundedText(speed, 0)) << gear;
    }
    Set("B_Speed1", "20");
    const float found = gearing.GearRatio[1][1];
    Set("Direction1", "on");
    EXPECT_TRUE(Zolv.Ratios.Frame.InFront());
    EXPECT_EQ(Shown("Gear1"), RoundedText(found, 3));
    EXPECT_NEAR(gearing.GearSpeed[0][1], 20, 0.02);
    const int runs = speedRuns;
    Set("Direction1", "on");  // stands already
    EXPECT_EQ(speedRuns, runs);
}

TEST_F(GearingChains, ARaisedFinalDriveIsWrittenBack) {
    Set("Direction2", "on");
    Set("B_Speed1", "6");  // from a separate calculation in Python, as below
    EXPECT_EQ(Shown("B_Final"), "7.5");
    EXPECT_EQ(Shown("B_Gear1"), "12.276");
    EXPECT_EQ(Zolv.Speeds.Result[1].Colour(), kRed);
    Set("B_Speed1", "20");
    Set("B_Final", "2");
    ratioRuns = 0;
    Set("B_Speed1", "9");
    EXPECT_EQ(Shown("B_Final"), "5.951");
    EXPECT_EQ(Shown("Select_FinalDrive2"), "5951");
    EXPECT_EQ(Shown("B_Gear1"), "7.5");
    EXPECT_EQ(Shown("B_RPM1"), "13956 rpm");
    EXPECT_EQ(ratioRuns, 1);  // the write came while the box was busy
    // A pressure starts while nothing is busy: the write of the box is a change, its slider's rounding is another, and
    // both run inside the outer run.
    ratioRuns = 0;
    Set("Select_PressureF", "300");
    EXPECT_EQ(Shown("B_Final"), "5.993");
    EXPECT_EQ(Shown("B_Gear1"), "7.5");
    EXPECT_EQ(Shown("B_TorqueR"), "4675 Nm");
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
    EXPECT_NEAR(gearing.GearSpeed[0][6], 80.02098846, 1e-5);
    EXPECT_NEAR(gearing.GearSpeed[0][0], 28.52385712, 1e-5);
    EXPECT_NEAR(gearing.GearAxleLoads[6].rear, 26644.23633, 0.01);
    EXPECT_NEAR(gearing.GearRatio[1][1], 7.324604034, 1e-5);
    EXPECT_NEAR(aero.FrontWheelForce, 4056.06104, 0.01);  // of the run's last step
    EXPECT_EQ(gearing.AccelLastRow, 685);
    Set("Direction1", "on");
    for (const auto& [box, text] :
         {std::pair("Gear1", "3.5"), std::pair("Gear2", "2.4"), std::pair("Gear3", "1.7"), std::pair("Gear4", "1.35"),
          std::pair("Gear5", "1.15"), std::pair("Gear6", "1"), std::pair("GearF", "4")}) {
        Set(box, text);
    }
    EXPECT_NEAR(gearing.GearSpeed[0][6], 83.97493744, 1e-5);
}

struct ImpossibleCase {
    const char* name;
    std::vector<ChangedFigure> figures;
};
void PrintTo(const ImpossibleCase& row, std::ostream* out) { *out << row.name; }
class ImpossibleCars : public GearingChains, public testing::WithParamInterface<ImpossibleCase> {};

TEST_P(ImpossibleCars, SayNothingThatIsNoNumber) {
    UseCustomCar("Series Lo", GetParam().figures);
    ExpectOnlyNumbers();
    Set("Direction2", "on");
    Set("B_Speed1", "3");
    Set("Select_AeroSpeed", "200");
    Set("BlowTyres", "on");
    Set("UseFixedSpeed", "on");
    Set("RearTyreAnal", "on");
    Set("Direction1", "on");
    ExpectOnlyNumbers();
    Set("Select_Car", "Pell S");
    EXPECT_EQ(Shown("Aero_TopSpeed"), "53.6 m/s");
}

INSTANTIATE_TEST_SUITE_P(
    OfPresets, ImpossibleCars,
    testing::Values(
        ImpossibleCase{"NoMass", {{CarField::Mass, 0}}}, ImpossibleCase{"NoWheelbase", {{CarField::Wheelbase, 0}}},
        ImpossibleCase{"NoPower", {{CarField::Power, 0}, {CarField::Torque, 0}}},
        ImpossibleCase{"NoEfficiency", {{CarField::Efficiency, 0}}},
        ImpossibleCase{"OnePeak", {{CarField::TorqueRPM, 9063}}},
        ImpossibleCase{"IdlesAtPeakTorque", {{CarField::IdleRPM, 7424}}},
        ImpossibleCase{"NoEngineSpeed", {{CarField::PowerRPM, 0}}},
        ImpossibleCase{"NoReverseRatio", {{CarField::Reverse, 0}}},
        ImpossibleCase{"NoTyres", {{CarField::FTW, 0}, {CarField::RTW, 0}, {CarField::FWS, 0}, {CarField::RWS, 0}}},
        ImpossibleCase{"LiftedByItsBody", {{CarField::Cl, 1000}}},
        ImpossibleCase{"AllWeightInFront", {{CarField::WeightDist, 1}}},
        ImpossibleCase{"UnknownFittings",
                       {{CarField::UndertrayType, 99}, {CarField::FrontWingType, -1}, {CarField::RearWingType, 4}}},
        ImpossibleCase{"PressuresUpsideDown", {{CarField::FMinPressure, 300}, {CarField::FMaxPressure, 100}}},
        ImpossibleCase{"Everything",
                       {{CarField::Mass, -5}, {CarField::PowerRPM, -1}, {CarField::Cd, -9}, {CarField::NumGears, 99}}}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zolv
