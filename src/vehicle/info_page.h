#pragma once

#include "fields/kinds.h"
#include "model/tyre_sheet.h"

namespace zolv {

/// Describes the car in use in words and numbers, in the units and the language in force.
/// Reads:  vehicle, units, texts
/// Writes: the Info_ labels
void ShowCarInfo();

/// The same of any car.
void ShowCarInfoOf(Showing which, const CarRecord& car, const TyreSizes& sizes);

/// Shows the picture of the car picked in Select_Car: "NAME.jpg" in the program's folder, or "unknown.jpg" where there
/// is none. With neither there is a message, and the picture stays.
/// Writes: Info_CarPic
void ShowCarPicture();

}  // namespace zolv
