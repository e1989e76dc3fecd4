#pragma once

#include "drawing/canvas.h"

namespace zolv {

/// The forces over the road speed: each gear from idle to the rev limit, the limit of grip, the resistance; marked are
/// the speed that the gearing reaches, where the next gear begins to pull harder (a disc in its colour), and where the
/// driver changes up (a ring in the colour of the gear that he leaves). Gears of an engine whose curve could not be
/// fitted are drawn as doubtful. A car that does not move off has no speed that it reaches; the plot says so.
/// Reads:  what PresentAccelerationSetup reads, units, texts, words
void DrawForcePlot(Canvas& plot);

}  // namespace zolv
