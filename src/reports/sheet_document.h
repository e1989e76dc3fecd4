#pragma once

#include "drawing/document.h"

/// The set-up sheet: what a driver takes along, or passes on, of the set-up on his pages.
namespace zolv {

/// Gathers the sheet from the pages as they stand: car, inputs, gears, acceleration with its log, tyres, air, and on a
/// page of its own the plots. Words and units are those in force. While gears are in the wrong order their results are
/// dashes, and what follows from them is left out.
/// Reads:  the fields of all pages, vehicle, gearing, tyres, aero, options, units, files
[[nodiscard]] Document SetUpSheet();

}  // namespace zolv
