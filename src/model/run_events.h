#pragma once

#include <cstddef>
#include <cstdint>

namespace zolv {

/// Why a run ended.
enum class RunEnd : std::uint8_t {
    GainsNoMore,  // the long distance is behind it, and the net force below 5 N
    TimeIsOver,   // the rows are full, 90 s
    Stands,       // it does not move off, or came to a stand
};

/// A sink is told what happens in a run, at once, from within the step. This one lets everything pass: the compiler
/// leaves nothing of it in a run that nobody watches. A sink of one's own has the same calls; what it is told of a step
/// it can date when the step is over.
struct Unwatched {
    /// The driving force of the step [N].
    /// @param limit     what the tyres can take in it [N]; a force that reaches it was cut to it
    /// @param shifting  whether the drive is cut for a change of gear
    static void Pulls(double /*force*/, float /*limit*/, bool /*shifting*/) {}

    /// From the next step on the clutch passes all torque on.
    static void ClutchCloses() {}

    /// From the next step on the next gear is in.
    /// @param gear           the one that is left
    /// @param before, after  engine speed in both gears at this road speed [rpm]
    static void ChangesUp(std::size_t /*gear*/, double /*before*/, double /*after*/) {}
};

}  // namespace zolv
