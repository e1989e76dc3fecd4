#include "gearing/engine_curve.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zolv {
namespace {

constexpr Engine kEngine{.Power = 100, .PowerRPM = 6000, .Torque = 180, .TorqueRPM = 4000, .IdleRPM = 1000};

double SlopeAt(const EngineCurve& curve, double rpm) { return (curve.Cubic(rpm + 1) - curve.Cubic(rpm - 1)) / 2; }

struct FitCase {
    const char* name;
    Engine engine;
    bool failed;
    double halfway, atPower, beyond;  // torque between the peaks, at peak power and at 1.15 times its engine speed
};
class Fit : public testing::TestWithParam<FitCase> {};

TEST_P(Fit, GivesTheTorque) {
    const Engine& engine = GetParam().engine;
    const EngineCurve curve = FittedCurve(engine);
    EXPECT_EQ(curve.CurveFitFailed, GetParam().failed);
    EXPECT_NEAR(curve.Cubic(engine.TorqueRPM), engine.Torque, 1e-3);
    EXPECT_NEAR(curve.Cubic((engine.TorqueRPM + engine.PowerRPM) / 2), GetParam().halfway, 2e-3);
    EXPECT_NEAR(curve.Cubic(engine.PowerRPM), GetParam().atPower, 2e-3);
    EXPECT_NEAR(curve.Cubic(engine.PowerRPM * 1.15), GetParam().beyond, 2e-3);
    const double power = curve.Cubic(engine.PowerRPM) * engine.PowerRPM / 9552;
    EXPECT_EQ(std::fabs(1 - power / engine.Power) > 0.001, GetParam().failed);
}

// From a separate calculation in Python. The second engine's error stands at 6 %.
INSTANTIATE_TEST_SUITE_P(
    Computed, Fit,
    testing::Values(FitCase{"Mild", kEngine, false, 176.910, 159.072, 119.786},
                    FitCase{"Strong", {400, 7000, 550, 5000, 1000}, true, 552.345, 511.349, 342.824},
                    FitCase{"Small", {86, 7033, 130, 5456, 1000}, false, 127.070, 116.861, 88.116},
                    FitCase{"HighRevving", {537, 19076, 284, 16817, 3500}, true, 279.930, 267.010, 187.478}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(EngineCurve, IsFlatAtPeakTorqueAndSteepensBehindPeakPower) {
    const EngineCurve start;
    const EngineCurve curve = SolveCurveCubic(kEngine, start);
    EXPECT_NEAR(SlopeAt(curve, 4000), 0, 1e-6);
    EXPECT_NEAR(SlopeAt(curve, 6000 * 1.012) / SlopeAt(curve, 6000), 1.09, 1e-4);
    // By hand: 159.2 Nm make 100 kW at 6000 rpm, and 157.0762 Nm 99.85 kW at 6072.
    EXPECT_NEAR(SlopeAt(curve, 6000), (157.0762 - 159.2) / 72, 1e-5);
}

TEST(EngineCurve, GivesUpAfter100StepsOfAQuarterThousandth) {
    const EngineCurve curve = FittedCurve({400, 7000, 550, 5000, 1000});
    EXPECT_NEAR(curve.CurveSlopeFactor, 1.09 + 0.025, 1e-9);
    EXPECT_NEAR(FittedCurve(kEngine).CurveSlopeFactor, 1.07, 0.005);
}

TEST(EngineCurve, StartsAtFiveEighthsOfPeakTorque) {
    EXPECT_DOUBLE_EQ(LowerTorque(kEngine, 1000), 112.5);
    EXPECT_DOUBLE_EQ(LowerTorque(kEngine, 2500), 146.25);
    EXPECT_DOUBLE_EQ(LowerTorque(kEngine, 4000), 180);
    const EngineCurve curve = FittedCurve(kEngine);
    EXPECT_EQ(EngineTorque(kEngine, curve, 4000), LowerTorque(kEngine, 4000));
    EXPECT_EQ(EngineTorque(kEngine, curve, 4001), curve.Cubic(4001));
    EXPECT_LT(curve.Cubic(15000), 0);  // no floor
}

TEST(EngineCurve, OfAnImpossibleEngineIsANumberAllTheSame) {
    for (const Engine& engine : {Engine{100, 4000, 180, 4000, 1000}, Engine{100, 6000, 180, 4000, 4000},
                                 Engine{0, 0, 0, 0, 0}, Engine{-1, 6000, 180, 4000, 1000}}) {
        const EngineCurve curve = FittedCurve(engine);
        for (const double rpm : {0.0, 1000.0, 4000.0, 9000.0}) {
            EXPECT_TRUE(std::isfinite(EngineTorque(engine, curve, rpm))) << engine.Power << ' ' << rpm;
        }
    }
    EXPECT_TRUE(FittedCurve({100, 4000, 180, 4000, 1000}).CurveFitFailed);
}

}  // namespace
}  // namespace zolv
