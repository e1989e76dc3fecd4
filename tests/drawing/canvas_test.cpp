#include "drawing/canvas.h"

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
        canvas.Line(Role::Shape, none, 1, 2, 3);
        canvas.Line(Role::Shape, 0, none, 2, 3);
        canvas.Line(Role::Shape, 0, 1, none, 3, kRed);
        canvas.Line(Role::Shape, 0, 1, 2, none, kRed);
        canvas.FillRectangle(Role::Shape, 0, none, 2, 3, kRed);
        canvas.FillCircle(Role::Shape, 0, 1, none, kRed);
    }
    EXPECT_TRUE(canvas.Operations().empty());
    canvas.Line(Role::Shape, -1e300, 0, 1e300, 0);
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
    canvas.AddName(Role::Torque, "Torque");
    ASSERT_TRUE(canvas.PresentAxes().present);
    EXPECT_EQ(canvas.PresentAxes().x.unit, "ft lbf/s");
    canvas.Clear();
    EXPECT_FALSE(canvas.PresentAxes().present);
    EXPECT_TRUE(canvas.Names().empty());
}

TEST(CanvasGrid, EndsBehindTheFrameOrAfterSoManyLines) {
    struct {
        double step, scale;
        std::vector<double> offsets;  // of 5 lines at most, to 100
    } const kCases[] = {{2, 20, {0, 40, 80, 120}},
                        {1, 50, {0, 50, 100}},
                        {1, 1, {0, 1, 2, 3, 4}},
                        {0, 50, {0, 0, 0, 0, 0}},
                        {1, -50, {0, -50, -100, -150, -200}}};
    for (const auto& row : kCases) {
        std::vector<double> offsets;
        WalkGrid(row.step, row.scale, 100, 5, [&](double offset) { offsets.push_back(offset); });
        EXPECT_EQ(offsets, row.offsets);
    }
}

}  // namespace
}  // namespace zolv
