#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "model/set_up.h"
#include "search/goal.h"

/// What the finder is asked.
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
    bool NeutralBalance = false;       // as BalanceOf has it
};

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
    WishAtNoSpeed,       // one for a speed, or for downforce at one, that is not above 0
    BoundsHoldNoStep,    // for the input: no value that the simulator takes lies within them
    BoundsLeaveNothing,  // for the gear: none of those is in order with its neighbours
    WishesLeaveNothing,  // no angle of the wings gives the downforce and the balance
};

}  // namespace zolv
