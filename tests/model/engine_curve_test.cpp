#include "model/engine_curve.h"

#include <gtest/gtest.h>

namespace zolv {
namespace {

constexpr Engine kEngine{.Power = 100, .PowerRPM = 6000, .Torque = 180, .TorqueRPM = 4000, .IdleRPM = 1000};

// From a separate calculation in Python. The second engine's error stands at 6 %.
TEST(EngineCurve, GivesTheTorque) {
    struct {
        Engine engine;
        bool failed;
        double halfway, atPower, beyond;  // between the peaks, at peak power and at 1.15 times its engine speed
    } const kCases[] = {{kEngine, false, 176.910, 159.072, 119.786},
                        {{400, 7000, 550, 5000, 1000}, true, 552.345, 511.349, 342.824},
                        {{537, 19076, 284, 16817, 3500}, true, 279.930, 267.010, 187.478},
                        {{100, 4000, 180, 4000, 1000}, true, 180, 180, 180}};  // one peak: no curve, its torque
    for (const auto& [engine, failed, halfway, atPower, beyond] : kCases) {
        const EngineCurve curve = FittedCurve(engine);
        EXPECT_EQ(curve.CurveFitFailed, failed);
        EXPECT_NEAR(curve.Cubic(engine.TorqueRPM), engine.Torque, 1e-3);
        EXPECT_NEAR(curve.Cubic((engine.TorqueRPM + engine.PowerRPM) / 2), halfway, 2e-3);
        EXPECT_NEAR(curve.Cubic(engine.PowerRPM), atPower, 2e-3);
        EXPECT_NEAR(curve.Cubic(engine.PowerRPM * 1.15), beyond, 2e-3);
    }
}

TEST(EngineCurve, GivesUpAfter100StepsOfAQuarterThousandth) {
    const EngineCurve curve = FittedCurve({400, 7000, 550, 5000, 1000});
    EXPECT_NEAR(curve.CurveSlopeFactor, 1.09 + 0.025, 1e-9);
    EXPECT_NEAR(FittedCurve(kEngine).CurveSlopeFactor, 1.07, 0.005);
}

}  // namespace
}  // namespace zolv
