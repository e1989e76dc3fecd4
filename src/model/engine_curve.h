#pragma once

#include <cstdint>

#include "model/car_record.h"

namespace zolv {

/// The five figures of an engine.
struct Engine {
    double Power = 0;      // [kW] peak
    double PowerRPM = 0;   // [rpm] of peak power
    double Torque = 0;     // [Nm] peak
    double TorqueRPM = 0;  // [rpm] of peak torque
    double IdleRPM = 0;    // [rpm]
};
[[nodiscard]] Engine EngineOf(const CarRecord& car);

/// kW = Nm times rpm / 9552; 9552 and not 9549.
inline constexpr std::int32_t PowerConstant = 9552;

/// A full torque curve made out of the five figures: a straight line from 62.5 % of peak torque at idle up to peak
/// torque, and above it the cubic CurveA N^3 + CurveB N^2 + CurveC N + CurveD, which may turn negative far above peak
/// power and is then used like any other value. The shares and factors are fits without a stated source, meant for the
/// cars' engines from idle up to 1.27 times peak power's engine speed, where a rev limiter cuts in.
struct EngineCurve {
    double CurveA = 0, CurveB = 0, CurveC = 0;
    float CurveD = 0;  // alone of the four rounded to a 32-bit float
    double CurveSlopeFactor = 1.09;
    double CurveRevsFactor = 1.012;
    float CurvePowerFactor = 0.9985F;
    bool CurveFitFailed = false;

    /// The cubic at engine speed `rpm` [Nm].
    [[nodiscard]] double Cubic(double rpm) const {
        return ((CurveA * (rpm * rpm * rpm) + CurveB * (rpm * rpm)) + CurveC * rpm) + static_cast<double>(CurveD);
    }
};

/// The straight line below peak torque [Nm]; peak torque for an engine that idles there.
[[nodiscard]] inline double LowerTorque(const Engine& engine, double rpm) {
    if (engine.TorqueRPM == engine.IdleRPM) return engine.Torque;
    return (0.375 * engine.Torque / (engine.TorqueRPM - engine.IdleRPM)) * (rpm - engine.IdleRPM) +
           0.625 * engine.Torque;
}

/// Torque [Nm] at engine speed `rpm`, at or above idle: the line up to and at peak torque, the cubic above.
[[nodiscard]] inline double EngineTorque(const Engine& engine, const EngineCurve& curve, double rpm) {
    return rpm <= engine.TorqueRPM ? LowerTorque(engine, rpm) : curve.Cubic(rpm);
}

/// The cubic with slope 0 and peak torque at peak torque's engine speed Nt, slope S at peak power's Np, and slope m S
/// at N2 = 1.012 Np, where power has fallen to 99.85 %. S is the slope of the chord between the torques at Np and N2,
/// and m is curve.CurveSlopeFactor.
[[nodiscard]] EngineCurve SolveCurveCubic(const Engine& engine, EngineCurve curve);

/// Varies the slope factor until the cubic's power at peak power's engine speed lies within 0.1 % of the stated one: at
/// least one round and at most 100, up in steps of 0.00025 and down in steps of 0.0025. Whoever does not get there
/// keeps the cubic of the last round and CurveFitFailed. An engine whose two peaks coincide has no such cubic: it keeps
/// its peak torque all the way up, and CurveFitFailed.
[[nodiscard]] EngineCurve FittedCurve(const Engine& engine);

}  // namespace zolv
