#pragma once

#include "model/by_gear.h"
#include "model/engine_curve.h"
#include "model/gear_speeds.h"

namespace zolv {

/// A car with its gearbox, ready to start.
struct AccelerationSetup {
    RollingCar Car;
    Engine Motor;
    EngineCurve Curve;
    double Efficiency = 0;  // share of the engine's power that reaches the wheels
    double Wheelbase = 0;   // [m]
    int NumGears = 0;
    int DrivetrainType = 0;  // 0 front, 1 rear, 2 all wheel drive
    double TyreMu = 0;
    ByGear Ratios{};  // 1 to 6
    double FinalDrive = 0;
    ByGear ShiftRevs{};       // [rpm] 1 to 6
    double LongDistance = 0;  // [m] behind which a run may end
};

}  // namespace zolv
