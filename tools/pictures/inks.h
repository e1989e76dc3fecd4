#pragma once

#include <QColor>

namespace zolv::pictures {

/// What all pictures share. Each car adds a paint and an accent of its own.
inline const QColor kSky(0xe9eff4);
inline const QColor kFloor(0xdbe2e9);
inline const QColor kGroundLine(0x9fabb7);
inline const QColor kShadow(0xbfc9d2);
inline const QColor kGlass(0x2a3641);
inline const QColor kGlassLight(0x3f4f5d);
inline const QColor kTrim(0x23282e);  // sills, splitters, grilles
inline const QColor kArch(0x171b1f);
inline const QColor kTyre(0x24282c);
inline const QColor kTyreLine(0x3a4046);
inline const QColor kRimWell(0x394149);
inline const QColor kBrakeDisc(0x7e8790);
inline const QColor kSilver(0xd3d8dc);
inline const QColor kGunmetal(0x8a939b);
inline const QColor kBlackRim(0x565e66);
inline const QColor kGold(0xc9a24b);
inline const QColor kHeadlamp(0xf4f8fb);
inline const QColor kTailLamp(0xc4202b);
inline const QColor kWhite(0xf5f3ee);
inline const QColor kCarbon(0x2c3238);

}  // namespace zolv::pictures
