#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace zolv {

/// The words that code uses at run time, in the language in force. The caption table fills them: with the built-in
/// English at start, with a language file's lines later.
struct Texts {
    // Files
    std::string TextOpenSettings;
    std::string TextSaveSettings;
    std::string TextSettingsFilter;
    std::string TextCarNotSupported;
    std::string TextTryAddingIt;
    std::string TextOptionsMissing;
    std::string TextManualHint;

    // Info page
    std::string TextFront;
    std::string TextRear;
    std::string TextFWD;
    std::string TextRWD;
    std::string TextAWD;

    // Column titles of the acceleration table
    std::string TextColTime;
    std::string TextColSpeed;
    std::string TextColEngineRpm;
    std::string TextColGear;
    std::string TextColDrivingForce;
    std::string TextColResistance;
    std::string TextColNetForce;
    std::string TextColAcceleration;
    std::string TextColWheelLoads;

    // Report of ratios or speeds in the wrong order
    std::string TextSpeedsNotUpdated;
    std::string TextBecauseOfThe;
    std::string TextErrors;
    std::string TextRatioFor;
    std::string TextCannotBeShorter;
    std::string TextRatiosNotUpdated;
    std::string TextSpeedFor;
    std::string TextCannotBeLess;

    // Custom presets
    std::string TextFrontWheelSize;
    std::string TextWheelSize;
    std::string TextLoadPreset;
    std::string TextPresetNameUsed;
    std::string TextPresetLimit;
    std::string TextPresetNoName;
    std::string TextPresetNoCar;
    std::string TextBadPower;
    std::string TextBadPowerRpm;
    std::string TextBadTorque;
    std::string TextBadTorqueRpm;
    std::string TextBadIdle;
    std::string TextIdleTooHigh;
    std::string TextNoDrivetrain;
    std::string TextNoGears;
    std::string TextBadMass;
    std::string TextBadUnsprungMass;
    std::string TextBadWeightDistLow;
    std::string TextBadWeightDistHigh;
    std::string TextBadDrag;
    std::string TextBadFrontTyreWidth;
    std::string TextBadFrontTyreProfile;
    std::string TextBadFrontRim;
    std::string TextBadRearTyreWidth;
    std::string TextBadRearTyreProfile;
    std::string TextBadRearRim;
    std::string TextBadFrontTrack;
    std::string TextBadRearTrack;
    std::string TextBadWheelbase;
    std::string TextAddedPreset;
    std::string TextSavePreset;
    std::string TextUpdatedPreset;

    std::array<std::string, 8> TyreTypeNames;    // in the order of tyres.TyreTypeMu
    std::array<std::string, 3> GraphNames;       // the rows of Select_Graphs
    std::array<std::string, 7> GearNames;        // 1 to 6; there is no 0
    std::string RpmSuffix;                       // with its leading blank
    std::array<std::string, 6> AboutParagraphs;  // of AboutZolv
};
inline Texts texts;

/// "Front Wheel Drive" and the other two, in the language in force, by the car record's number of the drivetrain.
[[nodiscard]] inline std::array<const std::string*, 3> DrivetrainNames() {
    return {&texts.TextFWD, &texts.TextRWD, &texts.TextAWD};
}

/// "3rd", in the language in force.
/// @param gear  1 to 6
[[nodiscard]] inline const std::string& GearName(int gear) { return texts.GearNames[static_cast<std::size_t>(gear)]; }

}  // namespace zolv
