#pragma once

namespace zolv {

/// Prints the whole set-up as a page for a reader: car, gearing in the direction in force, acceleration figures, tyres
/// and aerodynamics, in the chosen units and in the words of the language in force.
void PrintReport();

}  // namespace zolv
