#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "aero/aero_state.h"
#include "language/texts.h"
#include "plots/gearing_plots.h"
#include "plots/hand_made_car.h"
#include "support/drawn.h"
#include "units/unit_catalogue.h"

namespace zolv {
namespace {

using testing::ElementsAre;

class RunPlots : public HandMadeCar {
protected:
    RunPlots() {
        vehicle.FrontUnloadedRadius = 0.5;
        vehicle.RearUnloadedRadius = 0.25F;
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
    EXPECT_THAT(plot.Legend(), ElementsAre(LegendEntry{"Driving Force", kGreen}, LegendEntry{"Resistance", kRed},
                                           LegendEntry{"Net Force", kBlue}, LegendEntry{"Front", kMagenta},
                                           LegendEntry{"Rear", kCyan}));
}

// By hand: row 24 is 1.2 s, so 3600 units for 1 s; its 48 m/s stand at 2715 / 1.1 of the height, 51.420455 units for
// 1 m/s. The last stride is left out.
TEST_F(RunPlots, SpeedAtEveryEighthRow) {
    Run(24);
    DrawGearingPlots();
    EXPECT_THAT(DrawnBesideGrid(Zolv.SpeedTimeGraph.Drawing()),
                ElementsAre("line 200,2715 1640,1892.273 black 2", "line 1640,1892.273 3080,1069.545 black 2"));
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

struct ForceCase {
    const char* name;
    std::int16_t drivetrain;
    float frontLoad, rearLoad;
    bool loadsOn;
    double newtons;  // at the top of the frame
};
void PrintTo(const ForceCase& row, std::ostream* out) { *out << row.name; }

class LargestForce : public RunPlots, public testing::WithParamInterface<ForceCase> {};

TEST_P(LargestForce, FillsTheHeight) {
    Run(10);
    vehicle.CurrentCar.DrivetrainType = GetParam().drivetrain;
    aero.FrontWheelForce = GetParam().frontLoad;
    aero.RearWheelForce = GetParam().rearLoad;
    options.VLoadsOn = GetParam().loadsOn;
    DrawGearingPlots();
    EXPECT_NEAR(-2715 / Zolv.TractiveEffortPlot.Drawing().PresentAxes().y.scale, GetParam().newtons, 1e-3);
}

// By hand: 400 Nm at the wheels over 0.95 times the radius, 0.5 m in front and 0.25 m behind; 1.6 times the driven
// axle's load at most; with the loads drawn 1.05 times the larger one at least.
INSTANTIATE_TEST_SUITE_P(ByHand, LargestForce,
                         testing::Values(ForceCase{"FrontDriven", 0, 1000, 1500, false, 842.105},
                                         ForceCase{"RearDriven", 1, 1000, 1500, false, 1684.211},
                                         ForceCase{"AllDrivenCountsAsFront", 2, 1000, 1500, false, 842.105},
                                         ForceCase{"FrontTyresGiveWay", 0, 400, 1500, false, 640},
                                         ForceCase{"LargerLoadBehind", 0, 1000, 1500, true, 1575},
                                         ForceCase{"ForceAboveTheLoads", 1, 1000, 1500, true, 1684.211}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(RunPlots, StayBlankWithoutARun) {
    for (const bool on : {false, true}) {
        Run(on ? -1 : 100);
        options.AccelerationOn = on;
        DrawGearingPlots();
        EXPECT_TRUE(Zolv.TractiveEffortPlot.Drawing().Operations().empty()) << on;
        EXPECT_TRUE(Zolv.SpeedTimeGraph.Drawing().Operations().empty()) << on;
    }
}

TEST_F(RunPlots, ACarThatCannotBeEndsAndStaysFinite) {
    Run(1);
    gearing.AccelRows = {};
    gearing.GearRatio = {};
    gearing.FinalDrive = {};
    gearing.GearSpeed = {};
    vehicle.CurrentCar = {};
    aero = {};
    options.EngineTorqueOn = options.VLoadsOn = options.TorqueLineOn = true;
    DrawGearingPlots();
    for (const CanvasField* field :
         {&Zolv.SpeedPlot, &Zolv.TorquePlot, &Zolv.TractiveEffortPlot, &Zolv.SpeedTimeGraph}) {
        EXPECT_TRUE(AllFinite(field->Drawing())) << field->Name();
        EXPECT_FALSE(field->Drawing().PresentAxes().present) << field->Name();
    }
}

struct PageCase {
    const char* name;
    std::size_t row;
    bool speedAndTorque, run, table;
};
void PrintTo(const PageCase& row, std::ostream* out) { *out << row.name; }

class GraphPage : public RunPlots, public testing::WithParamInterface<PageCase> {};

TEST_P(GraphPage, ShowsItsOwnAndSurvivesARedraw) {
    const PageCase& page = GetParam();
    Zolv.Select_Graphs.SetText(texts.GraphNames[page.row]);
    for (const bool redrawn : {false, true}) {
        if (redrawn) DrawGearingPlots();
        EXPECT_EQ(Zolv.SpeedPlot.Visible(), page.speedAndTorque) << redrawn;
        EXPECT_EQ(Zolv.TractiveEffortPlot.Visible(), page.run) << redrawn;
        EXPECT_EQ(Zolv.SpeedTimeGraph.Visible(), page.run) << redrawn;
        EXPECT_EQ(Zolv.AccelerationData.Visible(), page.table) << redrawn;
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, GraphPage,
                         testing::Values(PageCase{"SpeedAndTorque", 0, true, false, false},
                                         PageCase{"Run", 1, false, true, false},
                                         PageCase{"Table", 2, false, false, true}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zolv
