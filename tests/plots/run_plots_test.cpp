#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "aero/aero_state.h"
#include "desk/held.h"
#include "drawing/curve_reading.h"
#include "drawing/plot_axes.h"
#include "plots/gearing_plots.h"
#include "plots/hand_made_car.h"
#include "plots/run_strip.h"
#include "support/drawn.h"
#include "text/texts.h"
#include "units/unit_catalogue.h"

namespace zolv {
namespace {

using testing::ElementsAre;

class RunPlots : public HandMadeCar {
protected:
    RunPlots() {
        vehicle.Tyres.FrontUnloadedRadius = 0.5;
        vehicle.Tyres.RearUnloadedRadius = 0.25F;
        aero.FrontWheelForce = 1000;
        aero.RearWheelForce = 1500;
    }
};

// By hand: row 9 is 0.45 s, so 4320 / 0.45 = 9600 units for 1 s, 480 from row to row. First gear pushes with
// 100 * 0.5 * 2 * 4 / (0.5 * 0.95) = 842.105 N, so 2715 / 842.105 = 3.224063 units for 1 N. The last stride is left
// out.
TEST_F(RunPlots, ForcesAtEveryThirdRow) {
    Run(9);
    DrawGearingPlots();
    EXPECT_THAT(DrawnBesideGrid(Zolv.TractiveEffortPlot.Drawing()),
                ElementsAre("line 200,2715 1640,1747.781 green 2",  // row 3: 300, 30 and 270 N
                            "line 200,2715 1640,2618.278 red 2", "line 200,2715 1640,1844.503 blue 2",
                            "line 1640,1747.781 3080,780.563 green 2", "line 1640,2618.278 3080,2521.556 red 2",
                            "line 1640,1844.503 3080,974.006 blue 2"));
    const Canvas& plot = Zolv.TractiveEffortPlot.Drawing();
    EXPECT_EQ(UsedPart(plot), (CanvasPart{200, 0, 4540, 2715}));
}

TEST_F(RunPlots, LoadsComeLastWithTheirNames) {
    Run(4);
    options.VLoadsOn = true;  // 1500 N * 1.05 is the top: 2715 / 1575 = 1.72381 units for 1 N, 1080 from row to row
    DrawGearingPlots();
    const Canvas& plot = Zolv.TractiveEffortPlot.Drawing();
    EXPECT_THAT(DrawnBesideGrid(plot),
                ElementsAre("line 200,2715 3440,2197.857 green 2", "line 200,2715 3440,2663.286 red 2",
                            "line 200,2715 3440,2249.571 blue 2", "line 200,991.19 3440,991.19 magenta 2",
                            "line 200,129.286 3440,129.286 cyan 2"));
    EXPECT_THAT(plot.Names(),
                ElementsAre(PartName{"Driving Force", Role::DrivingForce}, PartName{"Resistance", Role::Resistance},
                            PartName{"Net Force", Role::NetForce}, PartName{"Front load", Role::FrontLoad},
                            PartName{"Rear load", Role::RearLoad}));
}

// By hand: row 24 is 1.2 s, so 3600 units for 1 s; its 48 m/s stand at 2715 / 1.1 of the height, 51.420455 units for
// 1 m/s. The last stride is left out.
TEST_F(RunPlots, SpeedAtEveryEighthRow) {
    Run(24);
    DrawGearingPlots();
    EXPECT_THAT(DrawnBesideGrid(Zolv.SpeedTimeGraph.Drawing()),
                ElementsAre("line 200,2715 1640,1892.273 black 2", "line 1640,1892.273 3080,1069.545 black 2"));
}

// Present: v / 2 rows to the speed v, held: v rows, each of 0.05 s, so that v / 40 s are gained. From 40 m/s on the
// present run crawls: what it loses there is beyond the scale, whose lowest is 1.15 times the 0.8 s at 32 m/s, row 16.
TEST_F(RunPlots, TimeGainedOrLostStandsOverTheSpeedInPlaceOfTheRun) {
    Run(60);
    const auto giveSpeed = [](AccelRow& row, float speed) {
        row.values[static_cast<std::size_t>(AccelColumn::Speed)] = speed;
    };
    for (std::size_t i = 21; i <= 60; ++i) giveSpeed(gearing.AccelRows[i], 40 + 0.01F * static_cast<float>(i - 20));
    const auto held = std::make_shared<HeldSetUp>();
    held->Sheet.Run.LastRow = 50;
    for (std::size_t i = 0; i <= 50; ++i) giveSpeed(held->Rows[i], static_cast<float>(i));
    held->Times = RunTimes(held->Run());
    desk.Held = held;
    Zolv.TimeDifference.SetChecked(true);
    DrawGearingPlots();
    const Canvas& plot = Zolv.SpeedTimeGraph.Drawing();
    const auto& [x, y] = std::pair(plot.PresentAxes().x, plot.PresentAxes().y);
    for (const auto& [speed, lost] : {std::pair(8, "-0.2 s"), {20, "-0.5 s"}, {32, "-0.8 s"}}) {
        const auto readings = ReadingsAt(plot, x.origin + x.scale * speed, 1000);
        ASSERT_THAT(readings, testing::SizeIs(1));
        EXPECT_EQ(readings.front().value, lost);
    }
    EXPECT_NEAR((y.end - y.origin) / y.scale, 0, 1e-9);
    EXPECT_NEAR((y.start - y.origin) / y.scale, -0.92, 1e-6);
    EXPECT_EQ(TimeLostAtRow(16), "-0.8");
    EXPECT_EQ(TimeLostAtRow(60), "+0.98");  // 3 s, against the 2.02 s of the held run
}

TEST_F(RunPlots, AxesAreInSecondsAndInTheUnitShown) {
    Run(20);
    SelectUnit(units, 5, 1);  // kN
    DrawGearingPlots();
    const Canvas::Axes& force = Zolv.TractiveEffortPlot.Drawing().PresentAxes();
    EXPECT_DOUBLE_EQ(force.x.scale, 4320);
    EXPECT_EQ(force.x.unit, "s");
    EXPECT_NEAR(force.y.scale, -3224.0625, 1e-6);
    EXPECT_EQ(force.y.unit, "kN");
}

// By hand: 400 Nm at the wheels over 0.95 times the radius, 0.5 m in front and 0.25 m behind; 1.6 times the driven
// axle's load at most; with the loads drawn 1.05 times the larger one at least.
TEST_F(RunPlots, TheLargestForceFillsTheHeight) {
    struct {
        std::int16_t drivetrain;
        float frontLoad, rearLoad;
        bool loadsOn;
        double newtons;  // at the top of the frame
    } const kCases[] = {{0, 1000, 1500, false, 842.105}, {1, 1000, 1500, false, 1684.211},
                        {2, 1000, 1500, false, 842.105}, {0, 400, 1500, false, 640},
                        {0, 1000, 1500, true, 1575},     {1, 1000, 1500, true, 1684.211}};
    Run(10);
    for (const auto& row : kCases) {
        vehicle.CurrentCar.DrivetrainType = row.drivetrain;
        aero.FrontWheelForce = row.frontLoad;
        aero.RearWheelForce = row.rearLoad;
        options.VLoadsOn = row.loadsOn;
        DrawGearingPlots();
        EXPECT_NEAR(-2715 / Zolv.TractiveEffortPlot.Drawing().PresentAxes().y.scale, row.newtons, 1e-3);
    }
}

// Row 4, at 0.2 s and 8 m/s, is the first one in second gear, whose piece begins where that of the first one ends.
TEST_F(RunPlots, StripShowsEachGearsPieceOfTheRun) {
    Run(8);
    for (std::size_t row = 4; row <= 8; ++row) gearing.AccelRows[row].values[3] = 2;
    Canvas strip(1000, 500);
    DrawRunStrip(strip);
    const auto at = [&](double seconds) {
        const PlotAxis& x = strip.PresentAxes().x;
        std::vector<std::string> said;
        for (const CurveReading& curve : ReadingsAt(strip, x.origin + x.scale * seconds, 1)) {
            said.push_back(curve.name + ' ' + curve.value);
        }
        return said;
    };
    EXPECT_THAT(at(0.1), ElementsAre("1st 4 m/s"));
    EXPECT_THAT(at(0.175), ElementsAre("2nd 7 m/s"));
    EXPECT_THAT(at(0.39), ElementsAre("2nd 15.6 m/s"));
    Run(-1);
    DrawRunStrip(strip);
    EXPECT_TRUE(strip.Operations().empty());
}

TEST_F(RunPlots, StayBlankWithoutARun) {
    for (const bool on : {false, true}) {
        Run(on ? -1 : 100);
        options.AccelerationOn = on;
        DrawGearingPlots();
        EXPECT_TRUE(Zolv.TractiveEffortPlot.Drawing().Operations().empty()) << on;
        EXPECT_TRUE(Zolv.SpeedTimeGraph.Drawing().Operations().empty()) << on;
    }
}

TEST_F(RunPlots, EachPageOfGraphsShowsItsOwnAndSurvivesARedraw) {
    for (const std::size_t page : {0U, 1U, 2U}) {
        Zolv.Select_Graphs.SetText(texts.GraphNames[page]);
        for (const bool redrawn : {false, true}) {
            if (redrawn) DrawGearingPlots();
            EXPECT_EQ(Zolv.SpeedPlot.Visible(), page == 0) << redrawn;
            EXPECT_EQ(Zolv.TractiveEffortPlot.Visible(), page == 1) << redrawn;
            EXPECT_EQ(Zolv.SpeedTimeGraph.Visible(), page == 1) << redrawn;
            EXPECT_EQ(Zolv.AccelerationData.Visible(), page == 2) << redrawn;
        }
    }
}

}  // namespace
}  // namespace zolv
