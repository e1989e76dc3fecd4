#pragma once

#include <string>

#include "fields/zolv_window.h"
#include "gearing/gearing_state.h"

/// What the two directions of the gearing share.
namespace zolv {

/// Works out reverse with the final drive of the page that is the input.
/// Reads:  vehicle, tyres, aero, options, gearing.Present()
/// Writes: entry 0 of both gearboxes and of gearing.Loads
void CalcReverse();

/// Fills GearAxleLoads of the forward gears at the speeds of the page that is the input.
void CalcGearAxleLoads();

/// Turns GearAxleLoads into GearSpeedFactor: this is where the rolling radius comes from. Leaves the deformation of
/// gear 6 on the driven axle.
void CalcGearSpeedFactors();

/// Keeps the driven tyre's deformation in gear 6 where the side view of the tyre finds it.
/// Writes: tyres.FrontDeformation or RearDeformation
void KeepDrivenDeformation();

/// Stores which gears of the page of that direction are in the wrong order, where it is the page in force. If any are,
/// writes the report onto TorquePlot, in red, and brings that plot into view.
/// @param given  what the page was given
/// @return whether the order holds
bool CheckOrder(const ByGear& given, Direction direction);

/// Writes that report anew, of the page in force, over what TorquePlot shows.
void ReportWrongOrder();

/// Writes what follows from a gearbox on one page: speeds or ratios, engine speeds before and after the change, torque,
/// and the speed of reverse, which both pages show.
void ShowGearsOf(Showing which, GearingPanel& panel, const Gearbox& box);

/// The engine speed of reverse, on both pages. The speeds page alone leaves it.
void ShowReverseRevs(Showing which, const Gearbox& box);

/// The colours that both pages have alike: red beyond the limiter, blue where the change drops below peak torque.
void ColourGears(GearingPanel& panel, const Gearbox& box);

/// The words that report numbers in the wrong order, in the language in force.
struct OrderWords {
    const std::string& notUpdated;
    const std::string& theNumberFor;
    const std::string& isWrongAgainst;
};
[[nodiscard]] OrderWords OrderWordsOf(Direction direction);

/// "The ratio for 2nd cannot be shorter than the ratio for 1st".
/// @param gear  one whose next gear is out of order
[[nodiscard]] std::string OrderSentence(const OrderWords& words, int gear);

/// Red or blue for a state that wants attention; otherwise the system's own.
inline std::optional<Rgb> ColourIf(bool condition, Rgb colour) {
    return condition ? std::optional(colour) : std::nullopt;
}

}  // namespace zolv
