#include "plots/force_plot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "desk/held.h"
#include "gearing/gearing_state.h"
#include "model/wheel_forces.h"
#include "support/zolv_test.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

class ForcePlot : public StartedTest {
protected:
    static Canvas Drawn() {
        Canvas plot(1000, 500);
        DrawForcePlot(plot);
        return plot;
    }

    static const DrawingOperation* CircleAt(const Canvas& plot, Role role, double speed, double force) {
        const auto& [x, y] = std::pair(plot.PresentAxes().x, plot.PresentAxes().y);
        for (const DrawingOperation& operation : plot.Operations()) {
            if (operation.kind != DrawingOperation::Kind::Circle || operation.meaning.role != role) continue;
            const bool there = std::abs(operation.x1 - x.origin - x.scale * speed) < 0.01 &&
                               std::abs(operation.y1 - y.origin - y.scale * force) < 0.01;
            if (there) return &operation;
        }
        return nullptr;
    }

    static bool HasName(const Canvas& plot, const std::string& name) {
        return std::ranges::any_of(plot.Names(), [&](const PartName& part) { return part.name == name; });
    }
};

TEST_F(ForcePlot, MarksShiftsCrossingsAndTheSpeedReachedInTheUnitsOfTheUser) {
    OptionsPanel.Units[0].Select.Pick(1);  // km/h
    OptionsPanel.Units[5].Select.Pick(1);  // kN
    const Canvas plot = Drawn();
    const ForcesOverSpeed forces = ForcesOver(PresentAccelerationSetup());
    int crossings = 0;
    double strongest = 0;
    for (const GearForces& gear : forces.Gears) {
        for (const WheelPoint& point : gear.Points) strongest = std::max(strongest, point.Force / 1000);
        if (gear.Shift) {
            EXPECT_TRUE(CircleAt(plot, GearRole(gear.Gear), gear.Shift->Speed * 3.6, gear.Shift->Put / 1000));
        }
        if (!gear.Crossing) continue;
        ++crossings;
        EXPECT_TRUE(CircleAt(plot, GearRole(gear.Gear + 1), gear.Crossing->Speed * 3.6, gear.Crossing->Put / 1000));
    }
    EXPECT_GT(crossings, 0);
    const auto grip = std::ranges::find(plot.Operations(), Meaning(Role::GripLimit), &DrawingOperation::meaning);
    ASSERT_NE(grip, plot.Operations().end());
    EXPECT_NEAR((grip->y1 - plot.PresentAxes().y.origin) / plot.PresentAxes().y.scale,
                RoadForcesAt(PresentAccelerationSetup(), 0).GripLimit / 1000, 1e-3);
    const PlotAxis& y = plot.PresentAxes().y;
    EXPECT_NEAR((y.end - y.origin) / y.scale, strongest * 1.05, 1e-9);
    EXPECT_TRUE(HasName(plot, "Reaches " + units.Speed.Text(forces.Reached->Speed)));
}

// The same set-up held and present: every curve lies on its own twin, and the scales stay.
TEST_F(ForcePlot, DrawsTheHeldSetUpBehindThePresentOne) {
    const Canvas alone = Drawn();
    HoldPresent();
    const Canvas both = Drawn();
    using Ends = std::vector<std::array<double, 4>>;
    const auto linesOf = [](const Canvas& plot, Standing standing) {
        std::map<Role, Ends> lines;
        for (const DrawingOperation& line : plot.Operations()) {
            const bool curve = line.kind == DrawingOperation::Kind::Line && line.meaning.role != Role::Grid;
            if (curve && line.meaning.standing == standing) {
                lines[line.meaning.role].push_back({line.x1, line.y1, line.x2, line.y2});
            }
        }
        return lines;
    };
    const std::map<Role, Ends> held = linesOf(both, Standing::Held);
    EXPECT_GE(held.size(), 7U);  // five gears, resistance, grip
    for (const auto& [role, ends] : linesOf(alone, Standing::Present)) {
        if (held.contains(role)) {
            EXPECT_EQ(held.at(role), ends) << static_cast<int>(role);
        }
    }
    EXPECT_TRUE(HasName(both, "3rd, held"));
}

}  // namespace
}  // namespace zolv
