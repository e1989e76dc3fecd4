#include "search/sweep.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <limits>
#include <mutex>
#include <ranges>

#include "model/sheet.h"
#include "search/goal.h"
#include "search/together.h"

namespace zolv {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

int GearOf(SweepInput input, SweepInput first) { return static_cast<int>(input) - static_cast<int>(first) + 1; }
bool IsRatio(SweepInput input) { return input <= SweepInput::Ratio6; }
bool IsSpeed(SweepInput input) { return input >= SweepInput::Speed1 && input <= SweepInput::Speed6; }

// clang-format off
constexpr std::array kInputs = std::to_array<SweepChoice>({
    {SweepInput::Ratio1,        "Ratio 1",        SweepQuantity::Ratio,    0.5,  7.5, 0.001},
    {SweepInput::Ratio2,        "Ratio 2",        SweepQuantity::Ratio,    0.5,  7.5, 0.001},
    {SweepInput::Ratio3,        "Ratio 3",        SweepQuantity::Ratio,    0.5,  7.5, 0.001},
    {SweepInput::Ratio4,        "Ratio 4",        SweepQuantity::Ratio,    0.5,  7.5, 0.001},
    {SweepInput::Ratio5,        "Ratio 5",        SweepQuantity::Ratio,    0.5,  7.5, 0.001},
    {SweepInput::Ratio6,        "Ratio 6",        SweepQuantity::Ratio,    0.5,  7.5, 0.001},
    {SweepInput::Speed1,        "Speed 1",        SweepQuantity::Speed,      1,  200, 0.001},
    {SweepInput::Speed2,        "Speed 2",        SweepQuantity::Speed,      1,  200, 0.001},
    {SweepInput::Speed3,        "Speed 3",        SweepQuantity::Speed,      1,  200, 0.001},
    {SweepInput::Speed4,        "Speed 4",        SweepQuantity::Speed,      1,  200, 0.001},
    {SweepInput::Speed5,        "Speed 5",        SweepQuantity::Speed,      1,  200, 0.001},
    {SweepInput::Speed6,        "Speed 6",        SweepQuantity::Speed,      1,  200, 0.001},
    {SweepInput::FinalDrive,    "Final Drive",    SweepQuantity::Ratio,    0.5,  7.5, 0.001},
    {SweepInput::FrontPressure, "Front Pressure", SweepQuantity::Pressure,   0,    0, 1},  // the car's own range
    {SweepInput::RearPressure,  "Rear Pressure",  SweepQuantity::Pressure,   0,    0, 1},
    {SweepInput::FrontWing,     "Front Wing",     SweepQuantity::Degrees,    0,   15, 1},
    {SweepInput::RearWing,      "Rear Wing",      SweepQuantity::Degrees,    0,   30, 1},
    {SweepInput::AirSpeed,      "Air Speed",      SweepQuantity::Speed,      0,  150, 1},
    {SweepInput::TyreMu,        "Tyre Friction",  SweepQuantity::Plain,   0.05,    3, 0.001},
});
// clang-format on

/// What a result is made of: the still sheet, and the start of a run where the gears are in order.
struct Made {
    const SetUp& setUp;
    const Sheet& sheet;
    const AccelerationSetup* start;  // nullptr without
};

const AccelTargets& TargetsOf(const Made& made) {
    return AccelTargetTable[static_cast<std::size_t>(made.setUp.Targets)];
}

template <std::size_t k>
double SpeedTime(const Made& made) {
    const Goal goal{GoalKind::ToSpeed, 0, TargetsOf(made).Speeds[k], 0, {}};
    const GoalValue value = ValueOf(goal, *made.start);
    return value.Reached ? value.Value : kNone;
}

template <std::size_t k>
StraightTime OverDistance(const Made& made) {
    return TimesAlong({{"", 0, TargetsOf(made).Distances[k]}}, *made.start).front();
}
template <std::size_t k>
double DistanceTime(const Made& made) {
    const StraightTime driven = OverDistance<k>(made);
    return driven.Reached ? driven.Time : kNone;
}
template <std::size_t k>
double DistanceSpeed(const Made& made) {
    const StraightTime driven = OverDistance<k>(made);
    return driven.Reached ? driven.Speed : kNone;
}

double RunSpeed(const Made& made) { return ValueOf({.Kind = GoalKind::TopSpeed, .Straights = {}}, *made.start).Value; }

template <float StoredForces::*force>
double ForceOf(const Made& made) {
    return made.sheet.Air.Forces.*force;
}
template <ByGear Gearbox::*values, int gear>
double OfGear(const Made& made) {
    return gear <= made.setUp.Car.NumGears ? static_cast<double>((made.sheet.Gears.*values)[gear]) : kNone;
}
/// Not that of the top gear, out of which nobody changes.
template <ByGear Gearbox::*values, int gear>
double OfChange(const Made& made) {
    return gear < made.setUp.Car.NumGears ? OfGear<values, gear>(made) : kNone;
}

double TopSpeed(const Made& made) { return made.sheet.Top.speed; }
template <auto value>
double OfAir(const Made& made) {
    return made.sheet.Air.*value;
}
double LiftInFront(const Made& made) {
    const double share = made.sheet.Air.AeroDistribution;
    return share == 0 ? kNone : share;
}
template <TyreSheet Sheet::*tyre>
double PatchOf(const Made& made) {
    return (made.sheet.*tyre).PatchArea;
}
double PatchRatio(const Made& made) { return made.sheet.PatchRatio; }

struct Row {
    SweepResultRow shown;
    bool geared;  // needs gears in order
    double (*value)(const Made&);
};

// clang-format off
using Q = SweepQuantity;
using B = SweepBest;
constexpr std::array kRows = std::to_array<Row>({
    {{"Time to Speed 1",          Q::Time,     B::Least}, true,  SpeedTime<0>},
    {{"Time to Speed 2",          Q::Time,     B::Least}, true,  SpeedTime<1>},
    {{"Time to Speed 3",          Q::Time,     B::Least}, true,  SpeedTime<2>},
    {{"Time to Speed 4",          Q::Time,     B::Least}, true,  SpeedTime<3>},
    {{"Time to Speed 5",          Q::Time,     B::Least}, true,  SpeedTime<4>},
    {{"Time over Distance 1",     Q::Time,     B::Least}, true,  DistanceTime<0>},
    {{"Time over Distance 2",     Q::Time,     B::Least}, true,  DistanceTime<1>},
    {{"Speed at Distance 1",      Q::Speed,    B::Most},  true,  DistanceSpeed<0>},
    {{"Speed at Distance 2",      Q::Speed,    B::Most},  true,  DistanceSpeed<1>},
    {{"Highest Speed of the Run", Q::Speed,    B::Most},  true,  RunSpeed},
    {{"Top Speed",                Q::Speed,    B::Most},  false, TopSpeed},
    {{"Shift Speed 1",            Q::Speed,    B::None},  true,  OfChange<&Gearbox::GearSpeed, 1>},
    {{"Shift Speed 2",            Q::Speed,    B::None},  true,  OfChange<&Gearbox::GearSpeed, 2>},
    {{"Shift Speed 3",            Q::Speed,    B::None},  true,  OfChange<&Gearbox::GearSpeed, 3>},
    {{"Shift Speed 4",            Q::Speed,    B::None},  true,  OfChange<&Gearbox::GearSpeed, 4>},
    {{"Shift Speed 5",            Q::Speed,    B::None},  true,  OfChange<&Gearbox::GearSpeed, 5>},
    {{"Shift Point 1",            Q::Revs,     B::None},  true,  OfChange<&Gearbox::GearRevs, 1>},
    {{"Shift Point 2",            Q::Revs,     B::None},  true,  OfChange<&Gearbox::GearRevs, 2>},
    {{"Shift Point 3",            Q::Revs,     B::None},  true,  OfChange<&Gearbox::GearRevs, 3>},
    {{"Shift Point 4",            Q::Revs,     B::None},  true,  OfChange<&Gearbox::GearRevs, 4>},
    {{"Shift Point 5",            Q::Revs,     B::None},  true,  OfChange<&Gearbox::GearRevs, 5>},
    {{"Ratio 1",                  Q::Ratio,    B::None},  true,  OfGear<&Gearbox::GearRatio, 1>},
    {{"Ratio 2",                  Q::Ratio,    B::None},  true,  OfGear<&Gearbox::GearRatio, 2>},
    {{"Ratio 3",                  Q::Ratio,    B::None},  true,  OfGear<&Gearbox::GearRatio, 3>},
    {{"Ratio 4",                  Q::Ratio,    B::None},  true,  OfGear<&Gearbox::GearRatio, 4>},
    {{"Ratio 5",                  Q::Ratio,    B::None},  true,  OfGear<&Gearbox::GearRatio, 5>},
    {{"Ratio 6",                  Q::Ratio,    B::None},  true,  OfGear<&Gearbox::GearRatio, 6>},
    {{"Torque in Gear 1",         Q::Torque,   B::Most},  true,  OfGear<&Gearbox::GearTorque, 1>},
    {{"Total Drag",               Q::Force,    B::Least}, false, ForceOf<&StoredForces::TotalDrag>},
    {{"Total Lift",               Q::Force,    B::Least}, false, ForceOf<&StoredForces::TotalLift>},
    {{"Rolling Resistance",       Q::Force,    B::Least}, false, ForceOf<&StoredForces::RollingResistance>},
    {{"Total Friction",           Q::Force,    B::Least}, false, ForceOf<&StoredForces::TotalFriction>},
    {{"Load on Front Wheels",     Q::Force,    B::None},  false, OfAir<&AirSheet::FrontWheelForce>},
    {{"Load on Rear Wheels",      Q::Force,    B::None},  false, OfAir<&AirSheet::RearWheelForce>},
    {{"Load in Front",            Q::Share,    B::None},  false, OfAir<&AirSheet::ForceDistribution>},
    {{"Lift in Front",            Q::Share,    B::None},  false, LiftInFront},
    {{"Load over Weight",         Q::Plain,    B::Most},  false, OfAir<&AirSheet::WeightMultiple>},
    {{"Front Contact Patch",      Q::Area,     B::Most},  false, PatchOf<&Sheet::Front>},
    {{"Rear Contact Patch",       Q::Area,     B::Most},  false, PatchOf<&Sheet::Rear>},
    {{"Front over Rear Patch",    Q::Plain,    B::None},  false, PatchRatio},
});
// clang-format on

constexpr auto kShown = [] {
    std::array<SweepResultRow, kRows.size()> shown{};
    for (std::size_t i = 0; i < kRows.size(); ++i) shown[i] = kRows[i].shown;
    return shown;
}();

std::optional<SweepChoice> ChoiceOf(const SetUp& setUp, SweepInput input) {
    for (const SweepChoice& choice : SweepInputsOf(setUp)) {
        if (choice.Input == input) return choice;
    }
    return std::nullopt;
}

SweepFault FaultOf(const SetUp& setUp, const SweepAxis& axis) {
    constexpr double kHair = 1e-9;  // what a conversion of units may leave
    const auto choice = ChoiceOf(setUp, axis.Input);
    if (!choice) return SweepFault::NoSuchInput;
    if (!(axis.From < axis.To)) return SweepFault::FromAboveTo;
    if (axis.From < choice->Low - kHair || axis.To > choice->High + kHair) return SweepFault::OutOfRange;
    return axis.Steps < 2 || axis.Steps > kMostSweepSteps ? SweepFault::WrongSteps : SweepFault::None;
}

void FindFault(const SweepTask& task, SweepSheet& sheet) {
    sheet.Fault = FaultOf(task.Present, task.First);
    if (sheet.Fault == SweepFault::None && task.Second) {
        sheet.Fault = FaultOf(task.Present, *task.Second);
        if (task.Second->Input == task.First.Input) sheet.Fault = SweepFault::SameTwice;
        sheet.FaultAxis = 1;
    }
    if (sheet.Fault != SweepFault::None) return;
    const auto points =
        static_cast<std::size_t>(task.First.Steps) * static_cast<std::size_t>(task.Second ? task.Second->Steps : 1);
    if (points > kMostSweepPoints) sheet.Fault = SweepFault::WrongSteps;
    if (task.Result >= kRows.size()) sheet.Fault = SweepFault::NoSuchResult;
}

std::vector<double> PointsOf(const SetUp& setUp, const SweepAxis& axis) {
    const double perStep = std::nearbyint(1 / ChoiceOf(setUp, axis.Input)->Step);
    std::vector<double> points;
    for (int i = 0; i < axis.Steps; ++i) {
        const double value = axis.From + (axis.To - axis.From) * i / (axis.Steps - 1);
        const double onStep = std::nearbyint(value * perStep) / perStep;
        if (points.empty() || onStep > points.back()) points.push_back(onStep);
    }
    return points;
}

std::optional<std::size_t> BestOf(const std::vector<double>& values, SweepBest which) {
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (which == SweepBest::None || std::isnan(values[i])) continue;
        if (!best || (which == SweepBest::Least ? values[i] < values[*best] : values[i] > values[*best])) best = i;
    }
    return best;
}

}  // namespace

