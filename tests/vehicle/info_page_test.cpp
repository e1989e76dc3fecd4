#include "vehicle/info_page.h"

#include <array>
#include <filesystem>
#include <string>
#include <utility>

#include "fields/windows.h"
#include "support/zolv_test.h"
#include "units/unit_catalogue.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

class InfoPage : public StartedTest {
protected:
    /// @param rows  the unit of each quantity: distance, pressure, mass, force, power, torque, P2W, T2W
    static void Show(const char* car, const std::array<int, 8>& rows) {
        constexpr int kQuantity[] = {1, 3, 4, 5, 8, 9, 10, 11};  // in the catalogue of units
        for (std::size_t i = 0; i < rows.size(); ++i) SelectUnit(units, kQuantity[i], rows[i]);
        Zolv.Select_Car.SetText(car);
    }
};

// Worked out from the data sheets of the cars with 40-digit decimals. A script has the page in the units of a start.
TEST_F(InfoPage, ShowsTheCarInItsUnits) {
    Show("Pell S", {3, 4, 2, 4, 1, 2, 6, 5});
    EXPECT_EQ(Shown({"Info_Power", "Info_Torque", "Info_Mass", "Info_Weight", "Info_P2W", "Info_T2W"}),
              "117 PS @ 7033 rpm|96 lbf ft @ 5456 rpm|2264 lb|2264 lbf|19.6 lb/hp|0.51 lb in/lb|");
    EXPECT_EQ(
        Shown({"Info_THF", "Info_TWF", "Info_RimF", "Info_TrackF", "Info_TrackR", "Info_WB", "Info_PRF", "Info_PRR"}),
        "22.3 in|7.3 in|15 in|54.4 in|53.6 in|91.9 in|18.3-55.1 psi|15.4-46.4 psi|");
    Show("Ondo T", {1, 2, 1, 1, 0, 1, 5, 1});  // 104.5 kW are 104
    EXPECT_EQ(
        Shown({"Info_Power", "Info_Torque", "Info_DT", "Info_Mass", "Info_Weight", "Info_WD", "Info_P2W", "Info_T2W"}),
        "104 kW @ 6017 rpm|19 kgfm @ 4531 rpm|Rear Wheel Drive|1.24 t|12.2 kN|50.5% Front /\r\n49.5% Rear|"
        "1.6 hp/slug|0.15 Nm/kg|");
    EXPECT_EQ(Shown({"Info_TPF", "Info_TPR", "Info_THF", "Info_THR", "Info_TWF", "Info_TWR", "Info_RimF", "Info_RimR"}),
              "55%|50%|61 cm|62.6 cm|18.5 cm|22 cm|40.6 cm|40.6 cm|");
    EXPECT_EQ(Shown({"Info_TrackF", "Info_TrackR", "Info_PRF", "Info_PRR", "Info_Efficiency"}),
              "156 cm|155 cm|1.22-3.64 bar|1.12-3.34 bar|82%|");
    Show("Ondo R", {2, 0, 0, 0, 0, 0, 0, 0});  // rims of 482.355 mm; 482.6 by the inch of the ruler
    EXPECT_EQ(Shown({"Info_RimF", "Info_RimR", "Info_TWF"}), "482 mm|457 mm|335 mm|");
}

TEST_F(InfoPage, NoMassHasNoRatio) {
    vehicle.CurrentCar.Mass = 0;
    ShowCarInfo();
    EXPECT_EQ(Shown({"Info_P2W", "Info_T2W"}), "N/A|N/A|");
}

TEST_F(InfoPage, ThePictureIsTheCarsOwnOrTheUnknownOne) {
    std::filesystem::create_directory("sub");
    Zolv.Select_Car.OnClick = [] {};
    for (const auto& [car, shown] : {std::pair("Tumbler", "Tumbler.jpg"), std::pair("My own car", "My own car.jpg"),
                                     std::pair("Mote R", "unknown.jpg"),  // has none
                                     std::pair("sub/car", "unknown.jpg"), std::pair("a\\b", "unknown.jpg")}) {
        WriteContent(car + std::string(".jpg"), car == std::string("Mote R") ? "" : "x");
        Zolv.Select_Car.Add(car);
        Zolv.Select_Car.SetText(car);
        ShowCarPicture();
        EXPECT_EQ(Zolv.Info_CarPic.Path(), InFolder(shown)) << car;
    }
    std::filesystem::remove("unknown.jpg");
    Zolv.Info_CarPic.SetPath("as before");
    ShowCarPicture();
    EXPECT_EQ(Zolv.Info_CarPic.Path(), "as before");
    ExpectMessage("Unknown car picture is missing.");
}

}  // namespace
}  // namespace zolv
