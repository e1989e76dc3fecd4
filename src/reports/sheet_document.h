#pragma once

#include "drawing/document.h"

/// The set-up sheet: what a driver takes along, or passes on, of the set-up on his pages.
namespace zolv {

/// Gathers the sheet from the pages as they stand: car, inputs, gears, acceleration with its log, tyres, air, and on a
/// page of its own the plots. Words and units are those in force. While gears are in the wrong order their results are
/// dashes, and what follows from them is left out.
/// Reads:  the fields of all pages, vehicle, gearing, tyres, aero, options, units, files
[[nodiscard]] Document SetUpSheet();

/// A text of a page as a figure: "12.5 m/s" is 12.5 with the unit m/s. One that is more than a number and its unit, as
/// "0.98 : 1", stays whole.
[[nodiscard]] DocumentFigure FigureOf(std::string name, const std::string& text);

}  // namespace zolv
