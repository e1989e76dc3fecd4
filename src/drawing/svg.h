#pragma once

#include <string>

#include "drawing/canvas.h"

namespace zolv {

/// A drawing as SVG in canvas units, on white. Lines keep their width in pixels at any size, as on the screen.
/// Neighbouring lines of one colour and width are one path.
[[nodiscard]] std::string SvgOf(const Canvas& canvas);

}  // namespace zolv
