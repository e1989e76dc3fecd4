#include "units/unit_catalogue.h"

#include <algorithm>

#include "text/number_text.h"
#include "units/unit_constants.h"

namespace zolv {
namespace {

constexpr double kPsiPerKpa = kPoundsPerKg / (kInchesPerCm * kInchesPerCm) / kGravity / 10;

/// The torque-to-weight factor is stored as a 32-bit float.
constexpr double Single(double value) { return static_cast<double>(static_cast<float>(value)); }

// clang-format off
constexpr UnitRow kSpeed[] = {
    {"m/s",  " m/s",  1,                                     1},
    {"km/h", " km/h", kKmhPerMs,                             1},
    {"mph",  " mph",  kKmhPerMs / kKmPerMile,                1},
    {"kn",   " kn",   kKmhPerMs / kKmPerMile * kKnotsPerMph, 1},
    {"ft/s", " ft/s", kFeetPerMetre,                         1},
};
constexpr UnitRow kDistance[] = {
    {"m",  " m",  1,                    2},
    {"cm", " cm", 100,                  1},
    {"mm", " mm", 1000,                 0},
    {"in", " in", kInchesPerMetre,      1},
    {"ft", " ft", kInchesPerMetre / 12, 2},
};
constexpr UnitRow kArea[] = {
    {"m^2",  " m^2",  1,                                   2},
    {"cm^2", " cm^2", 100.0 * 100.0,                       0},
    {"mm^2", " mm^2", 1000.0 * 1000.0,                     0},
    {"in^2", " in^2", kFeetPerMetre * kFeetPerMetre * 144, 0},
    {"ft^2", " ft^2", kFeetPerMetre * kFeetPerMetre,       1},
};
constexpr UnitRow kPressure[] = {
    {"kPa",     " kPa",     1,                              0},
    {"kg/cm^2", " kg/cm^2", 0.1 / kGravity,                 2},
    {"bar",     " bar",     0.01,                           2},
    {"atm",     " atm",     kPsiPerKpa / kPsiPerAtmosphere, 2},
    {"psi",     " psi",     kPsiPerKpa,                     1},
};
constexpr UnitRow kMass[] = {
    {"kg",       " kg",   1,                                 0},
    {"t",        " t",    0.001,                             2},
    {"lb",       " lb",   kPoundsPerKg,                      0},
    {"slug",     " slug", kPoundsPerKg / kPoundsPerSlug,     1},
    {"ton (US)", " ton",  kPoundsPerKg / kPoundsPerShortTon, 2},
    {"ton (UK)", " ton",  kPoundsPerKg / kPoundsPerLongTon,  2},
};
constexpr UnitRow kForce[] = {
    {"N",   " N",   1,                          0},
    {"kN",  " kN",  1.0 / 1000,                 1},
    {"kp",  " kp",  1 / kGravity,               0},
    {"pdl", " pdl", kPoundalsPerKgf / kGravity, 0},
    {"lbf", " lbf", kPoundsPerKg / kGravity,    0},
};
constexpr UnitRow kStiffness[] = {
    {"kN/m",  " kN/m",  1.0 / 1000,                                                    1},
    {"lb/in", " lb/in", 1 / ((kGravity / kPoundsPerKg) * kInchesPerMillimetre * 1000), 1},
};
constexpr UnitRow kAcc[] = {
    {"m/s^2",  " m/s^2",  1,                    2},
    {"gal",    " gal",    100,                  1},
    {"gn",     " gn",     1 / kGravity,         2},
    {"ft/s^2", " ft/s^2", kFeetPerMetre,        1},
    {"in/s^2", " in/s^2", kStandardInchesPerMetre, 0},
};
constexpr UnitRow kPower[] = {
    {"kW",       " kW",       1,                0},
    {"PS",       " PS",       kPsPerKw,         0},
    {"hp",       " hp",       kHpPerKw,         0},
    {"ft lbf/s", " ft lbf/s", kFootPoundsPerKw, 0},
};
constexpr UnitRow kTorque[] = {
    {"Nm",     " Nm",     1,                 0},
    {"kgfm",   " kgfm",   1 / kGravity,      0},
    {"lbf ft", " lbf ft", kPoundFeetPerNm,   0},
    {"lbf in", " lbf in", kPoundInchesPerNm, 0},
};
constexpr UnitRow kPowerToWeight[] = {  // the values are PowerToWeight's
    {"kW/t",        " kW/t",    0, 0},
    {"kg/kW",       " kg/kW",   0, 1},
    {"PS/t",        " PS/t",    0, 0},
    {"hp/ton (US)", " hp/ton",  0, 0},
    {"hp/ton (UK)", " hp/ton",  0, 0},
    {"hp/slug",     " hp/slug", 0, 1},
    {"lb/hp",       " lb/hp",   0, 1},
};
constexpr UnitRow kTorqueToWeight[] = {
    {"Nm/t",           " Nm/t",       Single(1000),                             0},
    {"Nm/kg",          " Nm/kg",      Single(1),                                2},
    {"lb ft/ton (US)", " lb ft/ton",  Single(kPoundsPerShortTon * kPoundFeetPerNm / kPoundsPerKg), 0},
    {"lb ft/ton (UK)", " lb ft/ton",  Single(kPoundsPerLongTon * kPoundFeetPerNm / kPoundsPerKg), 0},
    {"lb in/slug",     " lb in/slug", Single(kPoundsPerSlug * kPoundInchesPerNm / kPoundsPerKg), 0},
    {"lb in/lb",       " lb in/lb",   Single(kPoundInchesPerNm / kPoundsPerKg), 2},
};

constexpr std::array<QuantityUnits, kQuantities> kCatalogue{{
    {&UnitState::Speed,     &UnitFollowUps::Speed,     kSpeed},
    {&UnitState::Distance,  &UnitFollowUps::Distance,  kDistance},
    {&UnitState::Area,      &UnitFollowUps::Area,      kArea},
    {&UnitState::Pressure,  &UnitFollowUps::Pressure,  kPressure},
    {&UnitState::Mass,      &UnitFollowUps::Mass,      kMass},
    {&UnitState::Force,     &UnitFollowUps::Force,     kForce},
    {&UnitState::Stiffness, &UnitFollowUps::Stiffness, kStiffness},
    {&UnitState::Acc,       &UnitFollowUps::Acc,       kAcc},
    {&UnitState::Power,     &UnitFollowUps::Power,     kPower},
    {&UnitState::Torque,    &UnitFollowUps::Torque,    kTorque},
    {&UnitState::P2W,       &UnitFollowUps::P2W,       kPowerToWeight},
    {&UnitState::T2W,       &UnitFollowUps::T2W,       kTorqueToWeight},
}};

constexpr int kSpeedSliderMaxima[] = {200, 720, 447, 388, 656};
// clang-format on
static_assert(std::size(kSpeedSliderMaxima) == std::size(kSpeed));

}  // namespace

const std::array<QuantityUnits, kQuantities>& UnitCatalogue() { return kCatalogue; }

void SelectUnit(UnitState& state, int index, int row) {
    const QuantityUnits& quantity = kCatalogue[static_cast<std::size_t>(index)];
    const UnitRow& unit = quantity.rows[static_cast<std::size_t>(row)];
    Quantity& shown = state.*quantity.state;
    shown.Unit = row;
    shown.Suffix = unit.suffix;
    shown.Decimals = unit.decimals;
    shown.Factor = unit.factor;
}

std::vector<std::string> TextsInAllUnits(Quantity UnitState::*quantity, double base) {
    const auto entry = std::find_if(kCatalogue.begin(), kCatalogue.end(),
                                    [&](const QuantityUnits& row) { return row.state == quantity; });
    std::vector<std::string> texts;
    for (int row = 0; row < static_cast<int>(entry->rows.size()); ++row) {
        const UnitRow& unit = entry->rows[static_cast<std::size_t>(row)];
        const double value = quantity == &UnitState::P2W ? PowerToWeight(row, base, 1) : base * unit.factor;
        texts.push_back(WithUnit(value, unit.decimals, unit.suffix));
    }
    return texts;
}

int SpeedSliderMaximum(int speedUnit) { return kSpeedSliderMaxima[speedUnit]; }

double ConvertSpeed(double x, int from, int to) {
    // Each way is its own chain of factors, and rounding makes them differ: there is no common unit in between.
    enum { kMs, kKmh, kMph, kKn, kFps };
    switch (to * 8 + from) {
        case kMs * 8 + kKmh: return x / kKmhPerMs;
        case kMs * 8 + kMph: return x * kKmPerMile / kKmhPerMs;
        case kMs * 8 + kKn: return x * kKmPerMile / kKnotsPerMph / kKmhPerMs;
        case kMs * 8 + kFps: return x / kFeetPerMetre;
        case kKmh * 8 + kMs: return x * kKmhPerMs;
        case kKmh * 8 + kMph: return x * kKmPerMile;
        case kKmh * 8 + kKn: return x / kKnotsPerMph * kKmPerMile;
        case kKmh * 8 + kFps: return x * kMphPerFps * kKmPerMile;
        case kMph * 8 + kMs: return x * kKmhPerMs / kKmPerMile;
        case kMph * 8 + kKmh: return x / kKmPerMile;
        case kMph * 8 + kKn: return x / kKnotsPerMph;
        case kMph * 8 + kFps: return x * kMphPerFps;
        case kKn * 8 + kMs: return x * kKmhPerMs / kKmPerMile * kKnotsPerMph;
        case kKn * 8 + kKmh: return x / kKmPerMile * kKnotsPerMph;
        case kKn * 8 + kMph: return x * kKnotsPerMph;
        case kKn * 8 + kFps: return x * kMphPerFps * kKnotsPerMph;
        case kFps * 8 + kMs: return x * kFeetPerMetre;
        case kFps * 8 + kKmh: return x / kKmPerMile / kMphPerFps;
        case kFps * 8 + kMph: return x / kMphPerFps;
        case kFps * 8 + kKn: return x / kKnotsPerMph / kMphPerFps;
        default: return x;
    }
}

double PowerToWeight(int row, double power, double mass) {
    switch (row) {
        case 0: return power / (mass / 1000);
        case 1: return mass / power;
        case 2: return (kPsPerKw * power) / (mass / 1000);
        case 3: return (kHpPerKw * power) / (mass * kPoundsPerKg / kPoundsPerShortTon);
        case 4: return (kHpPerKw * power) / (mass * kPoundsPerKg / kPoundsPerLongTon);
        case 5: return (kHpPerKw * power) / (mass * kPoundsPerKg / kPoundsPerSlug);
        default: return (mass * kPoundsPerKg) / (power * kHpPerKw);
    }
}

UnitState units;

UnitState::UnitState() {
    for (int index = 0; index < kQuantities; ++index) SelectUnit(*this, index, 0);
}

std::string Quantity::Text(double base) const { return WithUnit(base * Factor, Decimals, Suffix); }

std::string Quantity::NumberOf(double base) const { return RoundedText(base * Factor, Decimals); }

}  // namespace zolv
