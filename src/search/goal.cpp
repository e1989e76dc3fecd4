#include "search/goal.h"

#include <algorithm>
#include <numeric>

#include "model/run_steps.h"

namespace zolv {
namespace {

constexpr double kMissed = 1000;  // above the time of any run [s], and any speed [m/s]

/// A run and its clock; what is watched is compared before and after a step.
class Watch {
public:
    Watch(const AccelerationSetup& start, double entrySpeed) : run_(start, entrySpeed), rolling_(entrySpeed > 0) {}

    /// Drives one step; false where there is none left.
    bool Step() {
        if (row_ + 1 >= kAccelRows || (row_ >= 0 && !run_.GoesOn())) return false;
        speed_ = run_.Speed();
        distance_ = run_.Distance();
        run_.Step();
        ++row_;
        return true;
    }

    [[nodiscard]] double Speed() const { return run_.Speed(); }
    [[nodiscard]] double Distance() const { return run_.Distance(); }

    /// The share of the last step at which `target` was passed.
    [[nodiscard]] double ShareToSpeed(double target) const { return (target - speed_) / (run_.Speed() - speed_); }
    [[nodiscard]] double ShareToDistance(double target) const {
        return (target - distance_) / (run_.Distance() - distance_);
    }
    [[nodiscard]] double TimeAt(double share) const {
        return std::max(0.0, (row_ - (rolling_ ? 0 : 1) + share) * kTimeStep);
    }
    [[nodiscard]] double SpeedAt(double share) const { return speed_ + share * (run_.Speed() - speed_); }

private:
    RunSteps run_;
    bool rolling_;
    int row_ = -1;                     // of the last step
    double speed_ = 0, distance_ = 0;  // before it
};

GoalValue ToSpeed(const AccelerationSetup& start, double from, double to) {
    Watch run(start, from);
    double most = from;
    while (run.Step()) {
        if (run.Speed() > to) return {.Reached = true, .Value = run.TimeAt(run.ShareToSpeed(to))};
        most = std::max(most, run.Speed());
    }
    return {.Most = most};
}

GoalValue OverDistance(AccelerationSetup start, double distance) {
    start.LongDistance = distance;
    Watch run(start, 0);
    while (run.Step()) {
        if (run.Distance() > distance) return {.Reached = true, .Value = run.TimeAt(run.ShareToDistance(distance))};
    }
    return {.Most = run.Distance()};
}

GoalValue TopSpeed(const AccelerationSetup& start) {
    Watch run(start, 0);
    double most = 0;
    while (run.Step()) most = std::max(most, run.Speed());
    return {.Reached = true, .Value = most};
}

GoalValue AlongStraights(const AccelerationSetup& start, const std::vector<Straight>& straights) {
    GoalValue sum{.Reached = true};
    for (const StraightTime& driven : TimesAlong(straights, start)) {
        sum.Reached = sum.Reached && driven.Reached;
        sum.Value += driven.Time;
        sum.Most += driven.Way;
    }
    (sum.Reached ? sum.Most : sum.Value) = 0;
    return sum;
}

/// Drives the straights `first` to `last`, which have one entry speed and rise in length.
template <class Iterator>
void DriveTogether(AccelerationSetup& start, const std::vector<Straight>& straights, Iterator first, Iterator last,
                   std::vector<StraightTime>& times) {
    start.LongDistance = straights[*(last - 1)].Length;
    Watch run(start, straights[*first].EntrySpeed);
    while (first != last && run.Step()) {
        for (; first != last && run.Distance() > straights[*first].Length; ++first) {
            const double share = run.ShareToDistance(straights[*first].Length);
            times[*first] = {.Reached = true,
                             .Time = run.TimeAt(share),
                             .Speed = run.SpeedAt(share),
                             .Way = straights[*first].Length};
        }
    }
    for (; first != last; ++first) times[*first] = {.Speed = run.Speed(), .Way = run.Distance()};
}

}  // namespace

GoalFault FaultOf(const Goal& goal) {
    switch (goal.Kind) {
        case GoalKind::BetweenSpeeds:
            if (!(goal.FromSpeed >= 0 && goal.FromSpeed < goal.ToSpeed)) return GoalFault::FromAboveTo;
            [[fallthrough]];
        case GoalKind::ToSpeed: return goal.ToSpeed > 0 ? GoalFault::None : GoalFault::NoSpeed;
        case GoalKind::OverDistance: return goal.Distance > 0 ? GoalFault::None : GoalFault::NoDistance;
        case GoalKind::AlongStraights: return goal.Straights.empty() ? GoalFault::NoStraights : GoalFault::None;
        default: return GoalFault::None;
    }
}

GoalValue ValueOf(const Goal& goal, const AccelerationSetup& start) {
    switch (goal.Kind) {
        case GoalKind::ToSpeed: return ToSpeed(start, 0, goal.ToSpeed);
        case GoalKind::OverDistance: return OverDistance(start, goal.Distance);
        case GoalKind::BetweenSpeeds: return ToSpeed(start, goal.FromSpeed, goal.ToSpeed);
        case GoalKind::TopSpeed: return TopSpeed(start);
        default: return AlongStraights(start, goal.Straights);
    }
}

double CostOf(const Goal& goal, const GoalValue& value) {
    if (value.Reached) return goal.Kind == GoalKind::TopSpeed ? -value.Value : value.Value;
    const auto longest = static_cast<double>(std::max<std::size_t>(goal.Straights.size(), 1));
    return kMissed * longest - value.Most / 1000;  // less than a thousand for each
}

std::vector<StraightTime> TimesAlong(const std::vector<Straight>& straights, const AccelerationSetup& start) {
    std::vector<StraightTime> times(straights.size());
    std::vector<std::size_t> order(straights.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::sort(order, [&](std::size_t a, std::size_t b) {
        return std::pair(straights[a].EntrySpeed, straights[a].Length) <
               std::pair(straights[b].EntrySpeed, straights[b].Length);
    });
    AccelerationSetup own = start;
    for (auto first = order.begin(); first != order.end();) {
        const auto last = std::find_if(
            first, order.end(), [&](std::size_t i) { return straights[i].EntrySpeed != straights[*first].EntrySpeed; });
        DriveTogether(own, straights, first, last, times);
        first = last;
    }
    return times;
}

}  // namespace zolv
