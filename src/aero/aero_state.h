#pragma once

#include <cstdint>

#include "model/air_sheet.h"
#include "platform/hook.h"

namespace zolv {

struct AeroState {
    bool FixedSpeedMode = false;      // forces are those at the top speed; otherwise those at the slider's speed
    std::int16_t AeroSpeedValue = 0;  // [m/s] the slider's speed
    std::int16_t FrontWingAngle = 0, RearWingAngle = 0;  // [degrees]
    Fittings Parts;                                      // at those angles
    float AirTemperature = 293.15F;                      // [K] shown only; the density does not follow from it
    float AirDensity = kAirDensity;                      // [kg/m^3]

    StoredForces Forces;  // at the speed in force

    float TopSpeed = 0;  // [m/s]
    AirBalance Balance = AirBalance::None;
    double AeroDistribution = 0;  // share of the lift on the front axle; 0 where the front has none

    // Vertical load on each whole axle [N] at the speed in force. An acceleration run overwrites them and leaves those
    // of its last step, until the next CalcAeroForces.
    float FrontWheelForce = 0, RearWheelForce = 0;

    /// The car in use with its fittings, as the model takes it.
    [[nodiscard]] AirProfile Profile() const;
};
inline AeroState aero;

/// What follows; shell/wiring says what that is.
struct AeroFollowUps {
    Hook TopSpeedFound;  // the gearing has a new ceiling and new fittings; not raised during the load
};
inline AeroFollowUps aeroFollowUps;

}  // namespace zolv
