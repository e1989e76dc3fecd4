#pragma once

#include <array>
#include <cstdint>

#include "model/acceleration_run.h"
#include "model/engine_curve.h"
#include "model/gear_speeds.h"
#include "model/shift_points.h"
#include "platform/hook.h"

namespace zolv {

/// The gearing in both directions. The first index is the mode: 0 belongs to the ratios page, 1 to the speeds page. The
/// two keep their numbers side by side, so that switching pages loses neither. The second index is the gear: 0 reverse,
/// which always sits in the slots of mode 0 (torque apart), 1 to 6 the forward gears.
struct GearingState {
    bool RatiosMode = true;  // ratios are the inputs; otherwise speeds

    std::array<ByGear, 2> GearRatio{};
    std::array<float, 2> FinalDrive{};
    std::array<ByGear, 2> GearRevs{};         // [rpm] at the top of the gear: the shift point
    std::array<ByGear, 2> GearSpeed{};        // [m/s] at GearRevs
    std::array<ByGear, 2> RevsAfterChange{};  // [rpm] just after changing up out of the gear, 1 to 5
    std::array<ByGear, 2> GearTorque{};       // [Nm] at the driven wheels, at peak engine torque

    ByGear GearSpeedFactor{};                    // [m/s for each rev/min of the wheel] at the speed of the gear
    std::array<StoredLoads, 7> GearAxleLoads{};  // [N] at the speed of the gear

    EngineCurve Curve;  // fitted where the engine is drawn; zeros until then

    std::array<AccelRow, kAccelRows> AccelRows{};
    std::int16_t AccelLastRow = -1;

    Hook SpeedsFound;  // the ratios page has new results
    Hook RatiosFound;  // the speeds page has

    /// The mode of the page that is the input.
    [[nodiscard]] int Mode() const { return RatiosMode ? 0 : 1; }
};
extern GearingState gearing;

/// What the model needs of the present state, apart from the gearbox itself.
[[nodiscard]] RollingCar PresentRollingCar();
[[nodiscard]] ShiftRules PresentShiftRules();

/// The car with the gearbox of the page that is the input, ready to start.
[[nodiscard]] AccelerationSetup PresentAccelerationSetup();

}  // namespace zolv
