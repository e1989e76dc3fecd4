#include "model/run_log.h"

#include <algorithm>
#include <span>
#include <utility>

#include "model/acceleration_run.h"
#include "model/wheel_forces.h"

namespace zolv {
namespace {

/// Gathers rows and events of a run. The row of a step comes behind what happens in it.
class LogSink {
public:
    void Pulls(double force, float limit, bool shifting) {
        if (shifting) return;
        const bool atLimit = force >= limit;
        if (atLimit_ && !atLimit) Note({.What = RunEvent::Kind::GripLeft});
        atLimit_ = atLimit;
    }

    void ClutchCloses() { Note({.What = RunEvent::Kind::ClutchCloses}); }

    void ChangesUp(std::size_t /*gear*/, double before, double after) {
        Note({.What = RunEvent::Kind::ChangesUp, .Before = before, .After = after});
    }

    void Takes(const AccelRow& row) {
        rows_.push_back(row);
        for (RunEvent& event : std::span(events_).subspan(dated_)) Date(event);
        dated_ = events_.size();
    }

    void Ends(RunEnd why) {
        Note({.What = RunEvent::Kind::Ends, .Why = why});
        Date(events_.back());
    }

    const std::vector<AccelRow>& Rows() const { return rows_; }
    std::vector<RunEvent> TakeEvents() { return std::move(events_); }

private:
    /// Of leaving the limit of grip several times in one gear, the last time counts.
    void Note(const RunEvent& event) {
        if (event.What == RunEvent::Kind::GripLeft && !events_.empty() && events_.back().What == event.What) {
            events_.pop_back();
            dated_ = std::min(dated_, events_.size());
        }
        events_.push_back(event);
    }

    void Date(RunEvent& event) const {
        const AccelRow& row = rows_.back();
        event.Time = static_cast<double>(rows_.size() - 1) * kTimeStep;
        event.Distance = row[AccelColumn::Distance];
        event.Speed = row[AccelColumn::Speed];
        event.Gear = static_cast<int>(row[AccelColumn::Gear]);
    }

    std::vector<AccelRow> rows_;
    std::vector<RunEvent> events_;
    std::size_t dated_ = 0;  // events that have their time
    bool atLimit_ = false;
};

void AddTargets(std::vector<RunEvent>& events, const std::vector<AccelRow>& rows, RunEvent::Kind what,
                AccelColumn column, std::span<const float> targets) {
    for (std::size_t k = 0; k < targets.size(); ++k) {
        const auto passing = PassingOf(rows, column, targets[k]);
        if (!passing) continue;
        const auto row = std::min(static_cast<std::size_t>(passing->Time / kTimeStep) + 1, rows.size() - 1);
        events.push_back({.What = what,
                          .Time = passing->Time,
                          .Distance = passing->Distance,
                          .Speed = passing->Speed,
                          .Gear = static_cast<int>(rows[row][AccelColumn::Gear]),
                          .Target = k});
    }
}

void AddLargestAcceleration(std::vector<RunEvent>& events, const std::vector<AccelRow>& rows) {
    const auto largest =
        std::ranges::max_element(rows, {}, [](const AccelRow& row) { return row[AccelColumn::Acceleration]; });
    if (!((*largest)[AccelColumn::Acceleration] > 0)) return;
    events.push_back({.What = RunEvent::Kind::LargestAcceleration,
                      .Time = static_cast<double>(largest - rows.begin()) * kTimeStep,
                      .Distance = (*largest)[AccelColumn::Distance],
                      .Speed = (*largest)[AccelColumn::Speed],
                      .Gear = static_cast<int>((*largest)[AccelColumn::Gear]),
                      .Acceleration = (*largest)[AccelColumn::Acceleration]});
}

}  // namespace

std::vector<RunEvent> LogOf(const AccelerationSetup& setup, const AccelTargets& targets) {
    LogSink sink;
    DriveBefore(sink, setup);
    std::vector<RunEvent> events = sink.TakeEvents();
    const RunEvent end = events.back();
    events.pop_back();

    const ForcesOverSpeed forces = ForcesOver(setup);
    for (RunEvent& event : events) {
        const auto gear = std::ranges::find(forces.Gears, event.Gear, &GearForces::Gear);
        if (event.What != RunEvent::Kind::ChangesUp || gear == forces.Gears.end() || !gear->Crossing) continue;
        event.Crossing = gear->Crossing->Speed;
    }
    AddTargets(events, sink.Rows(), RunEvent::Kind::SpeedTarget, AccelColumn::Speed, targets.Speeds);
    AddTargets(events, sink.Rows(), RunEvent::Kind::DistanceTarget, AccelColumn::Distance, targets.Distances);
    AddLargestAcceleration(events, sink.Rows());
    std::ranges::stable_sort(events, {}, &RunEvent::Time);
    events.push_back(end);
    return events;
}

}  // namespace zolv
