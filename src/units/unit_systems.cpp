#include "units/unit_systems.h"

#include <array>

#include "fields/all_windows.h"
#include "units/unit_catalogue.h"

namespace zolv {
namespace {

/// Rows of the units in UnitCatalogue().
struct SystemRows {
    int metric, imperial;
};
constexpr std::array<SystemRows, kQuantities> kRows{{
    {1, 2},  // speed: km/h, mph
    {0, 3},  // distance: m, in
    {0, 3},  // area: m^2, in^2
    {0, 4},  // pressure: kPa, psi
    {0, 2},  // mass: kg, lb
    {0, 4},  // force: N, lbf
    {0, 1},  // stiffness: kN/m, lb/in
    {0, 3},  // acceleration: m/s^2, ft/s^2
    {0, 2},  // power: kW, hp
    {0, 2},  // torque: Nm, lbf ft
    {0, 6},  // power to weight: kW/t, lb/hp
    {0, 3},  // torque to weight: Nm/t, lb ft/ton (UK)
}};

}  // namespace

void PickUnitSystem(UnitSystem system) {
    for (std::size_t quantity = 0; quantity < kRows.size(); ++quantity) {
        const SystemRows& rows = kRows[quantity];
        OptionsPanel.Units[quantity].Select.Pick(system == UnitSystem::Metric ? rows.metric : rows.imperial);
    }
}

}  // namespace zolv
