#include "model/shift_points.h"

#include <gtest/gtest.h>

namespace zolv {
namespace {

// Worked by hand: 6000 * (3.5 / 2.4)^0.44 = 7083.5, and 2^0.44 = 1.35660; the limiter stands at 1.27 * 6000.
TEST(ShiftPoints, FollowTheStepToTheNextGear) {
    struct {
        float lower, upper;
        bool limited;
        double rpm;
    } const kCases[] = {{3.5F, 2.4F, false, 7083.5},
                        {2.4F, 2.4F, true, 6000},
                        {4, 2, false, 8139.6},
                        {4, 2, true, 7620},
                        {3.4F, 2, true, 7577.9}};
    for (const auto& row : kCases) {
        const ShiftRules rules{.PowerRPM = 6000, .NumGears = 6, .RevLimitOn = row.limited};
        EXPECT_NEAR(ShiftPoints(rules, {0, row.lower, row.upper, 0.9F, 0.8F, 0.7F, 0.6F})[1], row.rpm, 0.05);
    }
}

constexpr ByGear kRatios{0, 3.5F, 2.4F, 1.7F, 1.35F, 1.15F, 1};

TEST(ShiftPoints, TopGearAndAllBeyondRunToTheTop) {
    for (const int gears : {2, 4, 6}) {
        ShiftRules rules{.PowerRPM = 6000, .NumGears = gears};
        const ByGear revs = ShiftPoints(rules, kRatios);
        rules.RevsMaxMode = true;
        const ByGear atPeak = ShiftPoints(rules, kRatios);
        for (std::size_t gear = 2; gear <= 6; ++gear) {
            const bool top = static_cast<int>(gear) >= gears;
            EXPECT_EQ(revs[gear] == 6900, top) << gears << ' ' << gear;
            EXPECT_EQ(atPeak[gear] == 6000, top) << gears << ' ' << gear;
            EXPECT_EQ(revs[gear] == atPeak[gear], !top);
        }
    }
    const ShiftRules one{.PowerRPM = 6000, .NumGears = 1};
    EXPECT_NEAR(ShiftPoints(one, kRatios)[1], 7083.5, 0.05);  // gear 1 is never touched
}

TEST(ShiftPoints, FixedOnesKnowNoLimit) {
    const ShiftRules rules{.PowerRPM = 6000, .NumGears = 5, .AutoRevs = false, .CustomRevs = 9000, .RevLimitOn = true};
    const ByGear expected{0, 9000, 9000, 9000, 9000, 6900, 6900};
    EXPECT_EQ(ShiftPoints(rules, kRatios), expected);
}

}  // namespace
}  // namespace zolv
