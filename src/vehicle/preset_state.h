#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace zolv {

/// One preset as it was last read from a panel. The whole numbers are rounded half to even, whatever was typed.
struct PresetEntry {
    std::int16_t CustomDrivetrain = 0;  // 0 front, 1 rear, 2 all wheel drive; kNoDrivetrain
    std::int32_t CustomPower = 0;       // [kW]
    std::int32_t CustomPowerRPM = 0;    // [rpm]
    std::int32_t CustomTorque = 0;      // [Nm]
    std::int32_t CustomTorqueRPM = 0;   // [rpm]
    std::int32_t CustomIdleRPM = 0;     // [rpm]
    std::int16_t CustomGears = 0;
    std::int32_t CustomMass = 0;          // [kg]
    std::int16_t CustomUnsprungMass = 0;  // [kg]
    float CustomDist = 0;                 // share of the weight on the front axle
    float CustomCx = 0;
    float CustomFTyreWidth = 0;         // [mm]
    float CustomFTyreProfile = 0;       // fraction of the width
    std::int16_t CustomFWheelSize = 0;  // [in]
    float CustomRTyreWidth = 0;         // [mm]
    float CustomRTyreProfile = 0;       // fraction of the width
    std::int16_t CustomRWheelSize = 0;  // [in]
    float CustomFTrack = 0;             // [m]
    float CustomRTrack = 0;             // [m]
    float CustomWheelbase = 0;          // [m]
    float CustomEfficiency = 0;         // fraction
    float CustomFrontalArea = 0;        // [m^2]
};

/// Stands for a drivetrain list in which none of the three is picked.
inline constexpr std::int16_t kNoDrivetrain = 3;

struct PresetState {
    PresetEntry Entry;

    /// True while a preset file fills the add panel: the base car found for it must not overwrite the file's figures.
    bool LoadingPreset = false;
};
extern PresetState presets;

/// Where the window of the presets says what has become of a preset. A front end that shows it in the window hangs both
/// up; where nothing hangs, it is a message.
struct PresetFollowUps {
    std::function<void(const std::string& sentence)> Stored;   // a preset was added or updated
    std::function<void(const std::string& sentence)> Refused;  // it was not; the sentence is the first of its faults
};
inline PresetFollowUps presetFollowUps;

}  // namespace zolv
