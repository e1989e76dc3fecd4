#include "units/unit_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "text/number_text.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

enum SpeedUnit { kMs, kKmh, kMph, kKn, kFps };

// By hand from the definitions of the units: a mile of 1609.344 m, a nautical mile of 1852 m, a foot of 0.3048 m.
TEST(Speeds, AreConverted) {
    constexpr double kOf100Ms[] = {100, 360, 223.693629, 194.384449, 328.083990};
    for (int from = kMs; from <= kFps; ++from) {
        for (int to = kMs; to <= kFps; ++to) {
            EXPECT_NEAR(ConvertSpeed(kOf100Ms[from], from, to), kOf100Ms[to], 3e-4) << from << " to " << to;
        }
    }
}

TEST(Speeds, SlidersEndBelow200MetresPerSecondInEveryUnit) {
    UnitState state;
    for (int unit = kMs; unit <= kFps; ++unit) {
        SelectUnit(state, 0, unit);
        EXPECT_EQ(SpeedSliderMaximum(unit), std::floor(200 * state.Speed.Factor)) << unit;
    }
}

struct ShownCase {
    Quantity UnitState::*quantity;
    double base;
    std::vector<std::string> shown;  // in each unit
};

// By Python with 40 decimal digits; the factors of torque to weight rounded to 32-bit floats first.
// clang-format off
const ShownCase kShown[] = {
    {&UnitState::Speed,     54.3219,      {"54.3 m/s", "195.6 km/h", "121.5 mph", "105.6 kn", "178.2 ft/s"}},
    {&UnitState::Distance,  123.45678,    {"123.46 m", "12345.7 cm", "123457 mm", "4863 in", "405.25 ft"}},
    {&UnitState::Area,      123.45678,    {"123.46 m^2", "1234568 cm^2", "123456780 mm^2", "191358 in^2", "1328.9 ft^2"}},
    {&UnitState::Pressure,  12345.678,    {"12346 kPa", "125.89 kg/cm^2", "123.46 bar", "121.72 atm", "1788.8 psi"}},
    {&UnitState::Mass,      12345.678,    {"12346 kg", "12.35 t", "27218 lb", "845.9 slug", "13.61 ton", "12.15 ton"}},
    {&UnitState::Force,     123456.789,   {"123457 N", "123.5 kN", "12589 kp", "892965 pdl", "27754 lbf"}},
    {&UnitState::Stiffness, 12345678.9,   {"12345.7 kN/m", "70459.8 lb/in"}},
    {&UnitState::Acc,       123.45678,    {"123.46 m/s^2", "12345.7 gal", "12.59 gn", "405 ft/s^2", "4861 in/s^2"}},
    {&UnitState::Power,     1234.5678,    {"1235 kW", "1679 PS", "1656 hp", "910555 ft lbf/s"}},
    {&UnitState::Torque,    12345.678,    {"12346 Nm", "1259 kgfm", "9103 lbf ft", "109231 lbf in"}},
    {&UnitState::T2W,       12.345678,    {"12346 Nm/t", "12.35 Nm/kg", "8258 lb ft/ton", "9249 lb ft/ton", "1594 lb in/slug", "49.55 lb in/lb"}},
    {&UnitState::Power,     2.5,          {"2 kW", "3 PS", "3 hp", "1844 ft lbf/s"}},  // a half goes to the even neighbour
};
// clang-format on

TEST(Shown, InEveryUnit) {
    for (const ShownCase& row : kShown) {
        const int index = static_cast<int>(std::ranges::find(UnitCatalogue(), row.quantity, &QuantityUnits::state) -
                                           UnitCatalogue().begin());
        UnitState state;
        EXPECT_EQ((state.*row.quantity).Text(row.base), row.shown[0]) << "at start";
        for (std::size_t unit = 0; unit < row.shown.size(); ++unit) {
            SelectUnit(state, index, static_cast<int>(unit));
            EXPECT_EQ((state.*row.quantity).Text(row.base), row.shown[unit]);
        }
        EXPECT_EQ(TextsInAllUnits(row.quantity, row.base), row.shown);
    }
}

// By Python with 40 decimal digits, for 162.5 kW and 987.6 kg.
TEST(Shown, PowerToWeightInEveryUnit) {
    const std::vector<std::string> expected{"165 kW/t",   "6.1 kg/kW",   "224 PS/t", "200 hp/ton",
                                            "224 hp/ton", "3.2 hp/slug", "10 lb/hp"};
    UnitState state;
    for (int unit = 0; unit < 7; ++unit) {
        SelectUnit(state, 10, unit);
        EXPECT_EQ(WithUnit(PowerToWeight(unit, 162.5, 987.6), state.P2W.Decimals, state.P2W.Suffix),
                  expected[static_cast<std::size_t>(unit)]);
    }
    EXPECT_EQ(TextsInAllUnits(&UnitState::P2W, 162.5 / 987.6), expected);
}

}  // namespace
}  // namespace zolv
