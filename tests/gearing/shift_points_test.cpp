#include "gearing/shift_points.h"

#include <gtest/gtest.h>

#include <string>

namespace zolv {
namespace {

struct ShiftCase {
    const char* name;
    double lower, upper;
    bool limited;
    double rpm;
};
class ShiftPoint : public testing::TestWithParam<ShiftCase> {};

TEST_P(ShiftPoint, FollowsTheStepToTheNextGear) {
    const ShiftCase& row = GetParam();
    const ShiftRules rules{.PowerRPM = 6000, .NumGears = 6, .RevLimitOn = row.limited};
    const ByGear ratios{0, static_cast<float>(row.lower), static_cast<float>(row.upper), 0.9F, 0.8F, 0.7F, 0.6F};
    EXPECT_NEAR(ShiftPoints(rules, ratios)[1], row.rpm, 0.05);
}

// Worked by hand: 6000 * (3.5 / 2.4)^0.44 = 7083.5, and 2^0.44 = 1.35660; the limiter stands at 1.27 * 6000.
INSTANTIATE_TEST_SUITE_P(ByHand, ShiftPoint,
                         testing::Values(ShiftCase{"WideStep", 3.5, 2.4, false, 7083.5},
                                         ShiftCase{"EqualRatios", 2.4, 2.4, true, 6000},
                                         ShiftCase{"DoubleRatio", 4, 2, false, 8139.6},
                                         ShiftCase{"LimiterCutsIt", 4, 2, true, 7620},
                                         ShiftCase{"BelowTheLimiter", 3.4, 2, true, 7577.9}),
                         [](const auto& row) { return std::string(row.param.name); });

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
