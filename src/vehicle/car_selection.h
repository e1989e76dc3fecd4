#pragma once

#include <algorithm>

namespace zolv {

/// The whole pressures [kPa] that a tyre's slider offers.
struct PressureRange {
    /// @param min, max  of the car's record
    PressureRange(double min, double max);

    [[nodiscard]] int Limit(int pressure) const { return std::clamp(pressure, lowest, highest); }

    int lowest, highest;
};

/// Fills the tables of the built-in cars; no preset is in use afterwards.
/// Writes: vehicle.CarName, CarData, PresetsUsed
void InitCatalogue();

/// Takes the car named in Select_Car into use: the working state of the whole program follows from it. Gearing, wing
/// angles, tyre type and pressures stay as far as they fit: a gearbox set up for one car stays in place for the next.
/// Ends with the follow-up CarChanged, unless the program is loading.
/// Reads:  Select_Car, the tables, guards.Loading
/// Writes: vehicle.CurrentCar, Tyres and Curve, the ranges of the pressure sliders, the reverse ratio, which gears
///         and fittings are visible
void SelectCar();

}  // namespace zolv
