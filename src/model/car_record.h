#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace zolv {

/// The 31 figures that describe a car, in their fixed order: of the tables, and of the preset file (which lacks the
/// last three).
enum class CarField : std::uint8_t {
    Power,           // [kW] peak engine power
    PowerRPM,        // [rpm] engine speed at peak power
    Torque,          // [Nm] peak engine torque
    TorqueRPM,       // [rpm] engine speed at peak torque
    IdleRPM,         // [rpm]
    DrivetrainType,  // 0 front, 1 rear, 2 all wheel drive
    NumGears,        // forward gears, 2 to 6
    Mass,            // [kg]
    WeightDist,      // share of the weight on the front axle
    Cd,              // coefficient of drag of the body
    FTW,             // [mm] front tyre width
    FTP,             // front tyre profile: sidewall height as a fraction of the width
    FWS,             // [in] front rim diameter
    FTrack,          // [m] front track
    RTW,             // [mm] rear tyre width
    RTP,             // rear tyre profile
    RWS,             // [in] rear rim diameter
    RTrack,          // [m] rear track
    Wheelbase,       // [m]
    UnsprungMass,    // [kg] carried in the record and in preset files; no calculation reads it
    Efficiency,      // share of the engine's power that reaches the wheels
    Reverse,         // reverse gear ratio; exactly 1 is a car without reverse gear
    FrontalArea,     // [m^2]
    Cl,              // coefficient of lift of the body; 0 for every built-in car
    FMinPressure,    // [kPa] range of the front tyre pressure
    FMaxPressure,    // [kPa]
    RMinPressure,    // [kPa] range of the rear tyre pressure
    RMaxPressure,    // [kPa]
    UndertrayType,   // row of the undertray table, 0 none
    FrontWingType,   // row of the front wing table, 0 none
    RearWingType,    // row of the rear wing table, 0 none
};
inline constexpr std::size_t kCarFields = 31;

/// One car as the tables hold it: every field a 32-bit float, whole numbers too. Indexed by CarField.
using CarFigures = std::array<float, kCarFields>;

/// The car in use. Whole numbers are rounded half to even when a car is taken over, so that a preset's rear rim of
/// 13.5 inches counts as 14 while its front rim keeps the half.
struct CarRecord {
    float Power = 0, PowerRPM = 0, Torque = 0, TorqueRPM = 0;
    std::int32_t IdleRPM = 0;
    std::int16_t DrivetrainType = 0, NumGears = 0;
    std::int32_t Mass = 0;
    float WeightDist = 0, Cd = 0;
    float FTW = 0, FTP = 0, FWS = 0, FTrack = 0;
    float RTW = 0, RTP = 0;
    std::int16_t RWS = 0;
    float RTrack = 0, Wheelbase = 0, UnsprungMass = 0, Efficiency = 0, Reverse = 0, FrontalArea = 0, Cl = 0;
    float FMinPressure = 0, FMaxPressure = 0, RMinPressure = 0;
    std::int16_t RMaxPressure = 0, UndertrayType = 0, FrontWingType = 0, RearWingType = 0;

    bool IsRearDriven() const { return DrivetrainType == 1; }

    bool operator==(const CarRecord&) const = default;
};

/// [kW] the most that reaches the wheels.
[[nodiscard]] inline double PowerAtWheels(const CarRecord& car) {
    return static_cast<double>(car.Power) * car.Efficiency;
}

/// Takes over a car's figures with the conversions of CarRecord.
CarRecord RecordOf(const CarFigures& figures);

}  // namespace zolv