std::vector<SweepChoice> SweepInputsOf(const SetUp& setUp) {
    const CarRecord& car = setUp.Car;
    std::vector<SweepChoice> inputs;
    for (SweepChoice choice : kInputs) {
        const SweepInput input = choice.Input;
        const bool fromRatios = setUp.From == Direction::FromRatios;
        if (IsRatio(input) && (!fromRatios || GearOf(input, SweepInput::Ratio1) > car.NumGears)) continue;
        if (IsSpeed(input) && (fromRatios || GearOf(input, SweepInput::Speed1) > car.NumGears)) continue;
        if (input == SweepInput::FrontWing && car.FrontWingType <= 0) continue;
        if (input == SweepInput::RearWing && car.RearWingType <= 0) continue;
        if (input == SweepInput::FrontPressure) {
            choice.Low = car.FMinPressure;
            choice.High = car.FMaxPressure;
        }
        if (input == SweepInput::RearPressure) {
            choice.Low = car.RMinPressure;
            choice.High = car.RMaxPressure;
        }
        inputs.push_back(choice);
    }
    return inputs;
}

double InputOf(const SetUp& setUp, SweepInput input) {
    if (IsRatio(input)) return setUp.Ratios[GearOf(input, SweepInput::Ratio1)];
    if (IsSpeed(input)) return setUp.Speeds[GearOf(input, SweepInput::Speed1)];
    switch (input) {
        case SweepInput::FinalDrive: return setUp.PresentFinalDrive();
        case SweepInput::FrontPressure: return setUp.FrontPressure;
        case SweepInput::RearPressure: return setUp.RearPressure;
        case SweepInput::FrontWing: return setUp.FrontWingAngle;
        case SweepInput::RearWing: return setUp.RearWingAngle;
        case SweepInput::AirSpeed: return setUp.AirSpeed.value_or(0);
        default: return setUp.TyreMu;
    }
}

