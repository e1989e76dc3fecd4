#include "model/ratio_search.h"

#include <gtest/gtest.h>

namespace zolv {
namespace {

constexpr ShiftRules kRules{.PowerRPM = 6000, .NumGears = 5};
constexpr ByGear kFactors{0, 0.03F, 0.03F, 0.03F, 0.03F, 0.03F, 0.03F};

void ExpectGears(const ByGear& found, const std::array<double, 5>& expected) {
    for (std::size_t gear = 1; gear <= 5; ++gear) {
        EXPECT_NEAR(found[gear], expected[gear - 1], expected[gear - 1] * 1e-6) << gear;
    }
}

// From a separate calculation in Python: the balance in which each ratio fits its own shift point, solved gear by gear
// from the top without any passes.
TEST(RatioSearch, FindsTheBalanceOfRatiosAndShiftPoints) {
    const ByGear speeds{0, 15, 22, 30, 38, 46, 200};
    const FoundRatios found = SearchRatios(kRules, speeds, kFactors, 4);
    ExpectGears(found.Ratios, {3.6809657841, 2.3123389495, 1.7498558091, 1.2329112026, 1.125});
    ExpectGears(found.Revs, {7361.9315682, 6782.8609184, 6999.4232364, 6246.7500930, 6900});
    EXPECT_FALSE(found.Raised);
    EXPECT_EQ(found.FinalDrive, 4);

    ShiftRules peak = kRules;
    peak.RevsMaxMode = true;
    ExpectGears(SearchRatios(peak, speeds, kFactors, 4).Ratios,
                {3.4900270013, 2.4745343476, 1.6052054947, 1.3760143372, 0.9782608696});
}

// By hand: a ratio is revs * 0.03 / (4 * speed).
TEST(RatioSearch, KeepsShiftPointsBetweenPeakPowerAndTheLimit) {
    ShiftRules limited = kRules;
    limited.RevLimitOn = true;
    const FoundRatios wide = SearchRatios(limited, {0, 10, 22, 30, 38, 46, 200}, kFactors, 4);
    EXPECT_EQ(wide.Revs[1], 7620);
    EXPECT_NEAR(wide.Ratios[1], 5.715, 1e-5);
    const FoundRatios narrow = SearchRatios(kRules, {0, 15, 22, 30, 38, 39, 200}, kFactors, 4);
    EXPECT_EQ(narrow.Revs[4], 6000);
    EXPECT_NEAR(narrow.Ratios[4], 1.1842105, 1e-6);
    EXPECT_GT(narrow.Ratios[5], narrow.Ratios[4]);  // out of order, which is no error
}

TEST(RatioSearch, GivesAnExcessOfFirstGearToTheFinalDrive) {
    const ByGear speeds{0, 9, 22, 30, 38, 46, 200};
    const FoundRatios found = SearchRatios(kRules, speeds, kFactors, 2);
    ASSERT_TRUE(found.Raised);
    EXPECT_NEAR(found.Ratios[1], 7.5, 1e-5);
    // The ratios that the whole drive needs do not depend on how it is shared: the same as behind one that is long
    // enough, where nothing is raised.
    const FoundRatios enough = SearchRatios(kRules, {0, 9, 22, 30, 38, 46, 200}, kFactors, 7.4F);
    ASSERT_FALSE(enough.Raised);
    for (std::size_t gear = 1; gear <= 5; ++gear) {
        EXPECT_NEAR(found.Ratios[gear] * found.FinalDrive, enough.Ratios[gear] * enough.FinalDrive, 1e-3) << gear;
    }
    const FoundRatios beyond = SearchRatios(kRules, {0, 2, 22, 30, 38, 46, 200}, kFactors, 4);
    EXPECT_EQ(beyond.FinalDrive, 7.5F);
    EXPECT_GT(beyond.Ratios[1], 7.5);
}

TEST(RatioSearch, FixedShiftPointsNeedNoSearch) {
    ShiftRules fixed = kRules;
    fixed.AutoRevs = false;
    fixed.CustomRevs = 5000;
    const FoundRatios found = SearchRatios(fixed, {0, 3, 15, 30, 37.5F, 51.75F, 200}, kFactors, 4);
    EXPECT_FALSE(found.Raised);
    ExpectGears(found.Ratios, {12.5, 2.5, 1.25, 1, 1});
    ExpectGears(found.Revs, {5000, 5000, 5000, 5000, 6900});
}

}  // namespace
}  // namespace zolv
