#pragma once

namespace zolv {

/// Draws the footprint on the road (CPS) and the tyre seen from the side (SV), from the figures as they stand: a
/// gearing run leaves the deformation of its last gear on the driven axle, and the side view takes that one.
/// Reads:  ZoomCPS, ZoomSideOn, FrontTyreAnal, tyres, vehicle, units.Distance
/// Writes: tyres.FrontRimRatio/RearRimRatio, CPS, SV
void DrawTyres();

}  // namespace zolv
