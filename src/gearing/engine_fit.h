#pragma once

namespace zolv {

/// Fits the torque curve of the car in use. It runs where the engine is drawn and nowhere else.
/// Reads:  vehicle.CurrentCar
/// Writes: gearing.Curve
void FitEngineCurve();

}  // namespace zolv
