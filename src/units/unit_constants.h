#pragma once

#include "model/constants.h"

/// The constants between units, used exactly as they stand here. Lengths and the acceleration have
/// two different inches on purpose; they stand together.
namespace zolv {

// Speed and length
inline constexpr double kKmhPerMs = 3.6;
inline constexpr double kKmPerMile = 1.609344;
inline constexpr double kKnotsPerMph = 0.868976;
inline constexpr double kMphPerFps = 0.6818181818181818;
inline constexpr double kFeetPerMetre = 3.280839895;

inline constexpr double kInchesPerMetre = 100 * kInchesPerCm;   // of lengths, so that a rim of 15 inches shows as 15
inline constexpr double kStandardInchesPerMetre = 39.37007874;  // of the acceleration and of the converter
inline constexpr double kInchesPerMillimetre = kInchesPerCm / 10;

// Mass and force
inline constexpr double kPoundsPerKg = 2.20462262;
inline constexpr double kPoundsPerSlug = 32.17404855630175;
inline constexpr double kPoundsPerShortTon = 2000;
inline constexpr double kPoundsPerLongTon = 2240;
inline constexpr double kPoundalsPerKgf = 70.93163522420117;

inline constexpr double kPsiPerAtmosphere = 14.6959494;

// Engine
inline constexpr double kPsPerKw = 1.35962;
inline constexpr double kHpPerKw = 1.341;
inline constexpr double kFootPoundsPerKw = 737.55;

inline constexpr double kPoundFeetPerNm = 0.737310284547655;  // not quite what the feet and the pound above give
inline constexpr double kPoundInchesPerNm = 12 * kPoundFeetPerNm;

}  // namespace zolv
