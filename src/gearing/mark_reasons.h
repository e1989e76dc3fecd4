#pragma once

#include <string>

/// Why a figure of the gearing carries the colour of a state, in the words and the units in force. Each tells the
/// reason alone; whether a figure has it is told by its field's colour.
namespace zolv {

[[nodiscard]] std::string WhyAboveTopSpeed();    // "Above the car's top speed, 53.6 m/s"
[[nodiscard]] std::string WhyAboveRevLimit();    // "Above the rev limiter, 8932 rpm"
[[nodiscard]] std::string WhyBelowPeakTorque();  // "Falls below peak torque, 5456 rpm"
[[nodiscard]] std::string WhyStillGaining();     // "Still gaining after 90 s"

/// What is wrong with a ratio that was found for a wanted speed: beyond a slider's range, or shorter than the gear
/// below it.
/// @param gear  1 to 6
[[nodiscard]] std::string WhyRatioIsMarked(int gear);

}  // namespace zolv
