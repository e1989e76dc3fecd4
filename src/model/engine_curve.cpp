#include "model/engine_curve.h"

#include <cmath>

namespace zolv {

Engine EngineOf(const CarRecord& car) {
    return {.Power = car.Power,
            .PowerRPM = car.PowerRPM,
            .Torque = car.Torque,
            .TorqueRPM = car.TorqueRPM,
            .IdleRPM = static_cast<double>(car.IdleRPM)};
}

EngineCurve SolveCurveCubic(const Engine& engine, EngineCurve curve) {
    const double nt = engine.TorqueRPM;
    const double np = engine.PowerRPM;
    const double m = curve.CurveSlopeFactor;
    const double tp = (engine.Power / np) * PowerConstant;
    const double n2 = np * curve.CurveRevsFactor;
    const double t2 = ((engine.Power * static_cast<double>(curve.CurvePowerFactor)) / n2) * PowerConstant;
    const double s = (t2 - tp) / (n2 - np);

    // Differences of the slope 3 A N^2 + 2 B N + C between each point and peak torque, where it is 0.
    const double a1 = 3 * (np * np) - 3 * (nt * nt);
    const double b1 = 2 * np - 2 * nt;
    const double a2 = 3 * (n2 * n2) - 3 * (nt * nt);
    const double b2 = 2 * n2 - 2 * nt;
    curve.CurveA = (m * s * b1 - s * b2) / (a2 * b1 - a1 * b2);
    curve.CurveB = (s - a1 * curve.CurveA) / b1;
    curve.CurveC = s - 3 * (np * np) * curve.CurveA - 2 * np * curve.CurveB;
    curve.CurveD = static_cast<float>(engine.Torque - (nt * nt * nt) * curve.CurveA - (nt * nt) * curve.CurveB -
                                      nt * curve.CurveC);
    return curve;
}

EngineCurve FittedCurve(const Engine& engine) {
    constexpr double kTolerance = 0.1;  // [%] of peak power
    constexpr double kStepUp = 0.00025;
    constexpr double kStepDown = 0.0025;
    constexpr int kRounds = 100;

    EngineCurve curve;
    for (int round = 1; round <= kRounds; ++round) {
        curve = SolveCurveCubic(engine, curve);
        const double power = curve.Cubic(engine.PowerRPM) * engine.PowerRPM / PowerConstant;
        const double error = (1 - power / engine.Power) * 100;
        if (!std::isfinite(error)) {
            curve = {};
            curve.CurveD = static_cast<float>(engine.Torque);
            break;
        }
        if (error > kTolerance) curve.CurveSlopeFactor += kStepUp;
        if (error < -kTolerance) curve.CurveSlopeFactor -= kStepDown;
        if (round < kRounds && std::fabs(error) <= kTolerance) return curve;
    }
    curve.CurveFitFailed = true;
    return curve;
}

}  // namespace zolv
