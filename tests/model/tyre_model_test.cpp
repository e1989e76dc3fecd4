#include "model/tyre_model.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zolv {
namespace {

TEST(TyreModel, StiffnessStartsAt100AndGains2Point5ForEachKpa) {
    EXPECT_EQ(TyreStiffness(0), 100'000);
    EXPECT_EQ(TyreStiffness(175), 537'500);
    EXPECT_EQ(TyreStiffness(176) - TyreStiffness(175), 2500);
}

TEST(TyreModel, DeformationIsThatOfHalfTheAxleLoadUpToTheSidewall) {
    EXPECT_DOUBLE_EQ(TyreDeformation(2000, 100'000, 1), 0.01);  // a tyre carries half: 1000 N on 100 N/mm
    EXPECT_DOUBLE_EQ(TyreDeformation(4000, 100'000, 1), 0.02);
    EXPECT_DOUBLE_EQ(TyreDeformation(4000, 200'000, 1), 0.01);
    EXPECT_EQ(TyreDeformation(0, 100'000, 1), 0);
    EXPECT_EQ(TyreDeformation(1e9, 100'000, 0.08), 0.08);
    EXPECT_LT(TyreDeformation(-100, 100'000, 0.08), 0);
}

// 341.5 * 0.573 kg on 537.5 kN/m, the front of a Mote 900: 8.34 Hz, worked by hand.
TEST(TyreModel, FrequencyIsThatOfAMassOnASpring) {
    EXPECT_NEAR(TyreFrequency(341.5 * 0.573, 537'500), 8.34, 0.005);
    EXPECT_DOUBLE_EQ(TyreFrequency(400, 100'000), TyreFrequency(100, 100'000) / 2);
    EXPECT_DOUBLE_EQ(TyreFrequency(100, 400'000), TyreFrequency(100, 100'000) * 2);
}

TEST(TyreModel, PatchIsTheChordOfTheUnloadedCircle) {
    EXPECT_DOUBLE_EQ(PatchLength(5, 4), 6);  // 3, 4, 5
    EXPECT_DOUBLE_EQ(PatchLength(13, 5), 24);
    EXPECT_EQ(PatchLength(5, 5), 0);
    EXPECT_TRUE(std::isnan(PatchLength(4, 5)));
}

}  // namespace
}  // namespace zolv
