#include "gearing/speeds_page.h"

#include <optional>

#include "aero/aero_state.h"
#include "fields/all_windows.h"
#include "fields/guards.h"
#include "gearing/acceleration_page.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "text/number_text.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

void ReadSpeeds() {
    Gearbox& box = gearing.FromSpeeds;
    ByGear speeds = box.GearSpeed;  // reverse stays
    for (int gear = 1; gear <= kGears; ++gear) {
        speeds[gear] = static_cast<float>(Val(Zolv.Speeds.Input[gear].Text()) / units.Speed.Factor);
        Zolv.Speeds.Input[gear].SetColour(speeds[gear] > aero.TopSpeed ? kRed : kBlack);
    }
    box.GearSpeed = WithoutLackingGears(speeds, vehicle.CurrentCar.NumGears, kLackingSpeed);
    box.FinalDrive = static_cast<float>(Val(Zolv.Speeds.FinalDrive.Text()));
}

/// Limits are no errors: a ratio beyond the sliders' range is red, one above that of the gear below it blue.
std::optional<Rgb> RatioColour(const ByGear& ratios, int gear) {
    if (ratios[gear] > kHighestRatio) return kRed;
    if (gear > 1 && ratios[gear] > ratios[gear - 1]) return kBlue;
    return ColourIf(ratios[gear] < kLowestRatio, kRed);
}

void ColourRatios(const ByGear& ratios) {
    for (int gear = 1; gear <= kGears; ++gear) Zolv.Speeds.Result[gear].SetColour(RatioColour(ratios, gear));
}

}  // namespace

void UpdateRatios() {
    ReadSpeeds();
    if (!CheckOrder(gearing.FromSpeeds.GearSpeed, Direction::FromSpeeds)) return;
    // The speeds are given, so that one pass settles the loads and the tyres.
    CalcGearAxleLoads();
    CalcGearSpeedFactors();
    CalcGearRatios();
}

void CalcGearRatios() {
    Gearbox& box = gearing.FromSpeeds;
    // The writing of B_Final is a change like any other: outside a recalculation it starts one, inside which everything
    // is found anew. What follows here goes on with what that has left.
    if (FindRatios(PresentGearedCar(), gearing.Loads, box)) Zolv.Speeds.FinalDrive.SetText(NumberText(box.FinalDrive));
    FindRevsAfterChange(gearing.Loads, box);
    CalcReverse();
    FindTorque(PresentGearedCar(), box);

    ShowGearsOf(Showing::Present, Zolv.Speeds, box);
    ColourGears(Zolv.Speeds, box);
    ColourRatios(box.GearRatio);
    if (options.AccelerationOn) RunAcceleration();
    gearingFollowUps.RatiosFound();
}

void ChooseSpeedsPage() {
    Zolv.Speeds.Frame.BringToFront();
    gearing.RatiosMode = false;
    {
        const Raised busy(guards.Busy);
        Zolv.Speeds.FinalDriveSlider.SetValue(Zolv.Ratios.FinalDriveSlider.Value());
        for (int gear = 1; gear <= kGears; ++gear) {
            Zolv.Speeds.Input[gear].SetText(NumberText(gearing.FromRatios.GearSpeed[gear] * units.Speed.Factor));
        }
    }
    UpdateRatios();
}

}  // namespace zolv