void SetInput(SetUp& setUp, SweepInput input, double value) {
    const auto whole = [&] { return static_cast<int>(std::nearbyint(value)); };
    if (IsRatio(input)) {
        setUp.Ratios[GearOf(input, SweepInput::Ratio1)] = value;
    } else if (IsSpeed(input)) {
        setUp.Speeds[GearOf(input, SweepInput::Speed1)] = value;
    } else {
        switch (input) {
            case SweepInput::FinalDrive: setUp.FinalDrive[static_cast<std::size_t>(setUp.From)] = value; break;
            case SweepInput::FrontPressure: setUp.FrontPressure = whole(); break;
            case SweepInput::RearPressure: setUp.RearPressure = whole(); break;
            case SweepInput::FrontWing: setUp.FrontWingAngle = whole(); break;
            case SweepInput::RearWing: setUp.RearWingAngle = whole(); break;
            case SweepInput::AirSpeed: setUp.AirSpeed = whole(); break;
            default: setUp.TyreMu = value; break;
        }
    }
}

std::span<const SweepResultRow> SweepResults() { return kShown; }

double ResultOf(const SetUp& setUp, std::size_t result) {
    const Row& row = kRows[result];
    const Sheet sheet = EvaluateStill(setUp);
    if (!row.geared) return row.value({setUp, sheet, nullptr});
    if (!sheet.WrongOrder.empty()) return kNone;
    const AccelerationSetup start = StartOf(setUp, sheet);
    return row.value({setUp, sheet, &start});
}

