#pragma once

#include "model/constants.h"

namespace zolv {

/// Radius of a tyre that carries no load: half of the rim and both sidewalls.
/// @param width_mm  tyre width [mm]
/// @param profile   sidewall height as a fraction of the width
/// @param rim_in    rim diameter [in]
/// @return [m]
[[nodiscard]] inline double UnloadedRadius(double width_mm, double profile, double rim_in) {
    // Width in millimetres times profile, over 5, is both sidewalls in centimetres.
    return (rim_in / kInchesPerCm + (width_mm * profile) / 5) / 100 / 2;
}

/// Radius of a rim [m] from its diameter [in].
[[nodiscard]] inline double RimRadius(double rim_in) { return ((rim_in * 0.5) / kInchesPerCm) / 100; }

}  // namespace zolv
