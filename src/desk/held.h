#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "fields/kinds.h"
#include "model/run_times.h"
#include "model/set_up.h"
#include "model/sheet.h"
#include "model/wheel_forces.h"
#include "platform/hook.h"

/// The set-up that is held beside the present one, so that every figure and curve can say what a change is worth.
namespace zolv {

/// What is held was worked out once, when it was taken, and once more when another unit of speed brought other targets:
/// the run ends behind the longer distance.
struct HeldSetUp {
    zolv::SetUp SetUp;
    TyreSizes Tyres;
    zolv::Sheet Sheet;
    RunRows Rows{};  // of its run, as far as Sheet.Run.LastRow
    RunTimes Times;
    AccelerationSetup Start;  // that the run was driven with; with gears in the wrong order it and the forces are empty
    ForcesOverSpeed Forces;
    std::string File;  // that it came from, without its folder; empty for one taken from the pages

    [[nodiscard]] std::span<const AccelRow> Run() const {
        return std::span(Rows).first(static_cast<std::size_t>(Sheet.Run.LastRow + 1));
    }
};

struct DeskState {
    std::shared_ptr<const HeldSetUp> Held;  // nullptr for none
};
inline DeskState desk;

/// What follows; shell/wiring says what that is.
struct HeldFollowUps {
    Hook HeldChanged;  // another set-up is held, or none: the drawings are to be made anew
};
inline HeldFollowUps heldFollowUps;

/// Holds the set-up that lies on the pages, in place of any held before.
/// Writes: desk.Held, and what ShowHeld writes
void HoldPresent();

/// Holds another set-up.
/// @param file  as HeldSetUp::File
void Hold(const SetUp& setUp, const std::string& file = {});

/// Takes back what was held at another moment, which may be nothing.
void HoldAgain(std::shared_ptr<const HeldSetUp> held);

/// Lays the held set-up out and holds what was present. Where its car is not the same any more a message says so, and
/// nothing changes. Without a held one it does nothing.
void SwapWithHeld();

void ReleaseHeld();

/// Which way a figure goes when it gets better: times down, speeds that are reached up.
enum class BetterWay : std::uint8_t { Neither, Up, Down };
[[nodiscard]] BetterWay BetterWayOf(const Label& figure);

/// Label::Change, but none for what is older than the inputs while the gears are in the wrong order.
[[nodiscard]] std::string ChangeOf(const Label& figure);

/// By how much later the present run has the speed of one of its rows than the held run: "+0.12", in seconds, or empty
/// where no run is held or it does not reach that speed.
[[nodiscard]] std::string TimeLostAtRow(int row);

/// "Sable T, 4.15 s to 30 m/s": what is held, by its car and its time to a speed, or its file in place of the time;
/// empty where nothing is held.
[[nodiscard]] std::string HeldName();

/// Writes the held figures of all labels, in the units and the language in force, and what is held into Label_Held; or
/// clears them where none is held.
/// Reads:  desk.Held, units, texts, options, FrontTyreAnal
/// Writes: Label::Held of all labels, Label_Held, the buttons and entries that swap and release, tyres.HeldSheets, and
///         desk.Held anew where the unit of speed has other targets
void ShowHeld();

}  // namespace zolv
