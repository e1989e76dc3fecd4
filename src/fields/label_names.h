#pragma once

/// Names for those elements of the control arrays that code reads or writes by itself. The others only take their words
/// from a language, by the caption table.
namespace zolv {

enum InfoLabelName : int {
    kInfoMass = 0,
    kInfoWeightDist = 2,
    kInfoP2W,
    kInfoT2W,
    kInfoPower,
    kInfoTorque,
    kInfoDrivetrain,
    kInfoGears,
    kInfoEfficiency,
    kInfoRim = 12,
    kInfoTyreWidth,
    kInfoTyreProfile,
    kInfoTyreHeight,
    kInfoPressures,
    kInfoTrack,
    kInfoWheelbase,
};

enum InfoPanelName : int { kInfoBody, kInfoEngine, kInfoAbout, kInfoWheels };

/// The panel of the ratios; that of the speeds has the same words kGearingOfSpeeds further on.
enum GearingLabelName : int {
    kGearingFinalDrive,
    kGearingGear,
    kGearingRatio,
    kGearingSpeed,
    kGearingEngineSpeed,
    kGearingAfter,
    kGearingBefore,
    kGearingTorque,
    kGearingReverse = 14,  // the names of gears 1 to 6 stand before it
    kGearingOfSpeeds = 15,
    kGearingSpeedTime = 30,  // times to five speeds
    kGearingEndSpeed = 35,
    kGearingDistanceTime = 36,  // times over two distances
    kGearingTyreType = 38,
    kGearingGraphs,
};

/// The figures of the run: times to five speeds, the speed at its end, then time and speed over each of two distances.
enum AccDataLabelName : int { kAccSpeedTime = 0, kAccEndSpeed = 5, kAccDistanceTime = 6, kAccDistanceSpeed = 7 };

enum TyreLabelName : int {
    kTyreCarSpeed = 0,
    kTyrePressureF,
    kTyrePressureR,
    kTyreFootprint,
    kTyreSideView,
    kTyreZoomFootprint,
    kTyreZoomSideView,
    kTyrePatchWidth,
    kTyrePatchLength,
    kTyrePatchArea,
    kTyrePatchAspect,
    kTyrePatchRatio,
    kTyreGrip,
    kTyreStiffness,
    kTyreFrequency,
    kTyreUnloadedRadius,
    kTyreDeformation,
    kTyreRollingRadius,
    kTyreWallHeight,
};

enum AeroLabelName : int {
    kAeroCarSpeed = 0,
    kAeroFrontWingAngle,
    kAeroRearWingAngle,
    kAeroDrag,
    kAeroLift,
    kAeroLiftDragRatio,
    kAeroRollingResistance,
    kAeroFriction = 8,
    kAeroTopSpeed,
    kAeroFrontWheels = 20,
    kAeroRearWheels,
    kAeroForceDistribution,
    kAeroDistribution,
};

enum AeroPanelName : int {
    kAeroSpeedSelection = 0,
    kAeroTotals,
    kAeroBody = 3,
    kAeroForces,
    kAeroUndertray,
    kAeroFrontWing,
    kAeroRearWing
};

/// Words of the presets: above both panels, in the add panel, in the edit panel.
enum CupLabelName : int {
    kCupAbout = 0,
    kCupNewName,
    kCupBasedOn,
    kCupFrontWheelSize = 13,
    kCupRearWheelSize = 15,
    kCupPresetsUsed = 18,
    kCupEditName
};

enum LanguageLabelName : int { kLanguageSelect = 1 };

}  // namespace zolv
