#pragma once

#include <optional>

#include "fields/kinds.h"
#include "model/air_sheet.h"

namespace zolv {

/// Takes the coefficients of the fittings at their present angles and finds the top speed. Unless the program is
/// loading, it then raises TopSpeedFound and runs CalcAeroForces.
/// Reads:  Select_FrontWingAngle, Select_RearWingAngle, vehicle.CurrentCar, aero.FixedSpeedMode, guards.Loading
/// Writes: aero
void CalcAeroCoefficients();

/// Finds aero.TopSpeed; in FixedSpeedMode also stores every force at that speed.
void FindTopSpeed();

/// Works out the forces at the speed in force and the axle loads, and writes the page.
/// Reads:  Select_AeroSpeed in slider mode, aero, vehicle.CurrentCar, units
/// Writes: aero, the figures of the aerodynamics page
void CalcAeroForces();

/// Where the marks of a bar of the balance stand, as shares of its length: the middle is the weight's own distribution,
/// and each end lies a tenth of the weight away from it. What lies further stands at the end.
struct BalanceMarks {
    double BandFrom = 0, BandTo = 0;  // what counts as neutral
    std::optional<double> Here = {};  // the lift's distribution; none without lift on the front axle
};
[[nodiscard]] BalanceMarks PresentBalanceMarks();

/// What the driver chose of the air, and the top speed that follows.
struct AirChoices {
    double topSpeed = 0;              // [m/s]
    double speed = 0;                 // [m/s] of the slider; at the top speed it stands where it stood
    int frontWing = 0, rearWing = 0;  // [degrees]
};

/// Writes the figures of the page for any car under its air.
void ShowAirOf(Showing which, const CarRecord& car, const AirSheet& air, const AirChoices& choices);

/// The user moved one of the twin speed sliders: the other follows, and in slider mode the forces.
void MoveAeroSpeed();
void MoveAeroSpeedOfTyreTab();

/// The user chose which speed the forces refer to.
void ChooseSliderSpeed();
void ChooseFixedSpeed();

}  // namespace zolv
