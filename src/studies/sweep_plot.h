#pragma once

#include "drawing/canvas.h"
#include "studies/sweep_state.h"

namespace zolv {

/// Draws a sweep over the whole of a canvas: a curve, or for two inputs a map of coloured cells with contour lines at
/// round values and a scale of the colours. The present set-up and the best point are marked.
void DrawSweep(const SweepRun& run, const SetUp& present, Canvas& canvas);

}  // namespace zolv
