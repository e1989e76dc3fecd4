#include "plots/canvas.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace zolv {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(CanvasRecord, LeavesOutWhatHasNoPlace) {
    Canvas canvas(100, 100);
    for (const double none : {kNan, kInf, -kInf}) {
        canvas.Line(none, 1, 2, 3);
        canvas.Line(0, none, 2, 3);
        canvas.Line(0, 1, none, 3, kRed);
        canvas.Line(0, 1, 2, none, kRed);
        canvas.FillRectangle(0, none, 2, 3, kRed);
        canvas.FillCircle(0, 1, none, kRed);
    }
    EXPECT_TRUE(canvas.Operations().empty());
    canvas.Line(-1e300, 0, 1e300, 0);
    EXPECT_EQ(canvas.Operations().size(), 1U);
}

TEST(CanvasRecord, KeepsOnlyAxesThatCanBeReadAndOnlyUntilCleared) {
    Canvas canvas(100, 100);
    for (const double scale : {kNan, kInf, 0.0}) {
        canvas.SetAxes({.scale = 1}, {.scale = scale});
        canvas.SetAxes({.scale = scale}, {.scale = 1});
        EXPECT_FALSE(canvas.PresentAxes().present) << scale;
    }
    canvas.SetAxes({.scale = 1, .unit = AxisUnit(" ft lbf/s")}, {.scale = -1});
    canvas.AddLegend("Torque", kBlue);
    ASSERT_TRUE(canvas.PresentAxes().present);
    EXPECT_EQ(canvas.PresentAxes().x.unit, "ft lbf/s");
    canvas.Clear();
    EXPECT_FALSE(canvas.PresentAxes().present);
    EXPECT_TRUE(canvas.Legend().empty());
}

struct GridCase {
    const char* name;
    double step, scale, end;
    std::vector<double> offsets;
};

class Grid : public testing::TestWithParam<GridCase> {};

TEST_P(Grid, StandsAt) {
    std::vector<double> offsets;
    WalkGrid(GetParam().step, GetParam().scale, GetParam().end, 5, [&](double offset) { offsets.push_back(offset); });
    EXPECT_EQ(offsets, GetParam().offsets);
}

INSTANTIATE_TEST_SUITE_P(ByHand, Grid,
                         testing::Values(GridCase{"LastLineBeyondTheEnd", 2, 20, 100, {0, 40, 80, 120}},
                                         GridCase{"LineOnTheEndIsTheLast", 1, 50, 100, {0, 50, 100}},
                                         GridCase{"TooFineToGetThere", 1, 1, 100, {0, 1, 2, 3, 4}},
                                         GridCase{"NoStep", 0, 50, 100, {0, 0, 0, 0, 0}},
                                         GridCase{"WrongWay", 1, -50, 100, {0, -50, -100, -150, -200}}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zolv
