#include "shell/info_page.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "fields/windows.h"
#include "support/zolv_test.h"
#include "units/unit_catalogue.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

struct InfoCase {
    const char* name;
    const char* car;
    std::map<int, int> unitRows;  // quantity of the catalogue to row; 0 for the others
    std::map<std::string, std::string> shown;
};

void PrintTo(const InfoCase& row, std::ostream* out) { *out << row.name; }

class InfoPage : public ZolvTest {
protected:
    InfoPage() { Start(); }
};

class Info : public InfoPage, public testing::WithParamInterface<InfoCase> {};

TEST_P(Info, ShowsTheCar) {
    Zolv.Select_Car.SetText(GetParam().car);
    for (const auto& [quantity, row] : GetParam().unitRows) SelectUnit(units, quantity, row);
    ShowCarInfo();
    for (const auto& [field, text] : GetParam().shown) EXPECT_EQ(Shown(field), text) << field;
}

constexpr int kDistance = 1, kPressure = 3, kMass = 4, kForce = 5, kPower = 8, kTorque = 9, kP2W = 10, kT2W = 11;

// Worked out from the data sheets of the cars with 40-digit decimals. Halves that show the rounding: 104.5 kW is 104,
// and a tyre of 0.185 m is 0.18.
const InfoCase kCars[] = {
    {"MetricUnits",
     "Pell S",
     {},
     {{"Info_Power", "86 kW @ 7033 rpm"},
      {"Info_Torque", "130 Nm @ 5456 rpm"},
      {"Info_DT", "Front Wheel Drive"},
      {"Info_Gears", "5"},
      {"Info_Mass", "1027 kg"},
      {"Info_Weight", "10071 N"},  // 10071.43
      {"Info_WD", "56.1% Front /\r\n43.9% Rear"},
      {"Info_P2W", "84 kW/t"},   // 83.739
      {"Info_T2W", "127 Nm/t"},  // 126.58
      {"Info_TPF", "50%"},
      {"Info_TPR", "50%"},
      {"Info_THF", "0.57 m"},  // 0.565807
      {"Info_THR", "0.57 m"},
      {"Info_TWF", "0.18 m"},
      {"Info_TWR", "0.18 m"},
      {"Info_RimF", "0.38 m"},  // 0.380807
      {"Info_RimR", "0.38 m"},
      {"Info_TrackF", "1.38 m"},
      {"Info_TrackR", "1.36 m"},
      {"Info_WB", "2.33 m"},
      {"Info_PRF", "126-380 kPa"},
      {"Info_PRR", "106-320 kPa"},
      {"Info_Efficiency", "80%"}}},
    {"InchesAndPounds",
     "Pell S",
     {{kDistance, 3}, {kPressure, 4}, {kMass, 2}, {kForce, 4}, {kPower, 1}, {kTorque, 2}, {kP2W, 6}, {kT2W, 5}},
     {{"Info_Power", "117 PS @ 7033 rpm"},      // 116.93
      {"Info_Torque", "96 lbf ft @ 5456 rpm"},  // 95.85
      {"Info_Mass", "2264 lb"},                 // 2264.15
      {"Info_Weight", "2264 lbf"},
      {"Info_P2W", "19.6 lb/hp"},     // 19.633
      {"Info_T2W", "0.51 lb in/lb"},  // 0.5080
      {"Info_THF", "22.3 in"},        // 22.287
      {"Info_TWF", "7.3 in"},         // 7.287
      {"Info_RimF", "15 in"},
      {"Info_TrackF", "54.4 in"},       // 54.358
      {"Info_TrackR", "53.6 in"},       // 53.571
      {"Info_WB", "91.9 in"},           // 91.897
      {"Info_PRF", "18.3-55.1 psi"},    // 18.256, 55.058
      {"Info_PRR", "15.4-46.4 psi"}}},  // 15.358, 46.365
    {"UnlikeAxles",
     "Ondo T",
     {{kDistance, 1}, {kPressure, 2}, {kMass, 1}, {kForce, 1}, {kTorque, 1}, {kP2W, 5}, {kT2W, 1}},
     {{"Info_Power", "104 kW @ 6017 rpm"},
      {"Info_Torque", "19 kgfm @ 4531 rpm"},  // 19.008
      {"Info_DT", "Rear Wheel Drive"},
      {"Info_Mass", "1.24 t"},
      {"Info_Weight", "12.2 kN"},  // 12.199
      {"Info_WD", "50.5% Front /\r\n49.5% Rear"},
      {"Info_P2W", "1.6 hp/slug"},  // 1.644
      {"Info_T2W", "0.15 Nm/kg"},   // 0.1498
      {"Info_TPF", "55%"},
      {"Info_TPR", "50%"},
      {"Info_THF", "61 cm"},    // 60.969
      {"Info_THR", "62.6 cm"},  // 62.619
      {"Info_TWF", "18.5 cm"},
      {"Info_TWR", "22 cm"},
      {"Info_RimF", "40.6 cm"},  // 40.619
      {"Info_RimR", "40.6 cm"},
      {"Info_TrackF", "156 cm"},
      {"Info_TrackR", "155 cm"},
      {"Info_PRF", "1.22-3.64 bar"},
      {"Info_PRR", "1.12-3.34 bar"},
      {"Info_Efficiency", "82%"}}},
    {"RimsByTheInchOfLengths",  // 482.355 mm; 482.6 by the inch of the ruler
     "Ondo R",
     {{kDistance, 2}},
     {{"Info_RimF", "482 mm"}, {"Info_RimR", "457 mm"}, {"Info_TWF", "335 mm"}}},
};
INSTANTIATE_TEST_SUITE_P(ByHand, Info, testing::ValuesIn(kCars),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(InfoPage, UnknownDrivetrainLeavesTheField) {
    vehicle.CurrentCar.DrivetrainType = 3;
    ShowCarInfo();
    EXPECT_EQ(Zolv.Info_DT.Caption(), "Front Wheel Drive");
}

TEST_F(InfoPage, NoMassHasNoRatio) {
    vehicle.CurrentCar.Mass = 0;
    ShowCarInfo();
    EXPECT_EQ(Zolv.Info_P2W.Caption(), "N/A");
    EXPECT_EQ(Zolv.Info_T2W.Caption(), "N/A");
}

struct PictureCase {
    const char* name;
    const char* car;
    std::vector<std::pair<const char*, const char*>> files;  // name and content
    const char* shown;                                       // the picture stays and a message comes where empty
};

void PrintTo(const PictureCase& row, std::ostream* out) { *out << row.name; }

class CarPicture : public InfoPage, public testing::WithParamInterface<PictureCase> {};

TEST_P(CarPicture, IsTheCarsOwnOrTheUnknownOne) {
    namespace fs = std::filesystem;
    fs::remove(InFolder("unknown.jpg"));
    fs::create_directory(InFolder("sub"));
    for (const auto& [name, content] : GetParam().files) WriteContent(InFolder(name), content);
    Zolv.Select_Car.OnClick = [] {};
    Zolv.Select_Car.Add(GetParam().car);
    Zolv.Select_Car.SetText(GetParam().car);
    Zolv.Info_CarPic.SetPath("as before");
    ShowCarPicture();
    const std::string shown = GetParam().shown;
    EXPECT_EQ(Zolv.Info_CarPic.Path(), shown.empty() ? "as before" : InFolder(shown));
    if (shown.empty()) ExpectMessage("Unknown car picture is missing.");
}

const PictureCase kPictures[] = {
    {"Own", "Tumbler", {{"Tumbler.jpg", "x"}, {"unknown.jpg", "x"}}, "Tumbler.jpg"},
    {"OfAPreset", "My own car", {{"My own car.jpg", "x"}}, "My own car.jpg"},
    {"EmptyIsMissing", "Tumbler", {{"Tumbler.jpg", ""}, {"unknown.jpg", "x"}}, "unknown.jpg"},
    {"NoneOfItsOwn", "Tumbler", {{"unknown.jpg", "x"}}, "unknown.jpg"},
    {"NotInAnotherFolder", "sub/car", {{"sub/car.jpg", "x"}, {"unknown.jpg", "x"}}, "unknown.jpg"},
    {"NameForNoFile", "a\\b", {{"a\\b.jpg", "x"}, {"unknown.jpg", "x"}}, "unknown.jpg"},
    {"NoneAtAll", "Tumbler", {}, ""},
};
INSTANTIATE_TEST_SUITE_P(Files, CarPicture, testing::ValuesIn(kPictures),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zolv
