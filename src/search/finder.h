#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

#include "model/by_gear.h"
#include "model/set_up.h"
#include "search/goal.h"

/// Finds the set-up that is best at a goal.
///
/// The search is global first, then local. Free ratios are sought as logarithms, since what counts is by what share two
/// gears differ. Where all ratios and the final drive are free, only their products count to the car: all ratios times
/// k with the final drive over k is the same car, so the products are sought and the final drive stays where it is, as
/// far as the bounds allow. Islands, each an evolution strategy with adapted covariance (N. Hansen, "The CMA Evolution
/// Strategy: A Tutorial", arXiv:1604.00772) on random numbers of its own, start at the present set-up and at gearboxes
/// spread over the bounds; the best of them are polished input by input in the simulator's steps, and what does not
/// matter to the goal goes back to where it was. What an island finds does not depend on when and on which thread it
/// runs, so that the result is the same to the digit whatever the number of threads.
namespace zolv {

/// What may be changed.
enum class FinderInput : std::uint8_t {
    Ratio1,
    Ratio2,
    Ratio3,
    Ratio4,
    Ratio5,
    Ratio6,
    FinalDrive,
    FrontWing,
    RearWing
};
inline constexpr std::size_t kFinderInputs = 9;

/// One value for each input: a ratio, the final drive, or degrees.
template <class Value>
struct PerInput {
    std::array<Value, kFinderInputs> values{};

    constexpr Value& operator[](FinderInput input) { return values[static_cast<std::size_t>(input)]; }
    constexpr const Value& operator[](FinderInput input) const { return values[static_cast<std::size_t>(input)]; }

    bool operator==(const PerInput&) const = default;
};

struct FinderRange {
    double Low = 0, High = 0;  // both included

    bool operator==(const FinderRange&) const = default;
};

/// The ranges of the sliders, which no bound exceeds.
// clang-format off
inline constexpr PerInput<FinderRange> kFinderRanges{{{
    {0.5, 7.5}, {0.5, 7.5}, {0.5, 7.5}, {0.5, 7.5}, {0.5, 7.5}, {0.5, 7.5}, {0.5, 7.5}, {0, 15}, {0, 30}}}};
// clang-format on

/// What the found set-up must come up to, beside the goal.
struct FinderWishes {
    struct AtSpeed {
        double Speed = 0;  // [m/s]
        double Force = 0;  // [N]
    };
    std::optional<double> TopSpeed;    // [m/s] that a run from a standing start passes
    std::optional<AtSpeed> Downforce;  // of the whole car, at least
    bool NeutralBalance = false;       // share of the lift on the front axle within kNeutralBand of that of the weight
};
inline constexpr double kNeutralBand = 0.005;

struct FinderTask {
    SetUp Present;  // where its speeds are given, its gears are those that reach them
    Goal Target;
    PerInput<bool> Free;  // gears and wings that the car lacks stay as they are
    PerInput<FinderRange> Bounds = kFinderRanges;
    FinderWishes Wishes;
};

enum class FinderFault : std::uint8_t {
    None,
    Goal,  // FaultOf(Target) says what
    NothingFree,
    BoundsLeaveNothing,  // for the input: no step lies within them, or none in the order of the gears
    WishesLeaveNothing,  // no angle of the wings gives the downforce and the balance
};

/// How far one input may be moved, the others standing, before the goal is 0.01 s or 0.01 m/s worse: the last step on
/// either side, no further than bounds and order allow.
struct FinderFlatness {
    FinderInput Input{};
    double Low = 0, High = 0;

    bool operator==(const FinderFlatness&) const = default;
};
inline constexpr double kFlat = 0.01;  // [s] or [m/s]

struct FinderResult {
    FinderFault Fault = FinderFault::None;  // with any, nothing was sought
    FinderInput FaultInput{};
    bool Stopped = false;  // before its end; what stands here is the best until then

    SetUp Found;          // from ratios; the present one where nothing better was found
    GoalValue Before;     // nothing reached where the gears were in the wrong order
    GoalValue After;      // not Reached: the goal is out of reach, and Most says how far the best gearbox gets
    bool Wished = false;  // whether Found comes up to the wishes; without wishes true
    std::int64_t Evaluations = 0;
    std::vector<FinderFlatness> Flatness;  // of each free input; empty when stopped or not reached
};

/// How far a search has come.
struct FinderProgress {
    double Done = 0;  // share of the work, rising to 1
    std::int64_t Evaluations = 0;
    GoalValue Best;  // so far
};
using FinderWatch = std::function<void(const FinderProgress&)>;

/// @param stop     ends the search within some runs
/// @param watch    called now and then, from any of the threads, one call at a time
/// @param threads  0 takes as many as the machine has
[[nodiscard]] FinderResult FindBest(const FinderTask& task, const std::stop_token& stop = {},
                                    const FinderWatch& watch = {}, unsigned threads = 0);

}  // namespace zolv
