#include "gearing/acceleration_page.h"

#include <algorithm>

#include "gearing/gearing_state.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

std::string Labels(const std::string& array, std::initializer_list<int> indices) {
    std::string texts;
    for (const int index : indices) texts += Shown(array + '(' + std::to_string(index) + ')') + '|';
    return texts;
}

class AccelerationPage : public StartedTest {};

// From a separate calculation in Python.
TEST_F(AccelerationPage, ShowsTheRunAtTheTargetsOfTheUnit) {
    struct {
        const char *car, *unit;
        int lastRow;
        const char *targets, *figures;
    } const kCases[] = {
        // clang-format off
        {"Series Lo", "Meters per Second", 771, "0-15 m/s:|0-30 m/s:|0-45 m/s:|0-60 m/s:|0-75 m/s:|0-500m:|0-1000m:|", "2.2s|4.7s|7.1s|11.3s|22.1s|76.8 m/s|13.1s|@ 65.5 m/s|20.2s|@ 73.9 m/s|"},
        {"Pell S", "Kilometers per Hour", 1410, "0-50 km/h:|0-100 km/h:|0-150 km/h:|0-200 km/h:|0-250 km/h:|0-500m:|0-1000m:|", "3.9s|9.9s|22.3s|N/A|N/A|182.4 km/h|19.9s|@ 144.9 km/h|31.3s|@ 169 km/h|"},
        {"Pell S", "Miles per Hour", 1410, "0-30 mph:|0-60 mph:|0-100 mph:|0-125 mph:|0-150 mph:|Quarter mile ET:|Mile ET:|", "3.8s|9.4s|26.7s|N/A|N/A|113.4 mph|17.4s|@ 84.6 mph|43.8s|@ 111.3 mph|"},
        {"Pell S", "Nautical Miles per Hour (Knots)", 1410, "0-30 kn:|0-60 kn:|0-100 kn:|0-125 kn:|0-150 kn:|\u00BC nautical mile ET:|Nautical mile ET:|", "4.25s|11.6s|N/A|N/A|N/A|98.5 kn|19s|@ 76.7 kn|48.7s|@ 97.5 kn|"},
        {"Pell S", "Feet per Second", 1410, "0-50 ft/s:|0-100 ft/s:|0-150 ft/s:|0-200 ft/s:|0-250 ft/s:|0-1000 feet:|0-1000 fathoms:|", "4.2s|11.35s|28.6s|N/A|N/A|166.3 ft/s|14.7s|@ 113.5 ft/s|48.2s|@ 164.5 ft/s|"},
        // clang-format on
    };
    for (const auto& row : kCases) {
        Set("OptionsPanel.Select_SpeedUnits", row.unit);
        Set("Select_Car", row.car);
        EXPECT_EQ(gearing.AccelLastRow, row.lastRow);
        EXPECT_EQ(Labels("GearingLabel", {30, 31, 32, 33, 34, 36, 37}), row.targets);
        EXPECT_EQ(Labels("AccDataLabel", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}), row.figures);
        EXPECT_EQ(Zolv.AccDataLabel[5].Colour(), kBlack);
    }
}

// Lines from a separate calculation in Python.
TEST_F(AccelerationPage, TheTableHasALineForEachRow) {
    const std::string table = Shown("AccelerationData");
    EXPECT_THAT(table, testing::StartsWith("Time\tSpeed\tEngine RPM\tGear\t"));
    EXPECT_THAT(table, testing::HasSubstr("\r\n4.95s\t17.2 m/s\t5736 rpm\t2\t0 N\t219 N\t-219 N\t-0.21 m/s^2\t5650 N\t"
                                          "4421 N\r\n"));
    EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), gearing.AccelLastRow + 2);
}

TEST_F(AccelerationPage, ARewrittenTableLeavesTheReaderWhereHeWas) {
    Zolv.AccelerationData.SetCaret(500);
    Set("Gear1", "3.6");
    EXPECT_EQ(Zolv.AccelerationData.Caret(), 500U);
}

TEST_F(AccelerationPage, ARunOutOfRowsIsToldInBlue) {
    UseCustomCar("Pell S", {{CarField::Power, 2}, {CarField::Torque, 8}});  // 1000 m are not done in 90 s
    EXPECT_EQ(gearing.AccelLastRow, 1800);
    EXPECT_EQ(Zolv.AccDataLabel[5].Colour(), kBlue);
    Set("Select_Car", "Pell S");
    EXPECT_EQ(Zolv.AccDataLabel[5].Colour(), kBlack);
}

TEST_F(AccelerationPage, SwitchedOffTheGearingRunsNoneButATyreTypeDoes) {
    Set("Select_Car", "Series Lo");
    Set("AccelerationTestingEnable", "off");
    const std::string before = Shown("AccDataLabel(0)");
    Set("GearF", "3.2");
    EXPECT_EQ(Shown("AccDataLabel(0)"), before);
    Set("Select_Tyres", "Slick R1");
    EXPECT_NE(Shown("AccDataLabel(0)"), before);
}

}  // namespace
}  // namespace zolv
