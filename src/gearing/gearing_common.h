#pragma once

#include <span>
#include <string>

#include "fields/zolv_window.h"
#include "gearing/gearing_state.h"

/// What the two directions of the gearing share.
namespace zolv {

/// Works out reverse with the final drive of the page that is the input.
/// Reads:  vehicle, tyres, aero, options, gearing.GearRatio[0][0], FinalDrive
/// Writes: gearing.GearRevs/GearSpeed[0][0], GearAxleLoads/GearSpeedFactor[0]
void CalcReverse();

/// Fills gearing.GearAxleLoads of the forward gears at the speeds of the page that is the input.
void CalcGearAxleLoads();

/// Turns gearing.GearAxleLoads into gearing.GearSpeedFactor: this is where the rolling radius comes from. Leaves the
/// deformation of gear 6 on the driven axle.
void CalcGearSpeedFactors();

/// Keeps a driven tyre's deformation where the side view of the tyre finds it.
void KeepDrivenDeformation(double deformation);

/// Torque at the wheels in all gears at peak engine torque.
void CalcGearTorque(int mode);

/// The texts of a report of numbers in the wrong order.
struct OrderReport {
    const std::string& notUpdated;
    const std::string& theNumberFor;
    const std::string& isWrongAgainst;
};

/// Writes the report onto TorquePlot, in red, and brings that plot into view.
/// @param wrong  the gears whose next gear is out of order, upward
void ReportOrder(const OrderReport& report, std::span<const int> wrong);

/// Colours and captions that both pages have alike: engine speeds before and after the change, torque, reverse speed.
void ShowGearRevs(GearingPanel& panel, int mode);
void ShowGearTorque(GearingPanel& panel, int mode);
void ShowReverseSpeed();

/// Red or blue for a state that wants attention; otherwise the system's own.
inline std::optional<Rgb> ColourIf(bool condition, Rgb colour) {
    return condition ? std::optional(colour) : std::nullopt;
}

}  // namespace zolv
