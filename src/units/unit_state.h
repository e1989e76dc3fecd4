#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/hook.h"

namespace zolv {

/// One unit of a quantity.
struct UnitRow {
    std::string_view caption;  // beside the list of the options panel
    std::string_view suffix;   // behind a number, with its leading blank
    double factor = 0;         // shown value = base value * factor
    int decimals = 0;
};

/// How one quantity is shown: a row of its units. All values of the row hold together; only SelectUnit changes them.
struct Quantity {
    int Unit = 0;  // the row, from 0; part of the options file, so that the order of rows is fixed
    std::string_view Suffix;
    int Decimals = 0;
    double Factor = 1;
    std::array<std::string, 7> UnitNames;  // long names of the rows, in the language in force

    /// "12.5 m/s": the base value in this unit, rounded half to even to its decimals, with the suffix; "N/A" for a
    /// value that is not finite.
    [[nodiscard]] std::string Text(double base) const;

    /// The same without the suffix.
    [[nodiscard]] std::string NumberOf(double base) const;
};

/// The twelve quantities in the units that the user has chosen. Values are held in the base units named here.
struct UnitState {
    Quantity Speed;      // m/s
    Quantity Distance;   // m
    Quantity Area;       // m^2
    Quantity Pressure;   // kPa
    Quantity Mass;       // kg
    Quantity Force;      // N
    Quantity Stiffness;  // N/m
    Quantity Acc;        // m/s^2
    Quantity Power;      // kW
    Quantity Torque;     // Nm
    Quantity P2W;        // no factor: PowerToWeight
    Quantity T2W;        // Nm/kg; the factor has only the precision of a float

    UnitState();  // row 0 of every quantity, without names
};
extern UnitState units;

/// What follows when another unit of a quantity, or the same one again, was picked: what shows it is to be written
/// anew. shell/wiring says what that is.
struct UnitFollowUps {
    Hook Speed, Distance, Area, Pressure, Mass, Force, Stiffness, Acc, Power, Torque, P2W, T2W;
};
inline UnitFollowUps unitFollowUps;

}  // namespace zolv
