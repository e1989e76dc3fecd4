#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <stop_token>
#include <string_view>
#include <vector>

#include "model/set_up.h"

/// One input over its range, or two of them as a grid, against one result of the sheet.
namespace zolv {

// clang-format off
enum class SweepInput : std::uint8_t {
    Ratio1, Ratio2, Ratio3, Ratio4, Ratio5, Ratio6,  // FromRatios
    Speed1, Speed2, Speed3, Speed4, Speed5, Speed6,  // FromSpeeds
    FinalDrive, FrontPressure, RearPressure, FrontWing, RearWing, AirSpeed, TyreMu,
};
// clang-format on

/// What a number is, for the unit in which it is shown; all numbers here are in base units.
enum class SweepQuantity : std::uint8_t {
    Plain,
    Ratio,
    Time,
    Speed,
    Force,
    Revs,
    Torque,
    Degrees,
    Pressure,
    Share,
    Area
};

/// What there is to choose of an input for a set-up.
struct SweepChoice {
    SweepInput Input{};
    std::string_view Name;  // "Ratio 1", "Final Drive", "Front Wing"
    SweepQuantity Quantity{};
    double Low = 0, High = 0;  // the range of its slider
    double Step = 0;           // the finest that the simulator takes
};
/// The inputs that do something to a set-up: the gears that the car has, in the direction in force, and its own wings.
[[nodiscard]] std::vector<SweepChoice> SweepInputsOf(const SetUp& setUp);

/// The value of an input, and the set-up with another one. The air speed of a set-up that has none is 0.
[[nodiscard]] double InputOf(const SetUp& setUp, SweepInput input);
void SetInput(SetUp& setUp, SweepInput input, double value);

/// Which of two values of a result is the better one.
enum class SweepBest : std::uint8_t { None, Least, Most };

/// The results that may be swept, by name. The times to the five speeds and over the two distances of the set-up's unit
/// are interpolated as goals are; shift points are those of the gears.
struct SweepResultRow {
    std::string_view Name;  // "Time to Speed 2", "Total Drag", "Shift Speed 3"
    SweepQuantity Quantity{};
    SweepBest Best{};
};
[[nodiscard]] std::span<const SweepResultRow> SweepResults();

/// The value of a row of SweepResults for one set-up; not a number where there is none: gears in the wrong order, a
/// speed that the car does not reach, a share of no lift.
[[nodiscard]] double ResultOf(const SetUp& setUp, std::size_t result);

struct SweepAxis {
    SweepInput Input{};
    double From = 0, To = 0;
    int Steps = 0;  // points, both ends included; 2 to kMostSweepSteps

    bool operator==(const SweepAxis&) const = default;
};
inline constexpr int kMostSweepSteps = 1000;
inline constexpr std::size_t kMostSweepPoints = 250'000;

struct SweepTask {
    SetUp Present;
    SweepAxis First;
    std::optional<SweepAxis> Second;
    std::size_t Result = 0;  // row of SweepResults
};

enum class SweepFault : std::uint8_t {
    None,
    FromAboveTo,  // or equal to it
    OutOfRange,   // an end lies beyond the slider's range
    WrongSteps,   // fewer than 2, more than kMostSweepSteps, or a grid of more than kMostSweepPoints
    NoSuchInput,  // SweepInputsOf lacks it
    SameTwice,    // both axes have the same input
    NoSuchResult,
};

struct SweepSheet {
    SweepFault Fault = SweepFault::None;
    std::size_t FaultAxis = 0;  // 0 or 1
    bool Stopped = false;       // then nothing else is filled

    std::vector<double> First, Second;  // the values of the inputs, on the steps of the simulator, each once; Second
                                        // empty for one input
    std::vector<double> Values;       // First.size() a row, a row for each of Second; not a number where there is none
    std::optional<std::size_t> Best;  // the first of the best values; none where no value is better than another
};

/// @param stop     ends the sweep within some runs
/// @param watch    takes the share that is done; called from any of the threads, one call at a time
/// @param threads  0 takes as many as the machine has; the sheet is the same to the digit whatever their number
[[nodiscard]] SweepSheet Sweep(const SweepTask& task, const std::stop_token& stop = {},
                               const std::function<void(double)>& watch = {}, unsigned threads = 0);

}  // namespace zolv
