#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "model/by_gear.h"
#include "model/car_record.h"
#include "model/gearbox.h"
#include "model/shift_points.h"

namespace zolv {

/// All that the driver decides, in base units: a value that can be copied, compared, laid onto the pages, and worked
/// out by Evaluate. What he has typed is held as he typed it, in double; a calculation rounds it where it stores it.
struct SetUp {
    std::string CarName;  // as the car list has it
    CarRecord Car;

    Direction From = Direction::FromRatios;
    PerGear<double> Ratios;              // 1 to 6, used FromRatios
    PerGear<double> Speeds;              // [m/s] wanted, 1 to 6, used FromSpeeds
    std::array<double, 2> FinalDrive{};  // by Direction

    int FrontPressure = 0, RearPressure = 0;  // [kPa]
    bool Blown = false;                       // both tyres without pressure
    int TyreType = -1;                        // row of the list of tyre types; -1 is none picked
    double TyreMu = 0;                        // the friction coefficient in force

    int FrontWingAngle = 0, RearWingAngle = 0;  // [degrees]
    std::optional<int> AirSpeed;                // [m/s] at which the air is looked at; none is the top speed

    ShiftOptions Shifts;
    int Targets = 0;  // row of AccelTargetTable: it goes by the unit of speed

    [[nodiscard]] double PresentFinalDrive() const { return FinalDrive[static_cast<std::size_t>(From)]; }

    bool operator==(const SetUp&) const = default;
};

}  // namespace zolv
