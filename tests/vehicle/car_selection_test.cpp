#include "vehicle/car_selection.h"

#include "fields/guards.h"
#include "support/zolv_test.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

using Names = std::vector<std::string>;

class CarSelection : public StartedTest {};

void ExpectVisible(const Names& names, bool visible) {
    for (const std::string& name : names) {
        for (const Field* field : FindFields(name)) EXPECT_EQ(field->Visible(), visible) << name;
        EXPECT_EQ(FindFields(name).size(), 1U) << name;
    }
}

/// The row of a gear, 3 to 6, on both panels.
Names RowOf(int gear) {
    Names row;
    for (const char* name : {"Gear", "RPM", "Speed", "Select_Ratio", "Torque", "B_Gear", "B_RPM", "B_Speed",
                             "Label_SPD", "Select_Speed", "B_Torque"}) {
        row.push_back(name + std::to_string(gear));
    }
    for (const char* name : {"RAC", "B_RAC"}) row.push_back(name + std::to_string(gear - 1));
    for (const int label : {gear + 7, gear + 22}) row.push_back("GearingLabel(" + std::to_string(label) + ')');
    return row;
}

TEST_F(CarSelection, ShowsTheGearsThatTheCarHas) {
    const auto expectGears = [](int gears) {
        ExpectVisible({"Gear1", "Gear2", "RAC1", "B_Speed2", "Label_SPD1"}, true);
        for (int gear = 3; gear <= 6; ++gear) ExpectVisible(RowOf(gear), gear <= gears);
    };
    for (const int gears : {4, 6, 5, 2}) {
        SCOPED_TRACE(gears);
        UseCustomCar("Pell S", {{CarField::NumGears, static_cast<double>(gears)}});
        expectGears(gears);
    }
}

TEST_F(CarSelection, HidesReverseOfACarWithoutIt) {
    const Names row{"GearingLabel(14)", "GearR", "RPMR",    "SpeedR",  "GearingLabel(29)",
                    "GearR2",           "RPMR2", "SpeedR2", "TorqueR", "B_TorqueR"};
    Set("Select_Car", "Gnat 5");
    ExpectVisible(row, false);
    Set("Select_Car", "Wisp 4");
    ExpectVisible(row, true);
    EXPECT_EQ(Shown({"GearR", "GearR2"}), "3.35|3.35|");
}

TEST_F(CarSelection, ShowsTheFittingsThatTheCarHas) {
    const Names undertray{"AeroPanel(5)"};
    const Names front{"AeroPanel(6)", "Select_FrontWingAngle", "WingAngleFront", "AeroLabel(1)"};
    const Names rear{"AeroPanel(7)", "Select_RearWingAngle", "WingAngleRear", "AeroLabel(2)"};
    const Names speed{"TyreLabel(0)", "AeroSpeed_TyreTab", "Select_AeroSpeed_TyreTab"};
    for (const auto& [under, first, last] :
         {std::tuple(2.0, 2.0, 2.0), std::tuple(0.0, 0.0, 0.0), std::tuple(1.0, 0.0, 0.0), std::tuple(0.0, 4.0, 0.0),
          std::tuple(0.0, 0.0, 3.0)}) {
        UseCustomCar(
            "Series Lo",
            {{CarField::UndertrayType, under}, {CarField::FrontWingType, first}, {CarField::RearWingType, last}});
        ExpectVisible(undertray, under != 0);
        ExpectVisible(front, first != 0);
        ExpectVisible(rear, last != 0);
        ExpectVisible(speed, under + first + last != 0);
        ExpectVisible({"AeroPanel(0)", "AeroPanel(4)", "Select_AeroSpeed"}, true);
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
    EXPECT_NEAR(vehicle.FrontUnloadedRadius, 0.23232262026427486, 1e-15);
    EXPECT_NEAR(vehicle.FrontMaxDeformation, 0.08, 1e-15);
    EXPECT_EQ(vehicle.RearUnloadedRadius, 0.23232261836528778);
    EXPECT_EQ(vehicle.RearMaxDeformation, 0.07999999821186066);
    Set("Select_Car", "Ondo R");
    EXPECT_NEAR(vehicle.FrontUnloadedRadius, 0.341677486078613, 1e-15);
    EXPECT_NEAR(vehicle.FrontMaxDeformation, 0.10050000399351117, 1e-15);
    EXPECT_EQ(vehicle.RearUnloadedRadius, 0.3457339406013489);
    EXPECT_EQ(vehicle.RearMaxDeformation, 0.11725001037120819);
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
    const Hook wired = vehicle.CarChanged;
    vehicle.CarChanged = [&] {
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
