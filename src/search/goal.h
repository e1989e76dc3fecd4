#pragma once

#include <cstdint>
#include <vector>

#include "model/acceleration_run.h"
#include "search/straights.h"

/// What is to be made best, and how good a car is at it.
///
/// A value is interpolated between the steps of the run, so that it changes smoothly with what it depends on, but for
/// the jumps that the run itself makes where a change of gear moves to the next step. The steps are those of the run
/// on the acceleration page, to the digit; a run ends as soon as its goal is reached, and after 90 s in any case.
///
/// The clock of a standing start is that of the run's table, whose first row, at the end of the first step, counts as
/// 0 s: a value lies at or up to 0.05 s before the row that the page shows. The clock of a rolling start begins with
/// it.
namespace zolv {

enum class GoalKind : std::uint8_t {
    ToSpeed,         // least time from a standing start to ToSpeed
    OverDistance,    // least time from a standing start over Distance
    BetweenSpeeds,   // least time from a rolling start at FromSpeed to ToSpeed; 0 is a standing start
    TopSpeed,        // highest speed of a run from a standing start
    AlongStraights,  // least sum of the times along Straights
};

struct Goal {
    GoalKind Kind = GoalKind::OverDistance;
    double FromSpeed = 0;  // [m/s]
    double ToSpeed = 0;    // [m/s]
    double Distance = 0;   // [m]
    std::vector<Straight> Straights;

    bool operator==(const Goal&) const = default;
};

enum class GoalFault : std::uint8_t {
    None,
    NoSpeed,      // ToSpeed is not above 0
    FromAboveTo,  // FromSpeed is below 0, or not below ToSpeed
    NoDistance,   // Distance is not above 0
    NoStraights,
};
/// Whether a goal makes sense. What it does not use is not looked at.
[[nodiscard]] GoalFault FaultOf(const Goal& goal);

struct GoalValue {
    bool Reached = false;
    double Value = 0;  // where it is reached: [s], or [m/s] for TopSpeed
    double Most = 0;   // where it is not: the highest speed [m/s] of the run, or the longest way [m] in 90 s, of all
                       // straights together

    bool operator==(const GoalValue&) const = default;
};

/// How good a car is at a goal without a fault.
/// @param start  its LongDistance counts for the goals of speed; the others drive their own way
[[nodiscard]] GoalValue ValueOf(const Goal& goal, const AccelerationSetup& start);

/// A single number to be made small: the time, the top speed with its sign changed, and for a goal that is not reached
/// a number above every time, the larger the further it is missed.
[[nodiscard]] double CostOf(const Goal& goal, const GoalValue& value);

/// One straight driven.
struct StraightTime {
    bool Reached = false;  // its end, within 90 s
    double Time = 0;       // [s] there
    double Speed = 0;      // [m/s] there, or at the end of the run
    double Way = 0;        // [m] covered

    bool operator==(const StraightTime&) const = default;
};
/// Straights with the same entry speed share a run.
[[nodiscard]] std::vector<StraightTime> TimesAlong(const std::vector<Straight>& straights,
                                                   const AccelerationSetup& start);

}  // namespace zolv
