#pragma once

#include "model/set_up.h"
#include "platform/hook.h"

/// The set-up that lies on the pages: the value is gathered from the fields, or laid onto them.
namespace zolv {

/// What the driver has decided, as the fields and options hold it at this moment. A number in a box that has not been
/// calculated with, because the order of the gears is wrong, is gathered like any other.
/// Reads: Select_Car, both gearboxes, pressures, wings, tyre type, air speed, vehicle, tyres, aero, options, units
[[nodiscard]] SetUp PresentSetUp();

/// Writes a set-up to the fields and refreshes the pages once at the end. Choices (direction, tyre type, blown tyres,
/// speed of the air, shift points) are placed without their events, since each of them starts a hand-over or a
/// recalculation of its own; the car and the inputs are written as their own events have it, in the order of a settings
/// file, with guards.Busy raised. A box takes its number in the unit in force, limited by its slider.
/// @param setUp  Targets is not laid out: it goes by the unit of speed
/// @return false, with nothing touched, where the car list lacks the car
bool LayOut(const SetUp& setUp);

/// What follows; shell/wiring says what that is.
struct DeskFollowUps {
    Hook LaidOut;  // a set-up lies on the pages: everything that shows it is to be worked out anew
};
inline DeskFollowUps deskFollowUps;

}  // namespace zolv
