#pragma once

#include "fields/unit_conv_window.h"

namespace zolv {

/// Converts the number of one row of the converter to the row's metric unit. With no unit picked the output keeps its
/// text.
/// Reads:  the row's input and list
/// Writes: the row's output
void ConvertUnits(ConverterRow& row);

/// The language has changed: writes the words among the converter's figures and the long names in its lists anew.
/// Reads:  the rows, units.Mass.UnitNames
/// Writes: the rows' outputs, the list of masses
void ShowConverterWords();

/// Turns the measured sizes of a tyre into width / profile R rim: the profile is the sidewall as a percentage of the
/// width, the rim in inches. A size below 1 mm is refused with a message, and the output stays; a tyre lower than its
/// rim is not. Also the load of the window, so that the output stands as soon as the window is open.
/// Reads:  TyreWidthInput, TyreHeightInput, RimSizeInput [mm]
/// Writes: TyreOutput
void ConvertTyre();

}  // namespace zolv
