#pragma once

namespace zolv {

/// pi as this program has it, with twelve decimals. Every radius and speed rests on it.
inline constexpr double kPi = 3.141592653589;

/// Inches in a centimetre as this program has them: 0.393900787, not 0.393700787. Every rim size goes through it.
inline constexpr double kInchesPerCm = 0.393900787;

inline constexpr double kGravity = 9.80665;  // [m/s^2], and newtons per kilogram-force

}  // namespace zolv
