#include "gearing/ratios_page.h"

#include <optional>
#include <vector>

#include "aero/aero_state.h"
#include "fields/guards.h"
#include "fields/windows.h"
#include "gearing/acceleration_page.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

/// The bottom of the ratio sliders: a gear that the car lacks passes the order check behind any other with it.
constexpr float kLackingRatio = 0.5F;

void ReadRatios() {
    ByGear& ratios = gearing.GearRatio[0];
    ratios[0] = vehicle.CurrentCar.Reverse;
    for (int gear = 1; gear <= kGears; ++gear) {
        const bool lacking = gear >= 3 && vehicle.CurrentCar.NumGears < gear;
        ratios[static_cast<std::size_t>(gear)] =
            lacking ? kLackingRatio : static_cast<float>(Val(Zolv.Ratios.Input[gear].Text()));
    }
    gearing.FinalDrive[0] = static_cast<float>(Val(Zolv.Ratios.FinalDrive.Text()));
}

std::vector<int> GearsInWrongOrder() {
    std::vector<int> wrong;
    const ByGear& ratios = gearing.GearRatio[0];
    for (std::size_t gear = 1; gear < kGears; ++gear) {
        if (ratios[gear + 1] > ratios[gear]) wrong.push_back(static_cast<int>(gear));
    }
    return wrong;
}

/// While the other page is the input, the axle loads follow its speeds.
void SettleSpeeds() {
    const RollingCar car = PresentRollingCar();
    for (std::size_t gear = 1; gear <= kGears; ++gear) {
        std::optional<double> loadSpeed;
        if (!gearing.RatiosMode) loadSpeed = gearing.GearSpeed[1][gear];
        const SettledGear settled = SettleGear(car, gearing.GearRevs[0][gear], gearing.GearRatio[0][gear],
                                               gearing.FinalDrive[0], kForwardRounds, loadSpeed);
        gearing.GearSpeed[0][gear] = settled.Speed;
        gearing.GearAxleLoads[gear] = settled.Loads;
        gearing.GearSpeedFactor[gear] = settled.SpeedFactor;
        KeepDrivenDeformation(settled.Deformation);
    }
}

void CalcRevsAfterChange() {
    for (std::size_t gear = 1; gear < kGears; ++gear) {
        gearing.RevsAfterChange[0][gear] = RevsAfterChangeOf(gearing.GearSpeed[0][gear], gearing.GearSpeedFactor[gear],
                                                             gearing.GearRatio[0][gear + 1], gearing.FinalDrive[0]);
    }
}

void ShowSpeeds() {
    const auto colourOf = [](float speed) { return speed > aero.TopSpeed ? kRed : kBlack; };
    for (int gear = 1; gear <= kGears; ++gear) {
        const float speed = gearing.GearSpeed[0][static_cast<std::size_t>(gear)];
        Zolv.Ratios.Result[gear].SetColour(colourOf(speed));
        Zolv.Ratios.Result[gear].SetCaption(units.Speed.Text(speed));
    }
    const std::string reverseRevs = WithUnit(gearing.GearRevs[0][0], 0, texts.RpmSuffix);
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) {
        panel->SpeedR.SetColour(colourOf(gearing.GearSpeed[0][0]));
        panel->RPMR.SetCaption(reverseRevs);
    }
    ShowReverseSpeed();
}

}  // namespace

void UpdateSpeeds() {
    ReadRatios();
    if (const std::vector<int> wrong = GearsInWrongOrder(); !wrong.empty()) {
        ReportOrder({texts.TextSpeedsNotUpdated, texts.TextRatioFor, texts.TextCannotBeShorter}, wrong);
        return;
    }
    CalcGearSpeeds();
}

void CalcGearSpeeds() {
    const ByGear revs = ShiftPoints(PresentShiftRules(), gearing.GearRatio[0]);
    for (std::size_t gear = 1; gear <= kGears; ++gear) gearing.GearRevs[0][gear] = revs[gear];
    SettleSpeeds();
    CalcRevsAfterChange();
    CalcReverse();
    CalcGearTorque(0);

    ShowGearRevs(Zolv.Ratios, 0);
    ShowSpeeds();
    ShowGearTorque(Zolv.Ratios, 0);
    if (options.AccelerationOn) RunAcceleration();
    gearing.SpeedsFound();
}

void ChooseRatiosPage() {
    Zolv.Ratios.Frame.BringToFront();
    gearing.RatiosMode = true;
    {
        const Raised busy(guards.Busy);
        Zolv.Ratios.FinalDriveSlider.SetValue(Zolv.Speeds.FinalDriveSlider.Value());
        for (int gear = 1; gear <= kGears; ++gear) {
            Zolv.Ratios.Input[gear].SetText(NumberText(gearing.GearRatio[1][static_cast<std::size_t>(gear)]));
        }
    }
    UpdateSpeeds();
}

}  // namespace zolv
