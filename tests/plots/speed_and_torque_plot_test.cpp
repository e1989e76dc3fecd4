#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plots/gearing_plots.h"
#include "plots/hand_made_car.h"
#include "support/drawn.h"
#include "units/unit_catalogue.h"

namespace zolv {
namespace {

using testing::ElementsAre;

class SpeedPlot : public HandMadeCar {};
class TorquePlot : public HandMadeCar {};

// By hand: 4320 / 40 m/s = 108 units for 1 m/s; 2715 / (5000 * 1.3) = 0.417692 units for 1 rpm.
TEST_F(SpeedPlot, GridRunsToTheFirstLineBeyondTheFrame) {
    options.PowerLineOn = false;
    options.SpeedPlotXScale = 20;
    options.SpeedPlotYScale = 2000;
    DrawGearingPlots();
    std::vector<std::string> drawn = Drawn(Zolv.SpeedPlot.Drawing());
    drawn.resize(9);
    EXPECT_THAT(drawn, ElementsAre("line 200,2715 200,0 black 1", "line 2360,2715 2360,0 black 1",
                                   "line 4520,2715 4520,0 black 1", "line 6680,2715 6680,0 black 1",
                                   "line 200,2715 4540,2715 black 1", "line 200,1879.615 4540,1879.615 black 1",
                                   "line 200,1044.231 4540,1044.231 black 1", "line 200,208.846 4540,208.846 black 1",
                                   "line 200,-626.538 4540,-626.538 black 1"));
}

TEST_F(SpeedPlot, MarksAndRaysOfTheGearsThatTheCarHas) {
    options.TorqueLineOn = true;
    options.RedlineOn = true;
    DrawGearingPlots();
    EXPECT_THAT(DrawnBesideGrid(Zolv.SpeedPlot.Drawing()),
                ElementsAre("line 200,626.538 4540,626.538 green 1",   // 5000 rpm
                            "line 200,1461.923 4540,1461.923 blue 1",  // 3000 rpm
                            "line 200,62.654 4540,62.654 red 1",       // 6350 rpm
                            "line 200,2715 2360,626.538 black 3",      // to 20 m/s, 5000 rpm
                            "line 200,2715 4520,417.692 black 3"));    // to 40 m/s, 5500 rpm
}

TEST_F(SpeedPlot, SawToothRisesAndThenDrops) {
    options.PowerLineOn = false;
    options.AltGraphStyle = true;
    DrawGearingPlots();
    EXPECT_THAT(DrawnBesideGrid(Zolv.SpeedPlot.Drawing()),
                ElementsAre("line 200,2715 2360,626.538 black 3", "line 2360,1461.923 4520,417.692 black 3",
                            "line 2360,1461.923 2360,626.538 black 3"));
}

TEST_F(SpeedPlot, AxesAreInTheUnitShownAndOfTheDirectionInForce) {
    gearing.RatiosMode = false;
    gearing.FromSpeeds.GearSpeed[2] = 20;  // 216 units for 1 m/s
    SelectUnit(units, 0, 1);               // km/h
    options.SpeedPlotXScale = 36;          // 10 m/s
    DrawGearingPlots();
    const Canvas::Axes& axes = Zolv.SpeedPlot.Drawing().PresentAxes();
    EXPECT_DOUBLE_EQ(axes.x.origin, 200);
    EXPECT_DOUBLE_EQ(axes.x.scale, 60);  // 216 / 3.6
    EXPECT_EQ(axes.x.step, 36);
    EXPECT_EQ(axes.x.unit, "km/h");
    EXPECT_NEAR(axes.y.scale, -0.417692, 1e-6);
    EXPECT_EQ(axes.y.unit, "rpm");
    // The grid line of the step stands where the axis says: 200 + 36 * 60.
    EXPECT_DOUBLE_EQ(Zolv.SpeedPlot.Drawing().Operations()[1].x1, 2360);
}

// By hand: X = 6500 / 1 / 4 = 1625 rpm, so 4540 / 1625 = 2.793846 units for 1 rpm; 2715 / (100 * 2 * 4 * 0.5 * 1.05) =
// 6.464286 units for 1 Nm. Second gear, idle: x = 1000 * 2.793846 / 4, y = 62.5 * 6.464286 * 0.5 * 4. Its last sample:
// 6000 rpm and 70 Nm.
TEST_F(TorquePlot, CurvesOfTheGears) {
    DrawGearingPlots();
    const std::vector<std::string> drawn = DrawnBesideGrid(Zolv.TorquePlot.Drawing());
    ASSERT_EQ(drawn.size(), 64U);
    const std::string& first = drawn.front();
    const std::string& last = drawn.back();
    EXPECT_TRUE(first.starts_with("line 549.231,1098.929 ")) << first;  // gear 1: half as far, twice as high
    EXPECT_TRUE(first.ends_with(" black 2")) << first;
    EXPECT_TRUE(last.ends_with(" 4390.769,1810 black 2")) << last;
    // Samples 12 and 13 of gear 1 stand on either side of peak torque: 2875 rpm on the line, 3031.25 rpm on the cubic.
    EXPECT_EQ(drawn[12], "line 1204.038,189.888 1258.606,137.366 black 2");
}

TEST_F(TorquePlot, EngineStandsInFrontInBlueAndWiderUnlessItsFitFailed) {
    options.EngineTorqueOn = true;
    DrawGearingPlots();
    // The engine reaches further than the wheels: 4540 / 6500 = 0.698462 units for 1 rpm.
    const Canvas& plot = Zolv.TorquePlot.Drawing();
    const std::vector<std::string> drawn = DrawnBesideGrid(plot);
    ASSERT_EQ(drawn.size(), 96U);
    EXPECT_TRUE(drawn[0].starts_with("line 898.462,2310.982 ")) << drawn[0];   // 1000 rpm, 62.5 Nm
    EXPECT_TRUE(drawn[31].ends_with(" 4390.769,2262.5 blue 3")) << drawn[31];  // 6000 rpm, 70 Nm
    EXPECT_TRUE(drawn[95].ends_with(" 1247.692,1810 black 2")) << drawn[95];   // top gear, 4 times slower
    EXPECT_THAT(plot.Names(), ElementsAre(PartName{"Engine", Role::Engine}, PartName{"1st", Role::Gear1},  //
                                          PartName{"2nd", Role::Gear2}));

    gearing.Curve.CurveFitFailed = true;
    DrawGearingPlots();
    for (const std::string& line : DrawnBesideGrid(plot)) EXPECT_NE(line.find(" red "), std::string::npos) << line;
}

// By hand from 5000 * 1.3 = 6500 rpm of the engine.
TEST_F(TorquePlot, ExtentIsThatOfTheFasterShaft) {
    struct {
        bool engineOn;
        float topRatio, finalDrive;
        double rpm;  // at the right end of the frame
    } const kCases[] = {{false, 1, 4, 1625}, {false, 0.5F, 1, 13000}, {true, 1, 4, 6500}, {true, 0.5F, 1, 13000}};
    for (const auto& row : kCases) {
        options.EngineTorqueOn = row.engineOn;
        gearing.FromRatios.GearRatio[2] = row.topRatio;
        gearing.FromRatios.FinalDrive = row.finalDrive;
        DrawGearingPlots();
        EXPECT_NEAR(4540 / Zolv.TorquePlot.Drawing().PresentAxes().x.scale, row.rpm, 1e-6);
    }
}

TEST_F(TorquePlot, StepIsInTheUnitShown) {
    SelectUnit(units, 9, 1);  // kgfm: 1 / 9.80665 of a newton metre
    options.TorquePlotYScale = 10;
    DrawGearingPlots();
    const Canvas& plot = Zolv.TorquePlot.Drawing();
    EXPECT_NEAR(plot.PresentAxes().y.scale, -6.464286 * 9.80665, 1e-4);
    EXPECT_EQ(plot.PresentAxes().y.unit, "kgfm");
    // The curves stay where they are in any unit.
    EXPECT_EQ(DrawnBesideGrid(plot)[12], "line 1204.038,189.888 1258.606,137.366 black 2");
}

}  // namespace
}  // namespace zolv
