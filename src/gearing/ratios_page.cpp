#include "gearing/ratios_page.h"

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

void ReadRatios() {
    Gearbox& box = gearing.FromRatios;
    ByGear ratios;
    for (int gear = 1; gear <= kGears; ++gear) {
        ratios[gear] = static_cast<float>(Val(Zolv.Ratios.Input[gear].Text()));
    }
    ratios[0] = vehicle.CurrentCar.Reverse;
    box.GearRatio = WithoutLackingGears(ratios, vehicle.CurrentCar.NumGears, kLackingRatio);
    box.FinalDrive = static_cast<float>(Val(Zolv.Ratios.FinalDrive.Text()));
}

void ColourSpeeds(const Gearbox& box) {
    const auto colourOf = [](float speed) { return speed > aero.TopSpeed ? kRed : kBlack; };
    for (int gear = 1; gear <= kGears; ++gear) Zolv.Ratios.Result[gear].SetColour(colourOf(box.GearSpeed[gear]));
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) panel->SpeedR.SetColour(colourOf(box.GearSpeed[0]));
}

}  // namespace

void UpdateSpeeds() {
    ReadRatios();
    if (CheckOrder(gearing.FromRatios.GearRatio, Direction::FromRatios)) CalcGearSpeeds();
}

void CalcGearSpeeds() {
    Gearbox& box = gearing.FromRatios;
    const GearedCar car = PresentGearedCar();
    // While the other page is the input, the axle loads follow its speeds.
    FindSpeeds(car, gearing.RatiosMode ? nullptr : &gearing.FromSpeeds.GearSpeed, box, gearing.Loads);
    KeepDrivenDeformation();
    CalcReverse();
    FindTorque(car, box);

    ShowGearsOf(Showing::Present, Zolv.Ratios, box);
    ShowReverseRevs(Showing::Present, box);
    ColourGears(Zolv.Ratios, box);
    ColourSpeeds(box);
    if (options.AccelerationOn) RunAcceleration();
    gearingFollowUps.SpeedsFound();
}

void ChooseRatiosPage() {
    Zolv.Ratios.Frame.BringToFront();
    gearing.RatiosMode = true;
    {
        const Raised busy(guards.Busy);
        Zolv.Ratios.FinalDriveSlider.SetValue(Zolv.Speeds.FinalDriveSlider.Value());
        for (int gear = 1; gear <= kGears; ++gear) {
            Zolv.Ratios.Input[gear].SetText(NumberText(gearing.FromSpeeds.GearRatio[gear]));
        }
    }
    UpdateSpeeds();
}

}  // namespace zolv
