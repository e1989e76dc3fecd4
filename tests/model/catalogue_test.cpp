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

struct FieldSum {
    const char* name;
    double sum, weighted;  // each car's figure once, and times its number from 1
};

// Sums over the cars, from a separate calculation in Python; in the order of the record. Two
// figures that changed places, or one that is wrong, change at least one of the two.
// clang-format off
constexpr FieldSum kSums[] = {
    {"Power", 3932, 48900.8},                   {"PowerRPM", 146345, 1576775},
    {"Torque", 5604.4, 66203.2},                {"TorqueRPM", 107770, 1184579},
    {"IdleRPM", 26000, 297500},                 {"DrivetrainType", 16, 182},
    {"NumGears", 105, 1098},                    {"Mass", 17906, 174962},
    {"WeightDist", 9.429, 92.33},               {"Cd", 6.5098, 60.695},
    {"FTW", 4463, 48994},                       {"FTP", 8.5, 81.45},
    {"FWS", 291, 2946},                         {"FTrack", 27.781, 279.678},
    {"RTW", 4923, 54804},                       {"RTP", 7.95, 75.55},
    {"RWS", 290, 2928},                         {"RTrack", 27.451, 276.213},
    {"Wheelbase", 46.17, 471.183},              {"UnsprungMass", 1223.026, 13411.662},
    {"Efficiency", 15.56, 157.9},               {"Reverse", 79.65, 748.25},
    {"FrontalArea", 32.135, 319.345},           {"Cl", 0, 0},
    {"FMinPressure", 1751, 15724},              {"FMaxPressure", 5247, 47130},
    {"RMinPressure", 1675, 15138},              {"RMaxPressure", 5023, 45428},
    {"UndertrayType", 12, 200},                 {"FrontWingType", 16, 270},
    {"RearWingType", 12, 200},
};
// clang-format on
static_assert(std::size(kSums) == kCarFields);

TEST(Catalogue, HoldsThePrintedFigures) {
    vehicle = {};
    InitCatalogue();
    for (std::size_t field = 0; field < kCarFields; ++field) {
        double sum = 0;
        double weighted = 0;
        for (std::size_t car = 0; car < kCars; ++car) {
            const double figure = vehicle.CarData[field * kCars + car];  // field by field
            sum += figure;
            weighted += static_cast<double>(car + 1) * figure;
        }
        EXPECT_NEAR(sum, kSums[field].sum, 1e-4) << kSums[field].name;
        EXPECT_NEAR(weighted, kSums[field].weighted, 1e-3) << kSums[field].name;
    }
}

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
