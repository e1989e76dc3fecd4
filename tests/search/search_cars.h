#pragma once

#include <string_view>

#include "model/catalogue.h"
#include "model/set_up.h"

namespace zolv {

/// A built-in car with the gears of a start of the program, all tyres at 180 kPa, wings flat.
inline SetUp SetUpWith(std::string_view car) {
    SetUp setUp;
    for (const CatalogueCar& one : Catalogue()) {
        if (one.name == car) setUp.Car = RecordOf(one.figures);
    }
    setUp.CarName = car;
    setUp.Ratios.values = {0, 3.15, 2.2, 1.6, 1.24, 1, 0.85};
    setUp.FinalDrive = {2.9, 2.9};
    setUp.FrontPressure = setUp.RearPressure = 180;
    setUp.TyreMu = 1.25;
    return setUp;
}

}  // namespace zolv
