#include "vehicle/car_selection.h"

#include <filesystem>
#include <tuple>
#include <utility>

#include "fields/guards.h"
#include "support/zolv_test.h"
#include "text/texts.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

class CarSelection : public StartedTest {};

/// Which of the fields are visible, "yn".
std::string Visible(std::initializer_list<const char*> names) {
    std::string visible;
    for (const char* name : names) visible += FindFields(name).at(0)->Visible() ? 'y' : 'n';
    return visible;
}

// A script has all fields of the gears, of reverse and of the fittings, for cars that are built in.
TEST_F(CarSelection, ShowsWhatACarOfOnesOwnHas) {
    UseCustomCar("Pell S", {{CarField::NumGears, 2}, {CarField::Reverse, 1.0001}});
    EXPECT_EQ(Visible({"Gear2", "Gear3", "B_RPM6", "RAC1", "RAC2", "GearR"}), "ynnyny");
    for (const auto& [under, front, rear, visible] :
         {std::tuple(1.0, 0.0, 0.0, "ynny"), std::tuple(0.0, 4.0, 0.0, "nyny"), std::tuple(0.0, 0.0, 3.0, "nnyy"),
          std::tuple(0.0, 0.0, 0.0, "nnnn")}) {
        UseCustomCar(
            "Series Lo",
            {{CarField::UndertrayType, under}, {CarField::FrontWingType, front}, {CarField::RearWingType, rear}});
        EXPECT_EQ(Visible({"AeroPanel(5)", "AeroPanel(6)", "AeroPanel(7)", "TyreLabel(0)"}), visible);
    }
}

TEST_F(CarSelection, CalculatesNothingDuringTheLoad) {
    const std::string before = Shown("RPM1");
    guards.Loading = true;
    Set("Select_Car", "Series Mu");
    EXPECT_EQ(vehicle.CurrentCar.PowerRPM, 19076);
    EXPECT_EQ(Shown("RPM1"), before);
    guards.Loading = false;
    Set("Select_Car", "Series Mu");
    EXPECT_NE(Shown("RPM1"), before);
}

TEST_F(CarSelection, FindsABuiltInCarBeforeAPresetOfItsName) {
    vehicle.StorePreset(vehicle.PresetsUsed++, "Gnat 5", vehicle.FiguresOfCar(0));
    Set("Select_Car", "Gnat 5");
    EXPECT_EQ(vehicle.CurrentCar.Mass, 298);
}

// A car without a file of its own, an empty one, and names that no file has show the unknown car.
TEST_F(CarSelection, ThePictureIsTheCarsOwnOrTheUnknownOne) {
    std::filesystem::create_directory("sub");
    std::filesystem::create_directory("a");
    for (const auto& [car, shown] :
         {std::pair("Tumbler", "Tumbler.jpg"), std::pair("My own car", "My own car.jpg"),
          std::pair("Mote R", "unknown.jpg"), std::pair("sub/car", "unknown.jpg"), std::pair("a\\b", "unknown.jpg")}) {
        WriteContent(car + std::string(".jpg"), car == std::string("Mote R") ? "" : "x");
        if (vehicle.FindCar(car) < 0) {
            Set("NewCar", "Gnat 5");
            Set("NewName", car);
            CustomPresets.AddCar.Click();
            ExpectMessage(testing::StartsWith("Added"));
        }
        Set("Select_Car", car);
        EXPECT_EQ(Shown("Info_CarPic"), InFolder(shown)) << car;
    }
}

TEST_F(CarSelection, APresetIsUpdatedOnceChosenAndTakesItsDrivetrainByTheWordsInForce) {
    CustomPresets.EditUpdate.Click();
    EXPECT_NE(TakeMessage(), "") << "none is chosen";
    Set("NewName", "Mine");
    Set("NewCar", "Corvane");
    texts.TextRWD = "Heckantrieb";  // a language was loaded behind the list
    CustomPresets.AddCar.Click();
    ExpectMessage("You must select a drivetrain.");
}

}  // namespace
}  // namespace zolv
