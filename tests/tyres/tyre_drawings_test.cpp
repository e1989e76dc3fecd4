#include "tyres/tyre_drawings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "fields/windows.h"
#include "shell/fresh_start.h"
#include "support/drawn.h"
#include "tyres/tyre_state.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

using testing::ElementsAre;

/// Tyres of 0.16 m and 0.2 m width with figures that can be worked out by hand. Nothing is analysed.
class TyreDrawings : public testing::Test {
protected:
    TyreDrawings() {
        FreshStart();
        vehicle.FrontUnloadedRadius = 0.3;
        vehicle.RearUnloadedRadius = 0.32F;
        vehicle.CurrentCar.FWS = 15;
        vehicle.CurrentCar.RWS = 16;
        tyres.FrontPatchWidth = 0.16F;
        tyres.FrontPatchLength = 0.1;
        tyres.FrontDeformation = 0.01;
        tyres.RearPatchWidth = 0.2F;
        tyres.RearPatchLength = 0.12F;
        tyres.RearDeformation = 0.02F;
    }
    ~TyreDrawings() override { FreshStart(); }

    static std::size_t GridLines() { return Zolv.CPS.Drawing().Operations().size() - 1; }
};

// By hand: at a zoom of 40, 1900 / 0.4 = 4750 units for a metre of half the patch.
TEST_F(TyreDrawings, FootprintOfTheFrontTyre) {
    DrawTyres();
    const std::vector<std::string> drawn = Drawn(Zolv.CPS.Drawing());
    // 475 units from line to line: 6 lines each way across, of which the last is beyond the frame, and 5 up and down.
    ASSERT_EQ(drawn.size(), 2U * 6 + 2U * 5 + 1);
    EXPECT_EQ(drawn[2], "line 2600,3075 2600,0 black 1");
    EXPECT_EQ(drawn[3], "line 1650,3075 1650,0 black 1");
    EXPECT_EQ(drawn[11], "line -250,3075 -250,0 black 1");
    EXPECT_EQ(drawn[21], "line 0,-362.5 4250,-362.5 black 1");
    EXPECT_EQ(drawn[22], "rect 1365,1062.5 2885,2012.5 black");
}

TEST_F(TyreDrawings, FootprintOfTheRearTyreZoomed) {
    Zolv.RearTyreAnal.OnClick = [] {};
    Zolv.RearTyreAnal.Choose();
    Zolv.ZoomCPS.SetValue(100);
    DrawTyres();
    EXPECT_EQ(Drawn(Zolv.CPS.Drawing()).back(), "rect 1745,1309.5 2505,1765.5 black");
    EXPECT_EQ(GridLines(), 2U * 13 + 2U * 10);  // 190 units from line to line
    Zolv.ZoomCPS.SetValue(10);
    DrawTyres();
    EXPECT_EQ(Drawn(Zolv.CPS.Drawing()).back(), "rect -1675,-742.5 5925,3817.5 black");
    EXPECT_EQ(GridLines(), 2U * 3 + 2U * 2);
}

TEST_F(TyreDrawings, AxesCountFromTheCentreInTheUnitOfDistance) {
    SelectUnit(units, 1, 2);  // mm
    DrawTyres();
    const Canvas::Axes& axes = Zolv.CPS.Drawing().PresentAxes();
    EXPECT_DOUBLE_EQ(axes.x.origin, 2125);
    EXPECT_DOUBLE_EQ(axes.x.scale, 9.5);
    EXPECT_DOUBLE_EQ(axes.x.step, 50);
    EXPECT_DOUBLE_EQ(axes.y.origin, 1537.5);
    EXPECT_DOUBLE_EQ(axes.y.scale, -9.5);
    EXPECT_EQ(axes.y.unit, "mm");
    EXPECT_FALSE(Zolv.SV.Drawing().PresentAxes().present);
}

// By hand: a radius of 1300 units for 0.3 m; Int(0.01 * 4333.3) = 43; rim 7.5 in / 0.393900787 / 100 = 0.1904033 m.
TEST_F(TyreDrawings, SideViewOfTheFrontTyre) {
    DrawTyres();
    EXPECT_THAT(Drawn(Zolv.SV.Drawing()), ElementsAre("circle 1530,1543 1300 black", "circle 1530,1543 825.081 white",
                                                      "rect 0,2800 3135,3135 white", "line 0,2800 3135,2800 red 3"));
    EXPECT_NEAR(tyres.FrontRimRatio, 0.6346776, 1e-7);
    EXPECT_NEAR(tyres.RearRimRatio, 0.6346776, 1e-7);  // 8 in to 0.32 m are as 7.5 in to 0.3 m
}

struct CentreCase {
    const char* name;
    double deformation;  // [m]
    int zoom;
    double y;
};
void PrintTo(const CentreCase& row, std::ostream* out) { *out << row.name; }

class WheelCentre : public TyreDrawings, public testing::WithParamInterface<CentreCase> {};

TEST_P(WheelCentre, StandsLowerByWholeUnits) {
    tyres.FrontDeformation = GetParam().deformation;
    Zolv.ZoomSideOn.SetValue(GetParam().zoom);
    DrawTyres();
    EXPECT_EQ(Zolv.SV.Drawing().Operations()[0].y1, GetParam().y);
}

// By hand: 2800 + Int(deformation * 10 zoom / 0.3) - 10 zoom.
INSTANTIATE_TEST_SUITE_P(ByHand, WheelCentre,
                         testing::Values(CentreCase{"NoLoad", 0, 130, 1500}, CentreCase{"Loaded", 0.0299, 100, 1899},
                                         CentreCase{"LargestZoom", 0.01, 750, -4450},
                                         CentreCase{"PulledOffTheRoad", -0.01, 130, 1456}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(TyreDrawings, FiguresThatAreNoNumbersDrawNothing) {
    tyres.FrontPatchLength = std::numeric_limits<double>::quiet_NaN();
    vehicle.FrontUnloadedRadius = 0;
    DrawTyres();
    EXPECT_EQ(Zolv.CPS.Drawing().Operations().size(), 22U);  // the grid alone
    EXPECT_THAT(Drawn(Zolv.SV.Drawing()), ElementsAre("rect 0,2800 3135,3135 white", "line 0,2800 3135,2800 red 3"));
}

}  // namespace
}  // namespace zolv
