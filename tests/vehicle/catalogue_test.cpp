#include "vehicle/catalogue.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "vehicle/car_record.h"
#include "vehicle/car_selection.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

struct FieldSum {
    const char* name;
    double sum, weighted;  // each car's figure once, and times its number from 1
};

// Sums over the cars of the printed tables, from a separate calculation in Python; in the order of the record. Two
// figures that changed places, or one that is wrong, change at least one of the two.
constexpr FieldSum kSums[] = {
    {"Power", 3932, 48900.8},
    {"PowerRPM", 146345, 1576775},
    {"Torque", 5604.4, 66203.2},
    {"TorqueRPM", 107770, 1184579},
    {"IdleRPM", 26000, 297500},
    {"DrivetrainType", 16, 182},
    {"NumGears", 105, 1098},
    {"Mass", 17906, 174962},
    {"WeightDist", 9.429, 92.33},
    {"Cd", 6.5098, 60.695},
    {"FTW", 4463, 48994},
    {"FTP", 8.5, 81.45},
    {"FWS", 291, 2946},
    {"FTrack", 27.781, 279.678},
    {"RTW", 4923, 54804},
    {"RTP", 7.95, 75.55},
    {"RWS", 290, 2928},
    {"RTrack", 27.451, 276.213},
    {"Wheelbase", 46.17, 471.183},
    {"UnsprungMass", 1223.026, 13411.662},
    {"Efficiency", 15.56, 157.9},
    {"Reverse", 79.65, 748.25},
    {"FrontalArea", 32.135, 319.345},
    {"Cl", 0, 0},
    {"FMinPressure", 1751, 15724},
    {"FMaxPressure", 5247, 47130},
    {"RMinPressure", 1675, 15138},
    {"RMaxPressure", 5023, 45428},
    {"UndertrayType", 12, 200},
    {"FrontWingType", 16, 270},
    {"RearWingType", 12, 200},
};
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
    EXPECT_EQ(vehicle.FindCar("Mote 900"), 0);
    EXPECT_EQ(vehicle.FindCar("Gnat 5"), 12);
    EXPECT_EQ(vehicle.FindCar("Corvane R"), 18);
    EXPECT_EQ(vehicle.FindCar("corvane r"), -1);
    EXPECT_EQ(vehicle.FindCar("Corvane "), -1);
    vehicle.CustomName[0] = "Mine";
    EXPECT_EQ(vehicle.FindPreset("Mine"), -1);  // not in use yet
    vehicle.PresetsUsed = 1;
    EXPECT_EQ(vehicle.FindPreset("Mine"), 0);
    EXPECT_EQ(vehicle.FiguresOfCar(12)[21], 1.0F);  // the Gnat's reverse, between efficiency and area
}

struct RimCase {
    const char* name;
    float rim;
    float front;
    int rear;
};
class Rims : public testing::TestWithParam<RimCase> {};

TEST_P(Rims, AreKeptInFrontAndRoundedInTheRear) {
    CarFigures figures{};
    figures[static_cast<std::size_t>(CarField::FWS)] = GetParam().rim;
    figures[static_cast<std::size_t>(CarField::RWS)] = GetParam().rim;
    EXPECT_EQ(RecordOf(figures).FWS, GetParam().front);
    EXPECT_EQ(RecordOf(figures).RWS, GetParam().rear);
}

INSTANTIATE_TEST_SUITE_P(HalfToEven, Rims,
                         testing::Values(RimCase{"Up", 13.5F, 13.5F, 14}, RimCase{"Down", 14.5F, 14.5F, 14},
                                         RimCase{"Beyond16Bits", 1e9F, 1e9F, 32767},
                                         RimCase{"BelowThem", -1e9F, -1e9F, -32768}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(CarRecord, HoldsItsOtherWholeNumbersRounded) {
    CarFigures figures{};
    figures[static_cast<std::size_t>(CarField::Mass)] = 1000.5F;
    figures[static_cast<std::size_t>(CarField::IdleRPM)] = 70000.6F;  // more than 16 bits hold
    figures[static_cast<std::size_t>(CarField::RMaxPressure)] = 250.5F;
    figures[static_cast<std::size_t>(CarField::FMaxPressure)] = 250.5F;
    figures[static_cast<std::size_t>(CarField::NumGears)] = std::numeric_limits<float>::quiet_NaN();
    const CarRecord car = RecordOf(figures);
    EXPECT_EQ(car.Mass, 1000);
    EXPECT_EQ(car.IdleRPM, 70001);
    EXPECT_EQ(car.RMaxPressure, 250);
    EXPECT_EQ(car.FMaxPressure, 250.5F);
    EXPECT_EQ(car.NumGears, 0);
}

}  // namespace
}  // namespace zolv
