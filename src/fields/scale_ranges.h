#pragma once

namespace zolv {

/// The grid steps that the slider of an axis offers, in the unit that the user reads. An options file holds no other.
struct ScaleRange {
    int min, max;
};

inline constexpr ScaleRange kSpeedPlotXRange{10, 50};        // speed
inline constexpr ScaleRange kSpeedPlotYRange{200, 2000};     // rpm
inline constexpr ScaleRange kTorquePlotXRange{100, 1000};    // rpm
inline constexpr ScaleRange kTorquePlotYRange{100, 2500};    // torque
inline constexpr ScaleRange kTractivePlotXRange{5, 20};      // s
inline constexpr ScaleRange kTractivePlotYRange{200, 5000};  // force
inline constexpr ScaleRange kSpeedGraphXRange{5, 20};        // s
inline constexpr ScaleRange kSpeedGraphYRange{10, 50};       // speed

}  // namespace zolv
