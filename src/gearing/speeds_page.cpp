#include "gearing/speeds_page.h"

#include <vector>

#include "aero/aero_state.h"
#include "fields/guards.h"
#include "fields/windows.h"
#include "gearing/acceleration_page.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "model/ratio_search.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

/// A gear that the car lacks passes the order check behind any that it can reach with this.
constexpr float kLackingSpeed = 200;  // [m/s]

void ReadSpeeds() {
    ByGear& speeds = gearing.GearSpeed[1];
    for (int gear = 1; gear <= kGears; ++gear) {
        float& speed = speeds[static_cast<std::size_t>(gear)];
        speed = static_cast<float>(Val(Zolv.Speeds.Input[gear].Text()) / units.Speed.Factor);
        Zolv.Speeds.Input[gear].SetColour(speed > aero.TopSpeed ? kRed : kBlack);
        if (gear >= 3 && vehicle.CurrentCar.NumGears < gear) speed = kLackingSpeed;
    }
    gearing.FinalDrive[1] = static_cast<float>(Val(Zolv.Speeds.FinalDrive.Text()));
}

std::vector<int> GearsInWrongOrder() {
    std::vector<int> wrong;
    const ByGear& speeds = gearing.GearSpeed[1];
    for (std::size_t gear = 1; gear < kGears; ++gear) {
        if (speeds[gear + 1] < speeds[gear]) wrong.push_back(static_cast<int>(gear));
    }
    return wrong;
}

/// The writing of B_Final is a change like any other: outside a recalculation it starts one, inside which everything is
/// found anew. What follows here goes on with what that has left.
void FindRatios() {
    const FoundRatios found =
        SearchRatios(PresentShiftRules(), gearing.GearSpeed[1], gearing.GearSpeedFactor, gearing.FinalDrive[1]);
    for (std::size_t gear = 1; gear <= kGears; ++gear) {
        gearing.GearRevs[1][gear] = found.Revs[gear];
        gearing.GearRatio[1][gear] = found.Ratios[gear];
    }
    gearing.FinalDrive[1] = found.FinalDrive;
    if (found.Raised) Zolv.Speeds.FinalDrive.SetText(NumberText(found.FinalDrive));
}

void CalcRevsAfterChange() {
    for (std::size_t gear = 1; gear < kGears; ++gear) {
        const double wheelRevs = static_cast<double>(gearing.GearSpeed[1][gear]) / gearing.GearSpeedFactor[gear];
        gearing.RevsAfterChange[1][gear] =
            static_cast<float>(wheelRevs * gearing.FinalDrive[1] * gearing.GearRatio[1][gear + 1]);
    }
}

/// Limits are no errors: a ratio beyond the sliders' range is red, one above that of the gear below it blue.
std::optional<Rgb> RatioColour(std::size_t gear) {
    constexpr double kLowestRatio = 0.5;
    const ByGear& ratios = gearing.GearRatio[1];
    if (ratios[gear] > kHighestRatio) return kRed;
    if (gear > 1 && ratios[gear] > ratios[gear - 1]) return kBlue;
    return ColourIf(ratios[gear] < kLowestRatio, kRed);
}

void ShowRatios() {
    for (int gear = 1; gear <= kGears; ++gear) {
        const auto i = static_cast<std::size_t>(gear);
        Zolv.Speeds.Result[gear].SetColour(RatioColour(i));
        Zolv.Speeds.Result[gear].SetCaption(RoundedText(gearing.GearRatio[1][i], 3));
    }
}

}  // namespace

void UpdateRatios() {
    ReadSpeeds();
    if (const std::vector<int> wrong = GearsInWrongOrder(); !wrong.empty()) {
        ReportOrder({texts.TextRatiosNotUpdated, texts.TextSpeedFor, texts.TextCannotBeLess}, wrong);
        return;
    }
    // The speeds are given, so that one pass settles the loads and the tyres.
    CalcGearAxleLoads();
    CalcGearSpeedFactors();
    CalcGearRatios();
}

void CalcGearRatios() {
    FindRatios();
    CalcRevsAfterChange();
    CalcReverse();
    CalcGearTorque(1);

    ShowRatios();
    ShowReverseSpeed();
    ShowGearRevs(Zolv.Speeds, 1);
    ShowGearTorque(Zolv.Speeds, 1);
    if (options.AccelerationOn) RunAcceleration();
    gearing.RatiosFound();
}

void ChooseSpeedsPage() {
    Zolv.Speeds.Frame.BringToFront();
    gearing.RatiosMode = false;
    {
        const Raised busy(guards.Busy);
        Zolv.Speeds.FinalDriveSlider.SetValue(Zolv.Ratios.FinalDriveSlider.Value());
        for (int gear = 1; gear <= kGears; ++gear) {
            const double speed = gearing.GearSpeed[0][static_cast<std::size_t>(gear)];
            Zolv.Speeds.Input[gear].SetText(NumberText(speed * units.Speed.Factor));
        }
    }
    UpdateRatios();
}

}  // namespace zolv
