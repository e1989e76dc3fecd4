#pragma once

#include <string>

#include "drawing/plot_place.h"

namespace zolv {

/// How large an SVG comes out, in pixels of a screen at its size of 100 %, without the margin around it.
struct SvgSize {
    double width = 0, height = 0;
    CanvasShape shape = CanvasShape::Stretched;
};

/// The size in which a drawing reads well by itself, in the canvas's proportions.
[[nodiscard]] SvgSize UsualSize(const Canvas& canvas);

/// A drawing as SVG, on white, as a window of that size shows it: with the numbers and titles of its axes, the names of
/// its curves, a legend where one is needed, and the colours of the palette. A curve is one path, with its
/// name for screen readers.
[[nodiscard]] std::string SvgOf(const Canvas& canvas, const SvgSize& size);
[[nodiscard]] std::string SvgOf(const Canvas& canvas);  // in its usual size

}  // namespace zolv
