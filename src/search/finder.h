#pragma once

#include <cstdint>
#include <functional>
#include <stop_token>
#include <vector>

#include "search/finder_task.h"

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
///
/// Why no library: on the 57 searches for a time in bench/finder_cases.h, some 13,000 runs each, this search stays
/// within 0.002 s of the reference in bench/finder_reference.txt; of NLopt 2.7.1's global methods, each followed by its
/// local SBPLX, with as many runs, ISRES is worse than it by more than 0.01 s in 11 (0.16 s at worst), MLSL in 14, ESCH
/// in 19, CRS2 in 20, DIRECT-L in 38. The costs jump where a change of gear moves to another step, and have a basin for
/// each number of changes.
namespace zolv {

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
