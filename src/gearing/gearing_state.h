#pragma once

#include <cstdint>
#include <vector>

#include "model/acceleration_run.h"
#include "model/acceleration_targets.h"
#include "model/engine_curve.h"
#include "model/gearbox.h"
#include "platform/hook.h"

namespace zolv {

/// The gearing in both directions. The two pages keep their gearboxes side by side, so that switching loses neither.
/// Reverse is one gear: whichever page was calculated last, its revs and speed stand in both.
struct GearingState {
    bool RatiosMode = true;  // ratios are the inputs; otherwise speeds

    Gearbox FromRatios, FromSpeeds;

    // How the gears roll at the speeds of the page that was calculated last
    GearLoads Loads;

    // Gears of the page in force whose next gear is out of order: while there are any, its inputs are new and its
    // results old.
    std::vector<int> WrongOrder;

    EngineCurve Curve;  // that of the engine as it was last drawn; before that it gives no power

    RunRows AccelRows{};
    std::int16_t AccelLastRow = -1;
    AccelerationSetup LastRun;  // with what the run in AccelRows was driven

    /// What the driver gives on the page in force.
    [[nodiscard]] Direction From() const { return RatiosMode ? Direction::FromRatios : Direction::FromSpeeds; }

    /// The gearbox of the page in force.
    [[nodiscard]] Gearbox& Present() { return RatiosMode ? FromRatios : FromSpeeds; }
};
inline GearingState gearing;

/// What follows; shell/wiring says what that is.
struct GearingFollowUps {
    Hook SpeedsFound;  // the ratios page has new results
    Hook RatiosFound;  // the speeds page has
};
inline GearingFollowUps gearingFollowUps;

/// What the model needs of the present state, apart from the gearbox itself.
[[nodiscard]] GearedCar PresentGearedCar();
[[nodiscard]] ShiftOptions PresentShiftOptions();
[[nodiscard]] ShiftRules PresentShiftRules();

/// The car with the gearbox of the page that is the input, ready to start.
[[nodiscard]] AccelerationSetup PresentAccelerationSetup();

/// The speeds and distances whose times are shown, by the unit of speed.
[[nodiscard]] const AccelTargets& PresentTargets();

}  // namespace zolv
