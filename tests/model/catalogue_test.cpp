#include "model/catalogue.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>
#include <utility>

#include "model/car_record.h"
#include "vehicle/car_selection.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

TEST(Catalogue, FindsCarsByTheirExactNames) {
    vehicle = {};
    InitCatalogue();
    EXPECT_EQ(vehicle.FindCar("Corvane R"), 18);
    EXPECT_EQ(vehicle.FindCar("corvane r"), -1);
    EXPECT_EQ(vehicle.FindCar("Corvane "), -1);
    vehicle.CustomName[0] = "Mine";
    EXPECT_EQ(vehicle.FindPreset("Mine"), -1);  // not in use yet
    vehicle.PresetsUsed = 1;
    EXPECT_EQ(vehicle.FindPreset("Mine"), 0);
    EXPECT_EQ(vehicle.FiguresOfCar(12)[21], 1.0F);  // the Gnat's reverse, between efficiency and area
}

TEST(CarRecord, HoldsItsWholeNumbersRoundedHalfToEven) {
    const auto recordWith = [](std::initializer_list<CarField> fields, float figure) {
        CarFigures figures{};
        for (const CarField field : fields) figures[static_cast<std::size_t>(field)] = figure;
        return RecordOf(figures);
    };
    for (const auto& [rim, rear] :
         {std::pair(13.5F, 14), std::pair(14.5F, 14), std::pair(1e9F, 32767), std::pair(-1e9F, -32768)}) {
        const CarRecord car = recordWith({CarField::FWS, CarField::RWS}, rim);
        EXPECT_EQ(car.FWS, rim);
        EXPECT_EQ(car.RWS, rear);
    }
    const CarRecord car = recordWith({CarField::Mass, CarField::FMaxPressure, CarField::RMaxPressure}, 250.5F);
    EXPECT_EQ(car.Mass, 250);
    EXPECT_EQ(car.RMaxPressure, 250);
    EXPECT_EQ(car.FMaxPressure, 250.5F);
    EXPECT_EQ(recordWith({CarField::IdleRPM}, 70000.6F).IdleRPM, 70001);  // more than 16 bits hold
    EXPECT_EQ(recordWith({CarField::NumGears}, std::numeric_limits<float>::quiet_NaN()).NumGears, 0);
}

}  // namespace
}  // namespace zolv
