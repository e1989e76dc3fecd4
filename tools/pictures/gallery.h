#pragma once

#include <QImage>
#include <string_view>

#include "model/car_record.h"

namespace zolv::pictures {

/// Whether the gallery knows how to draw a car of this name.
bool HasLook(std::string_view name);

/// Side view of a car on its ground, to the scale that all pictures share.
QImage PictureOfCar(std::string_view name, const CarFigures& figures);

/// A car under a sheet, for cars that have no picture.
QImage PictureOfUnknown();

}  // namespace zolv::pictures
