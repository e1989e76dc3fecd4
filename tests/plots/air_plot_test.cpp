#include "plots/air_plot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "aero/aero_page.h"
#include "aero/aero_state.h"
#include "drawing/curve_reading.h"
#include "shell/fresh_start.h"
#include "support/drawn.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

using testing::ElementsAre;

// A car of 1 m^2 of drag area and 2 m^2 of downforce area. By hand, with 1.2041184 kg/m^3: 0.5 * 1.2041184 * 40^2 =
// 963.295 N of drag at 40 m/s, and twice that of downforce. Pounds: 963.295 / 4.44822 = 216.557.
class AirPlot : public testing::Test {
protected:
    AirPlot() {
        FreshStart();
        vehicle.CurrentCar.Cd = 0.5F;
        vehicle.CurrentCar.FrontalArea = 2;
        aero.Parts.Undertray.ClA = -2;
        aero.TopSpeed = 50;
        aero.AeroSpeedValue = 40;
    }
    ~AirPlot() override { FreshStart(); }

    /// What the curves say at a value of the x axis, to a thousandth of a canvas unit.
    std::vector<std::string> At(double value) {
        DrawAirPlot(plot_);
        const PlotAxis& x = plot_.PresentAxes().x;
        std::vector<std::string> said;
        for (const CurveReading& curve : ReadingsAt(plot_, x.origin + x.scale * value, 1000)) {
            said.push_back(curve.name + ' ' + curve.value);
        }
        return said;
    }

    const PartName& Mark() const { return plot_.Names().front(); }

    Canvas plot_{1000, 500};
};

TEST_F(AirPlot, ReadsTheForcesUpToTheTopSpeed) {
    EXPECT_THAT(At(40), ElementsAre("Downforce 1926.589 N", "Drag 963.295 N"));
    EXPECT_THAT(At(50), ElementsAre("Downforce 3010.296 N", "Drag 1505.148 N"));
    EXPECT_THAT(At(50.1), ElementsAre());
    EXPECT_EQ(Mark(), (PartName{"40 m/s", Role::PresentValue}));
}

TEST_F(AirPlot, GoesOnToASpeedBeyondTheTopSpeed) {
    aero.AeroSpeedValue = 80;
    EXPECT_THAT(At(80), ElementsAre("Downforce 7706.36 N", "Drag 3853.18 N"));
    aero.FixedSpeedMode = true;
    EXPECT_THAT(At(50.1), ElementsAre());
    EXPECT_EQ(Mark(), (PartName{"50 m/s", Role::PresentValue}));
}

TEST_F(AirPlot, IsInTheUnitsOfTheUser) {
    units.Speed.Suffix = " km/h";
    units.Speed.Factor = 3.6;
    units.Force.Suffix = " lbf";
    units.Force.Factor = 1 / 4.44822;
    EXPECT_THAT(At(144), ElementsAre("Downforce 433.115 lbf", "Drag 216.557 lbf"));
    EXPECT_EQ(TitleWithUnit(plot_.PresentAxes().x), "Speed [km/h]");
    EXPECT_EQ(Mark().name, "144 km/h");
}

/// The bar reaches a tenth of the lift to either side of the weight, and half a hundredth counts as neutral.
TEST_F(AirPlot, BalanceIsABarOfAFifthAroundTheWeight) {
    vehicle.CurrentCar.WeightDist = 0.5F;
    aero.Balance = AirBalance::Oversteer;
    for (const auto& [share, place] : {std::pair(0.55, 0.75), {0.5, 0.5}, {0.42, 0.1}, {0.3, 0.0}, {0.9, 1.0}}) {
        aero.AeroDistribution = share;
        EXPECT_NEAR(PresentBalanceMarks().Here.value_or(-1), place, 1e-9);
    }
    EXPECT_NEAR(PresentBalanceMarks().BandFrom, 0.475, 1e-9);
    EXPECT_NEAR(PresentBalanceMarks().BandTo, 0.525, 1e-9);
    aero.Balance = AirBalance::None;
    EXPECT_FALSE(PresentBalanceMarks().Here);
}

}  // namespace
}  // namespace zolv
