#pragma once

#include "pictures/car_look.h"
#include "pictures/car_shape.h"

class QPainter;

namespace zolv::pictures {

/// Share of its box that an open-wheeled car fills when seen from the front.
inline constexpr double kFormulaFill = 0.84;
/// The same of a kart-like one without wings.
inline constexpr double kMidgetFill = 0.86;

/// Paints an open-wheeled car in metres, front axle at x = 0, the ground at y = 0 and y up. Wings and floor as fitted.
void PaintFormulaCar(QPainter& painter, const CarSize& size, const CarLook& look);

/// Paints a small open-wheeled car: a tube frame with a nose, the engine in the open behind the driver.
void PaintMidget(QPainter& painter, const CarSize& size, const CarLook& look);

}  // namespace zolv::pictures
