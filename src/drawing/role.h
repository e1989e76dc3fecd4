#pragma once

#include <cstdint>

namespace zolv {

/// What an operation of a drawing is, for whoever paints it, names it or reads values from it. None of them has to tell
/// a curve from a grid line by colour, width or slope.
enum class Role : std::uint8_t {
    Shape,      // a piece of a picture: the tyre, the road under it
    Area,       // a filled piece of a plot that has a size to be read: a footprint
    AreaWidth,  // its measures, which stand on it, for their names alone
    AreaLength,
    Cell,     // of a map, in the shade of its value
    Contour,  // of a map, at a round value
    Grid,
    Words,

    // Marks: straight lines all across a plot, at a value of one axis
    PeakPower,
    PeakTorque,
    Limiter,
    TopSpeed,
    PresentValue,  // what is set at the moment
    BestValue,

    PresentPoint,  // the same on a map
    BestPoint,

    // Curves
    Gear1,
    Gear2,
    Gear3,
    Gear4,
    Gear5,
    Gear6,
    SawTooth,  // a run through all gears
    Engine,    // the engine's own torque where the gears' curves stand beside it
    Power,
    Torque,
    DrivingForce,
    Resistance,
    NetForce,
    FrontLoad,
    RearLoad,
    Speed,
    Drag,
    Downforce,
    GripLimit,
    Series1,  // curves that differ in a number alone, as those of a sweep
    Series2,
    Series3,
    Series4,
    Series5,
    Series6,
};

[[nodiscard]] constexpr bool IsMark(Role role) { return role >= Role::PeakPower && role <= Role::BestValue; }
[[nodiscard]] constexpr bool IsCurve(Role role) { return role >= Role::Gear1; }

/// The curve of a gear.
/// @param gear  1 to 6
[[nodiscard]] constexpr Role GearRole(int gear) { return static_cast<Role>(static_cast<int>(Role::Gear1) + gear - 1); }

/// The gear that a curve is of; 0 for everything else.
[[nodiscard]] constexpr int GearOf(Role role) {
    return role >= Role::Gear1 && role <= Role::Gear6 ? static_cast<int>(role) - static_cast<int>(Role::Gear1) + 1 : 0;
}

/// The curves of a family one after the other; the seventh looks like the first.
/// @param index  0 or more
[[nodiscard]] constexpr Role SeriesRole(int index) {
    return static_cast<Role>(static_cast<int>(Role::Series1) + index % 6);
}

/// How what is drawn stands to the set-up in force.
enum class Standing : std::uint8_t {
    Present,
    Held,      // of another set-up, put beside the present one
    Doubtful,  // drawn from a fit that failed
};

/// What an operation is, in full. One curve of a drawing is all lines of one meaning.
struct Meaning {
    Role role = Role::Shape;
    Standing standing = Standing::Present;

    constexpr Meaning() = default;
    constexpr Meaning(Role aRole, Standing aStanding = Standing::Present) : role(aRole), standing(aStanding) {}

    bool operator==(const Meaning&) const = default;
};

}  // namespace zolv
