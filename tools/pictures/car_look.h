#pragma once

#include <QColor>

#include "pictures/wheel.h"

namespace zolv::pictures {

enum class RaceTrim { None, Sprint, WideBody };

/// How a car is painted: one paint, one accent.
struct CarLook {
    QColor paint;
    QColor accent;
    WheelLook wheel;
    RaceTrim trim = RaceTrim::None;
};

}  // namespace zolv::pictures
