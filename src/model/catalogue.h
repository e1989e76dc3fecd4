#pragma once

#include <array>
#include <string_view>

#include "model/car_record.h"

namespace zolv {

/// The built-in cars, in the order of the car list. Constants: nothing that a user does can alter them.
inline constexpr std::size_t kCars = 19;

struct CatalogueCar {
    std::string_view name;
    CarFigures figures;
};
const std::array<CatalogueCar, kCars>& Catalogue();

}  // namespace zolv
