#pragma once

#include "pictures/car_look.h"
#include "pictures/road_styles.h"

class QPainter;

namespace zolv::pictures {

/// Paints a car in metres, front axle at x = 0, the ground at y = 0 and y up.
void PaintRoadCar(QPainter& painter, const CarSize& size, const RoadStyle& style, const CarLook& look);

}  // namespace zolv::pictures
