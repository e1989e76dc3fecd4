#include "vehicle/car_selection.h"

#include "fields/all_windows.h"
#include "fields/guards.h"
#include "fields/label_names.h"
#include "model/whole_number.h"
#include "text/number_text.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

void SetPressureRanges(const CarRecord& car) {
    const auto setRange = [](Slider& slider, const PressureRange& range) {
        slider.SetRange(range.lowest, range.highest);
    };
    setRange(Zolv.Select_PressureF, PressureRange(car.FMinPressure, car.FMaxPressure));
    setRange(Zolv.Select_PressureR, PressureRange(car.RMinPressure, car.RMaxPressure));
}

void ShowReverseRatio(const CarRecord& car) {
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) panel->GearR.SetCaption(NumberText(car.Reverse));
}

/// The rows of gears 3 to 6 on both panels; 1 and 2 are always there.
void ShowGears(int numGears) {
    for (int gear = 3; gear <= 6; ++gear) {
        const bool has = numGears >= gear;
        for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) {
            panel->Input[gear].SetVisible(has);
            panel->InputSlider[gear].SetVisible(has);
            panel->Result[gear].SetVisible(has);
            panel->RPM[gear].SetVisible(has);
            panel->RAC[gear - 1].SetVisible(has);
            panel->Torque[gear].SetVisible(has);
        }
        Zolv.Label_SPD[gear].SetVisible(has);
        Zolv.GearingLabel[kGearingTorque + gear].SetVisible(has);
        Zolv.GearingLabel[kGearingOfSpeeds + kGearingTorque + gear].SetVisible(has);
    }
}

void ShowReverse(bool has) {
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) {
        panel->GearR.SetVisible(has);
        panel->RPMR.SetVisible(has);
        panel->SpeedR.SetVisible(has);
        panel->TorqueR.SetVisible(has);
    }
    Zolv.GearingLabel[kGearingReverse].SetVisible(has);
    Zolv.GearingLabel[kGearingOfSpeeds + kGearingReverse].SetVisible(has);
}

void ShowFittings(const CarRecord& car) {
    const bool undertray = car.UndertrayType != 0;
    const bool frontWing = car.FrontWingType != 0;
    const bool rearWing = car.RearWingType != 0;
    Zolv.AeroPanel[kAeroUndertray].SetVisible(undertray);

    Zolv.AeroPanel[kAeroFrontWing].SetVisible(frontWing);
    Zolv.Select_FrontWingAngle.SetVisible(frontWing);
    Zolv.WingAngleFront.SetVisible(frontWing);
    Zolv.AeroLabel[kAeroFrontWingAngle].SetVisible(frontWing);

    Zolv.AeroPanel[kAeroRearWing].SetVisible(rearWing);
    Zolv.Select_RearWingAngle.SetVisible(rearWing);
    Zolv.WingAngleRear.SetVisible(rearWing);
    Zolv.AeroLabel[kAeroRearWingAngle].SetVisible(rearWing);

    // Without a device for downforce the tyre's load does not depend on a speed that could be set.
    const bool any = undertray || frontWing || rearWing;
    Zolv.TyreLabel[kTyreCarSpeed].SetVisible(any);
    Zolv.AeroSpeed_TyreTab.SetVisible(any);
    Zolv.Select_AeroSpeed_TyreTab.SetVisible(any);
}

}  // namespace

PressureRange::PressureRange(double min, double max) : lowest(ToInt32(min)), highest(std::max(lowest, ToInt32(max))) {}

void InitCatalogue() {
    for (std::size_t car = 0; car < kCars; ++car) {
        vehicle.CarName[car] = Catalogue()[car].name;
        for (std::size_t field = 0; field < kCarFields; ++field) {
            vehicle.CarData[field * kCars + car] = Catalogue()[car].figures[field];
        }
    }
    vehicle.PresetsUsed = 0;
}

void SelectCar() {
    const std::optional<CarRecord> record = vehicle.RecordNamed(Zolv.Select_Car.Text());
    if (!record) return;  // the list holds only known names

    const CarRecord& car = *record;
    vehicle.CurrentCar = car;
    vehicle.Tyres = TyreSizesOf(car);
    vehicle.Curve = FittedCurve(EngineOf(car));
    SetPressureRanges(car);
    ShowReverseRatio(car);
    ShowGears(car.NumGears);
    ShowReverse(car.Reverse != 1);
    ShowFittings(car);
    if (!guards.Loading) vehicleFollowUps.CarChanged();
}

}  // namespace zolv
