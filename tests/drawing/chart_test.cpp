#include "drawing/chart.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "drawing/plot_axes.h"
#include "support/drawn.h"

namespace zolv {
namespace {

using testing::ElementsAre;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

Chart DragOverSpeed() {
    Chart chart;
    chart.x = {.title = "Speed", .unit = "km/h", .from = 0, .to = 100, .step = 50};
    chart.y = {.title = "Force", .unit = "N", .from = -100, .to = 300, .step = 200};
    chart.series = {{.name = "Drag", .role = Role::Drag, .points = {{0, 0}, {50, 50}, {100, 500}}}};
    return chart;
}

// By hand, on a canvas of 10 units for 1 km/h and 2 for 1 N: the value zero of y stands at 800 - 200. The series leaves
// the range at 300 N, 250 / 450 of the way from 50 to 100 km/h.
TEST(Chart, DrawsGridAndSeriesInsideItsRange) {
    Canvas canvas(1000, 800);
    canvas.Print("an old drawing");
    Chart chart = DragOverSpeed();
    chart.marks = {{.name = "50 km/h", .role = Role::PresentValue, .value = 50},
                   {.name = "beyond", .role = Role::TopSpeed, .value = 101},
                   {.name = "100 N", .role = Role::Limiter, .value = 100, .onY = true, .held = true}};
    DrawChart(chart, canvas);
    EXPECT_THAT(Drawn(canvas.Operations()),
                ElementsAre("line 0,0 0,800 black 1", "line 500,0 500,800 black 1", "line 1000,0 1000,800 black 1",
                            "line 0,600 1000,600 black 1", "line 0,200 1000,200 black 1",
                            "line 500,0 500,800 another colour 1", "line 0,400 1000,400 another colour 1",
                            "line 0,600 500,500 another colour 2", "line 500,500 777.778,0 another colour 2"));
    EXPECT_THAT(canvas.Names(),
                ElementsAre(PartName{"50 km/h", Role::PresentValue}, PartName{"100 N", {Role::Limiter, Standing::Held}},
                            PartName{"Drag", Role::Drag}));
    const Canvas::Axes& axes = canvas.PresentAxes();
    EXPECT_EQ(TitleWithUnit(axes.x), "Speed [km/h]");
    EXPECT_EQ(ReadingAt(axes.y, 500, 1), "50 N");
    EXPECT_EQ(UsedPart(canvas), (CanvasPart{0, 0, 1000, 800}));
}

TEST(Chart, AnOpenRangeReachesToTheGridLinesAroundItsValues) {
    struct {
        const char* name;
        std::vector<ChartPoint> points;
        double from, to, step;  // of y
    } const kCases[] = {
        {"one sign has its zero", {{0, 12}, {1, 47}}, 0, 50, 5},
        {"both signs", {{0, -12}, {1, 47}}, -20, 50, 10},
        {"all below zero", {{0, -8}, {1, -3}}, -8, 0, 1},
        {"a single value", {{0, 0}, {1, 0}}, -1, 1, 0.2},
        {"what is not finite does not count", {{0, 12}, {0.5, kNan}, {kNan, 900}, {1, 47}}, 0, 50, 5},
    };
    for (const auto& row : kCases) {
        Canvas canvas(1000, 1000);
        Chart chart;
        chart.x = {.from = 0, .to = 1};
        chart.series = {{.name = "curve", .points = row.points}};
        DrawChart(chart, canvas);
        const PlotAxis& y = canvas.PresentAxes().y;
        EXPECT_NEAR((1000 - y.origin) / y.scale, row.from, 1e-9) << row.name;
        EXPECT_NEAR((0 - y.origin) / y.scale, row.to, 1e-9) << row.name;
        EXPECT_NEAR(y.step, row.step, 1e-12) << row.name;
    }
}

TEST(Chart, StaysBlankWithoutAnythingToShow) {
    Canvas canvas(1000, 800);
    Chart chart;
    chart.series = {{.name = "curve", .points = {{kNan, 1}, {1, kNan}}}};
    DrawChart(chart, canvas);
    EXPECT_TRUE(canvas.Operations().empty());
    EXPECT_FALSE(canvas.PresentAxes().present);
}

}  // namespace
}  // namespace zolv
