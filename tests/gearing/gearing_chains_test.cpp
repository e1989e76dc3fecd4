#include "fields/guards.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

class GearingChains : public StartedTest {};

TEST_F(GearingChains, ANumberBeyondTheLimitIsRewrittenAlsoWhereTheSliderStands) {
    for (const char* typed : {"9", "8", "77777"}) {
        Set("Gear1", typed);
        EXPECT_EQ(Shown("Gear1"), "7.5");
    }
    Set("Gear6", "0");
    Set("Gear6", "");
    EXPECT_EQ(Shown({"Gear6", "Select_Ratio6"}), "0.5|500|");
    EXPECT_FALSE(guards.Busy);
}

TEST_F(GearingChains, ACarThatCannotBeSaysNothingThatIsNoNumber) {
    const std::vector<ChangedFigure> kCases[] = {
        {{CarField::Mass, 0}},
        {{CarField::Wheelbase, 0}},
        {{CarField::Power, 0}, {CarField::Torque, 0}, {CarField::Efficiency, 0}},
        {{CarField::TorqueRPM, 9063}, {CarField::IdleRPM, 9063}},  // one peak
        {{CarField::PowerRPM, 0}, {CarField::Reverse, 0}},
        {{CarField::FTW, 0}, {CarField::RTW, 0}, {CarField::FWS, 0}, {CarField::RWS, 0}},
        {{CarField::Cl, 1000}, {CarField::WeightDist, 1}},  // lifted by its body
        {{CarField::UndertrayType, 99}, {CarField::FrontWingType, -1}, {CarField::RearWingType, 4}},
        {{CarField::FMinPressure, 300}, {CarField::FMaxPressure, 100}, {CarField::NumGears, 99}}};
    for (const std::vector<ChangedFigure>& figures : kCases) {
        SCOPED_TRACE(std::to_string(static_cast<int>(figures[0].field)) + " is " + std::to_string(figures[0].value));
        UseCustomCar("Series Lo", figures);
        ExpectOnlyNumbers();
        for (const auto& [name, value] :
             {std::pair("Direction2", "on"), std::pair("B_Speed1", "3"), std::pair("Select_AeroSpeed", "200"),
              std::pair("BlowTyres", "on"), std::pair("UseFixedSpeed", "on"), std::pair("RearTyreAnal", "on"),
              std::pair("Direction1", "on")}) {
            Set(name, value);
        }
        ExpectOnlyNumbers();
        Set("Select_Car", "Pell S");
        EXPECT_EQ(Shown("Aero_TopSpeed"), "53.6 m/s");
        for (const char* name : {"UseSliderSpeed", "FrontTyreAnal"}) Set(name, "on");
        Set("BlowTyres", "off");
    }
}

TEST_F(GearingChains, ARewrittenTableOfTheRunLeavesTheReaderWhereHeWas) {
    Zolv.AccelerationData.SetCaret(500);
    Set("Gear1", "3.6");
    EXPECT_EQ(Zolv.AccelerationData.Caret(), 500U);
}

}  // namespace
}  // namespace zolv
