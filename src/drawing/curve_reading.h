#pragma once

#include <string>
#include <vector>

#include "drawing/plot_axes.h"

namespace zolv {

/// What one curve says at an x.
struct CurveReading {
    std::string name;   // "3rd"
    std::string value;  // "6181 rpm", as exactly as one view unit tells
    Meaning meaning;

    bool operator==(const CurveReading&) const = default;
};

/// The values of the named curves that pass an x, in the order of their names. A held curve that reads as its present
/// twin does is left out.
/// @param viewScaleY  view units for one canvas unit
[[nodiscard]] std::vector<CurveReading> ReadingsAt(const Canvas& canvas, double canvasX, double viewScaleY);

/// The value of a map at the crossing of its columns and rows that is nearest to a point, with its unit; empty where
/// there is none, and for a drawing that is no map.
[[nodiscard]] std::string MapReadingAt(const Canvas& canvas, double canvasX, double canvasY);

/// Whether two drawings can share a crosshair: they have the same quantity in the same unit along x.
[[nodiscard]] bool ShareX(const Canvas& one, const Canvas& other);

}  // namespace zolv
