#include "vehicle/car_selection.h"

#include "fields/guards.h"
#include "support/zolv_test.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

using Names = std::vector<std::string>;

class CarSelection : public ZolvTest {
protected:
    CarSelection() { Start(); }
};

void ExpectVisible(const Names& names, bool visible) {
    for (const std::string& name : names) {
        for (const Field* field : FindFields(name)) EXPECT_EQ(field->Visible(), visible) << name;
        EXPECT_EQ(FindFields(name).size(), 1U) << name;
    }
}

/// The row of a gear, 3 to 6, on both panels.
Names RowOf(int gear) {
    const std::string own = std::to_string(gear);
    const std::string below = std::to_string(gear - 1);
    return {"GearingLabel(" + std::to_string(gear + 7) + ')',
            "GearingLabel(" + std::to_string(gear + 22) + ')',
            "Gear" + own,
            "RPM" + own,
            "Speed" + own,
            "RAC" + below,
            "Select_Ratio" + own,
            "Torque" + own,
            "B_Gear" + own,
            "B_RPM" + own,
            "B_Speed" + own,
            "B_RAC" + below,
            "Label_SPD" + own,
            "Select_Speed" + own,
            "B_Torque" + own};
}

TEST_F(CarSelection, ShowsTheGearsThatTheCarHas) {
    const auto expectGears = [](int gears) {
        ExpectVisible({"Gear1", "Gear2", "RAC1", "B_Speed2", "Label_SPD1"}, true);
        for (int gear = 3; gear <= 6; ++gear) ExpectVisible(RowOf(gear), gear <= gears);
    };
    for (const auto& [car, gears] : {std::pair("Mote 900", 4), std::pair("Pell R", 6), std::pair("Pell S", 5)}) {
        SCOPED_TRACE(car);
        Set("Select_Car", car);
        expectGears(gears);
    }
    UseCustomCar("Pell S", {{CarField::NumGears, 2}});
    expectGears(2);
}

TEST_F(CarSelection, HidesReverseOfACarWithoutIt) {
    const Names row{"GearingLabel(14)", "GearR", "RPMR",    "SpeedR",  "GearingLabel(29)",
                    "GearR2",           "RPMR2", "SpeedR2", "TorqueR", "B_TorqueR"};
    Set("Select_Car", "Gnat 5");
    ExpectVisible(row, false);
    Set("Select_Car", "Wisp 4");
    ExpectVisible(row, true);
    EXPECT_EQ(Shown("GearR"), "3.35");
    EXPECT_EQ(Shown("GearR2"), "3.35");
    UseCustomCar("Wisp 4", {{CarField::Reverse, 1.0001}});
    ExpectVisible(row, true);
}

TEST_F(CarSelection, ShowsTheFittingsThatTheCarHas) {
    const Names undertray{"AeroPanel(5)"};
    const Names front{"AeroPanel(6)", "Select_FrontWingAngle", "WingAngleFront", "AeroLabel(1)"};
    const Names rear{"AeroPanel(7)", "Select_RearWingAngle", "WingAngleRear", "AeroLabel(2)"};
    const Names speed{"TyreLabel(0)", "AeroSpeed_TyreTab", "Select_AeroSpeed_TyreTab"};
    struct Row {
        const char* name;
        double undertray, front, rear;
    };
    for (const Row& row : {Row{"All", 2, 2, 2}, Row{"None", 0, 0, 0}, Row{"UndertrayAlone", 1, 0, 0},
                           Row{"FrontWingAlone", 0, 4, 0}, Row{"RearWingAlone", 0, 0, 3}}) {
        SCOPED_TRACE(row.name);
        UseCustomCar("Series Lo", {{CarField::UndertrayType, row.undertray},
                                   {CarField::FrontWingType, row.front},
                                   {CarField::RearWingType, row.rear}});
        ExpectVisible(undertray, row.undertray != 0);
        ExpectVisible(front, row.front != 0);
        ExpectVisible(rear, row.rear != 0);
        ExpectVisible(speed, row.undertray + row.front + row.rear != 0);
        ExpectVisible({"AeroPanel(0)", "AeroPanel(4)", "Select_AeroSpeed"}, true);
    }
}

TEST_F(CarSelection, MovesPressuresIntoTheRangeOfTheCar) {
    Set("Select_PressureF", "300");
    Set("Select_PressureR", "110");
    Set("Select_Car", "Gnat 5");
    EXPECT_EQ(Shown("Select_PressureF"), "152");
    EXPECT_EQ(Shown("Select_PressureR"), "110");
    EXPECT_EQ(Shown("Label_PressureF"), "152 kPa");
    Set("Select_Car", "Pell S");
    EXPECT_EQ(Shown("Select_PressureF"), "152");
    EXPECT_EQ(Zolv.Select_PressureF.Min(), 126);
    EXPECT_EQ(Zolv.Select_PressureF.Max(), 380);
    EXPECT_EQ(Zolv.Select_PressureR.Min(), 106);
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
    for (const auto& [name, text] :
         {std::pair("Gear3", "1.65"), std::pair("Select_Ratio3", "1650"), std::pair("B_Speed4", "41"),
          std::pair("Select_FrontWingAngle", "3"), std::pair("WingAngleFront", "3 degrees"), std::pair("MU", "1.6")}) {
        EXPECT_EQ(Shown(name), text) << name;
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

TEST_F(CarSelection, RunsTheWholeChainOnce) {
    int runs = 0;
    const Hook wired = vehicle.CarChanged;
    vehicle.CarChanged = [&] {
        ++runs;
        wired();
    };
    Set("Select_Car", "Wisp 6");
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(Shown("Info_Mass"), "624 kg");
    EXPECT_EQ(Shown("Aero_TopSpeed"), "63.8 m/s");  // from a separate calculation in Python, as on both panels
    EXPECT_EQ(Shown("RPM1"), "9951 rpm");
    EXPECT_EQ(Shown("B_RPM1"), "9272 rpm");
    EXPECT_FALSE(Zolv.TorquePowerPlot.Drawing().Operations().empty());
}

}  // namespace
}  // namespace zolv
