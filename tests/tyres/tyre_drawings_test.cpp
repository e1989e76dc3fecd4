#include "tyres/tyre_drawings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "fields/all_windows.h"
#include "shell/fresh_start.h"
#include "tyres/tyre_state.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

using testing::ElementsAre;

/// A tyre with figures that can be worked out by hand. Nothing is analysed. A script has the drawings themselves.
class TyreDrawings : public testing::Test {
protected:
    TyreDrawings() {
        FreshStart();
        vehicle.Tyres.FrontUnloadedRadius = 0.3;
        vehicle.CurrentCar.FWS = 15;
        tyres.FrontPatchWidth = 0.16F;
        tyres.FrontPatchLength = 0.1;
        tyres.FrontDeformation = 0.01;
    }
    ~TyreDrawings() override { FreshStart(); }
};

TEST_F(TyreDrawings, AxesCountFromTheCentreInTheUnitOfDistance) {
    SelectUnit(units, 1, 2);  // mm
    DrawTyres();
    const Canvas::Axes& axes = Zolv.CPS.Drawing().PresentAxes();
    EXPECT_THAT((std::vector{axes.x.origin, axes.x.scale, axes.x.step, axes.y.origin, axes.y.scale}),
                ElementsAre(2125, 9.5, 50, 1537.5, -9.5));
    EXPECT_THAT((std::vector{axes.x.start, axes.x.end, axes.y.start, axes.y.end}), ElementsAre(0, 4250, 3075, 0));
    EXPECT_EQ(axes.y.unit, "mm");
    EXPECT_EQ(Zolv.CPS.Drawing().Names()[0], (PartName{"\u2194 160 mm", Role::AreaWidth}));
    SelectUnit(units, 1, 0);  // m, of which it would have tenths
    DrawTyres();
    EXPECT_EQ(axes.y.unit, "mm");
    EXPECT_EQ(Zolv.CPS.Drawing().Names()[1], (PartName{"\u2195 100 mm", Role::AreaLength}));
    EXPECT_FALSE(Zolv.SV.Drawing().PresentAxes().present);
}

TEST_F(TyreDrawings, FiguresThatAreNoNumbersDrawNothing) {
    tyres.FrontPatchLength = std::numeric_limits<double>::quiet_NaN();
    vehicle.Tyres.FrontUnloadedRadius = 0;
    DrawTyres();
    EXPECT_EQ(Zolv.CPS.Drawing().Operations().size(), 22U);  // the grid alone
    EXPECT_EQ(Zolv.SV.Drawing().Operations().size(), 2U);    // the road alone
}

}  // namespace
}  // namespace zolv
