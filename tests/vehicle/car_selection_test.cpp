#include "vehicle/car_selection.h"

#include <tuple>

#include "fields/guards.h"
#include "support/zolv_test.h"
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

TEST_F(CarSelection, MovesPressuresIntoTheRangeOfTheCar) {
    Set("Select_PressureF", "300");
    Set("Select_PressureR", "110");
    Set("Select_Car", "Gnat 5");
    EXPECT_EQ(Shown({"Select_PressureF", "Select_PressureR", "Label_PressureF"}), "152|110|152 kPa|");
    Set("Select_Car", "Pell S");
    EXPECT_EQ(Shown("Select_PressureF"), "152");
    EXPECT_EQ(Zolv.Select_PressureF.Min(), 126);
    EXPECT_EQ(Zolv.Select_PressureR.Max(), 320);
}

// From a separate calculation in Python: rims go through 0.393900787 inches a centimetre, rear sizes through a single.
TEST_F(CarSelection, WorksOutTheTyreSizes) {
    Set("Select_Car", "Mote 900");  // front and rear alike
    EXPECT_NEAR(vehicle.Tyres.FrontUnloadedRadius, 0.23232262026427486, 1e-15);
    EXPECT_NEAR(vehicle.Tyres.FrontMaxDeformation, 0.08, 1e-15);
    EXPECT_EQ(vehicle.Tyres.RearUnloadedRadius, 0.23232261836528778);
    EXPECT_EQ(vehicle.Tyres.RearMaxDeformation, 0.07999999821186066);
    Set("Select_Car", "Ondo R");
    EXPECT_NEAR(vehicle.Tyres.FrontUnloadedRadius, 0.341677486078613, 1e-15);
    EXPECT_NEAR(vehicle.Tyres.FrontMaxDeformation, 0.10050000399351117, 1e-15);
    EXPECT_EQ(vehicle.Tyres.RearUnloadedRadius, 0.3457339406013489);
    EXPECT_EQ(vehicle.Tyres.RearMaxDeformation, 0.11725001037120819);
}

TEST_F(CarSelection, LeavesTheSetUpInPlace) {
    Set("Gear3", "1.65");
    Set("B_Speed4", "41");
    Set("Select_FrontWingAngle", "3");
    Set("Select_Tyres", "Slick R2");
    Set("Select_Car", "Mote R");
    Set("Select_Car", "Series Mu");
    EXPECT_EQ(Shown({"Gear3", "Select_Ratio3", "B_Speed4", "Select_FrontWingAngle", "WingAngleFront", "MU"}),
              "1.65|1650|41|3|3 degrees|1.6|");
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

TEST_F(CarSelection, RunsTheWholeChainOnce) {
    int runs = 0;
    const Hook wired = vehicleFollowUps.CarChanged;
    vehicleFollowUps.CarChanged = [&] {
        ++runs;
        wired();
    };
    Set("Select_Car", "Wisp 6");
    EXPECT_EQ(runs, 1);
    // From a separate calculation in Python, as on both panels.
    EXPECT_EQ(Shown({"Info_Mass", "Aero_TopSpeed", "RPM1", "B_RPM1"}), "624 kg|63.8 m/s|9951 rpm|9272 rpm|");
    EXPECT_FALSE(Zolv.TorquePowerPlot.Drawing().Operations().empty());
}

}  // namespace
}  // namespace zolv