SweepSheet Sweep(const SweepTask& task, const std::stop_token& stop, const std::function<void(double)>& watch,
                 unsigned threads) {
    constexpr std::size_t kPortion = 64;  // points between two looks at the clock
    SweepSheet sheet;
    FindFault(task, sheet);
    if (sheet.Fault != SweepFault::None) return sheet;
    sheet.First = PointsOf(task.Present, task.First);
    if (task.Second) sheet.Second = PointsOf(task.Present, *task.Second);
    sheet.Values.assign(sheet.First.size() * std::max<std::size_t>(sheet.Second.size(), 1), kNone);

    const std::size_t portions = (sheet.Values.size() + kPortion - 1) / kPortion;
    std::mutex mutex;
    std::size_t done = 0;
    Together(portions, ThreadsOf(threads), [&](std::size_t portion) {
        SetUp setUp = task.Present;
        const std::size_t end = std::min(sheet.Values.size(), (portion + 1) * kPortion);
        for (std::size_t i = portion * kPortion; i < end; ++i) {
            if (stop.stop_requested()) return;
            SetInput(setUp, task.First.Input, sheet.First[i % sheet.First.size()]);
            if (task.Second) SetInput(setUp, task.Second->Input, sheet.Second[i / sheet.First.size()]);
            sheet.Values[i] = ResultOf(setUp, task.Result);
        }
        const std::scoped_lock lock(mutex);
        ++done;
        if (watch) watch(static_cast<double>(done) / static_cast<double>(portions));
    });
    if (stop.stop_requested()) {
        sheet = {};
        sheet.Stopped = true;
        return sheet;
    }
    sheet.Best = BestOf(sheet.Values, kShown[task.Result].Best);
    return sheet;
}

}  // namespace zolv
