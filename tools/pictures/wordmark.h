#pragma once

#include <QImage>

namespace zolv::pictures {

/// "Tarmaq Zolv" beside the icon, on nothing, in inks that stand out from a light ground and from a dark one.
QImage Title();

/// "Tarmaq" over a road's centre line, on nothing: stands for the simulator.
QImage Logo();

}  // namespace zolv::pictures
