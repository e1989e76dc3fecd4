#pragma once

#include "desktop/colours.h"

namespace zolv {

/// Spacing of every layout: one grid.
inline constexpr int kGap = 8;       // between rows and columns
inline constexpr int kMargin = 12;   // around a page or inside a frame
inline constexpr int kSection = 16;  // between groups

/// Sets the style and the light or dark colours, whichever the system has at start. A QApplication must exist.
void ApplyTheme();

}  // namespace zolv
