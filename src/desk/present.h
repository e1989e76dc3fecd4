#pragma once

#include <array>
#include <string>

#include "model/by_gear.h"
#include "model/set_up.h"
#include "platform/hook.h"

/// The set-up that lies on the pages: the value is gathered from the fields, or laid onto them.
namespace zolv {

/// What the driver has decided, as the fields and options hold it at this moment. A number in a box that has not been
/// calculated with, because the order of the gears is wrong, is gathered like any other.
/// Reads: Select_Car, both gearboxes, pressures, wings, tyre type, air speed, vehicle, tyres, aero, options, units
[[nodiscard]] SetUp PresentSetUp();

/// Whether a set-up lies on the pages as far as anything follows from it: the numbers of the direction that is not in
/// force do not count, nor do the targets, which go by the unit of speed.
[[nodiscard]] bool LiesOnPages(const SetUp& setUp);

/// Writes a set-up to the fields and refreshes the pages once at the end. Choices (direction, tyre type, blown tyres,
/// speed of the air, shift points) are placed without their events, since each of them starts a hand-over or a
/// recalculation of its own; the car and the inputs are written as their own events have it, in the order of a settings
/// file, with guards.Busy raised. A box takes its number in the unit in force, limited by its slider.
/// @param setUp  Targets is not laid out: it goes by the unit of speed
/// @return false, with nothing touched, where the car list lacks the car
bool LayOut(const SetUp& setUp);

/// The texts of the boxes of both gearboxes: what was typed, which may say more than its number.
struct BoxTexts {
    std::array<std::string, 2> FinalDrive;  // by Direction
    std::array<PerGear<std::string>, 2> Inputs;
    int SpeedUnit = 0;  // of the speeds among them

    bool operator==(const BoxTexts&) const = default;
};
[[nodiscard]] BoxTexts PresentBoxTexts();

/// The same with each box at its own number: a slider that moves rewrites its box in the slider's own steps, so that
/// the boxes are written once more when all sliders stand. The choice of shift points, which is an option, stays.
/// @param texts  what the boxes read, where the unit is still the same; nullptr for the numbers' own texts
bool LayOutExactly(SetUp setUp, const BoxTexts* texts = nullptr);

/// The set-up with ratios, speeds, final drives, pressures and wings moved into the ranges of their fields, as they are
/// when it is laid out.
/// @param setUp  with the record of its car
[[nodiscard]] SetUp WithinRanges(SetUp setUp);

/// Why a set-up that was taken earlier cannot lie on the pages again: its car, a preset, is gone or has been changed
/// since. Empty where it can.
[[nodiscard]] std::string WhyNotLaidOut(const SetUp& setUp);

/// What follows; shell/wiring says what that is.
struct DeskFollowUps {
    Hook LaidOut;  // a set-up lies on the pages: everything that shows it is to be worked out anew
};
inline DeskFollowUps deskFollowUps;

}  // namespace zolv
