#include "desk/present.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "aero/aero_state.h"
#include "fields/all_windows.h"
#include "fields/guards.h"
#include "gearing/gearing_inputs.h"
#include "gearing/gearing_state.h"
#include "model/whole_number.h"
#include "text/number_text.h"
#include "text/words.h"
#include "tyres/tyre_state.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/car_selection.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

/// Takes what hangs on an event away for as long as it lives, so that a field can be placed without it.
class [[nodiscard]] Muted {
public:
    explicit Muted(Hook& hook) : hook_(hook), work_(std::exchange(hook, {})) {}
    Muted(const Muted&) = delete;
    Muted& operator=(const Muted&) = delete;
    ~Muted() { hook_ = std::move(work_); }

private:
    Hook& hook_;
    Hook work_;
};

void Place(OptionButton& button) {
    const Muted quiet(button.OnClick);
    button.Choose();
}

void Place(CheckBox& box, bool checked) {
    const Muted quiet(box.OnClick);
    box.SetChecked(checked);
}

void Place(PickList& list, int row) {
    const Muted quiet(list.OnClick);
    list.Pick(row);
}

void Place(TextBox& box, std::string text) {
    const Muted quiet(box.OnChange);
    box.SetText(std::move(text));
}

void PlaceDirection(Direction from) {
    gearing.RatiosMode = from == Direction::FromRatios;
    Place(gearing.RatiosMode ? Zolv.Direction1 : Zolv.Direction2);
    (gearing.RatiosMode ? Zolv.Ratios : Zolv.Speeds).Frame.BringToFront();
}

void PlaceTyres(const SetUp& setUp) {
    Place(Zolv.Select_Tyres, setUp.TyreType);
    Place(Zolv.Select_Tyres2, setUp.TyreType);
    tyres.TyreMu = static_cast<float>(setUp.TyreMu);
    tyres.BlowTyresOn = setUp.Blown;
    Place(Zolv.BlowTyres, setUp.Blown);
}

void PlaceAirSpeed(std::optional<int> speed) {
    aero.FixedSpeedMode = !speed.has_value();
    Place(speed ? Zolv.UseSliderSpeed : Zolv.UseFixedSpeed);
    for (Slider* slider : {&Zolv.Select_AeroSpeed, &Zolv.Select_AeroSpeed_TyreTab}) {
        slider->SetEnabled(speed.has_value());
        if (speed) slider->SetValue(*speed);
    }
}

void PlaceShifts(const ShiftOptions& shifts) {
    options.AutoRevs = shifts.AutoRevs;
    options.RevLimitOn = shifts.RevLimitOn;
    options.RevsMaxMode = shifts.RevsMaxMode;
    Place(shifts.RevsMaxMode ? OptionsPanel.RevsP : OptionsPanel.RevsR);
    Place(shifts.AutoRevs ? OptionsPanel.RC_Auto : OptionsPanel.RC_Fixed);
    Place(OptionsPanel.RevLimitEnable, shifts.RevLimitOn);
    OptionsPanel.RC_FixedVal.SetEnabled(!shifts.AutoRevs);
    OptionsPanel.RevLimitEnable.SetEnabled(shifts.AutoRevs);
    const std::int32_t revs = ToInt32(shifts.CustomRevs);
    if (revs == options.CustomRevs) return;  // the box may hold more than its number
    options.CustomRevs = revs;
    Place(OptionsPanel.RC_FixedVal, NumberText(revs));
}

/// What is as it should be is left alone: an option's box may stand otherwise than the option, since loading options
/// moves no box back.
void PlaceChoices(const SetUp& setUp, const SetUp& present) {
    if (setUp.From != present.From) PlaceDirection(setUp.From);
    if (setUp.AirSpeed != present.AirSpeed) PlaceAirSpeed(setUp.AirSpeed);
    if (setUp.Shifts != present.Shifts) PlaceShifts(setUp.Shifts);
    PlaceTyres(setUp);
}

void WriteInputs(const SetUp& setUp) {
    const auto write = [](GearingPanel& panel, double finalDrive, const PerGear<double>& numbers, double factor) {
        panel.FinalDrive.SetText(NumberText(finalDrive));
        for (int gear = 1; gear <= kGears; ++gear) panel.Input[gear].SetText(NumberText(numbers[gear] * factor));
    };
    Zolv.Select_PressureF.SetValue(setUp.FrontPressure);
    Zolv.Select_PressureR.SetValue(setUp.RearPressure);
    write(Zolv.Ratios, setUp.FinalDrive[0], setUp.Ratios, 1);
    write(Zolv.Speeds, setUp.FinalDrive[1], setUp.Speeds, units.Speed.Factor);
    Zolv.Select_FrontWingAngle.SetValue(setUp.FrontWingAngle);
    Zolv.Select_RearWingAngle.SetValue(setUp.RearWingAngle);
}

/// The boxes of both gearboxes with their texts, one after the other.
template <class Texts, class Work>
void ForEachBox(Texts& texts, Work work) {
    for (std::size_t mode = 0; mode < 2; ++mode) {
        GearingPanel& panel = Zolv.GearingOf(static_cast<int>(mode));
        work(panel.FinalDrive, texts.FinalDrive[mode]);
        for (int gear = 1; gear <= kGears; ++gear) work(panel.Input[gear], texts.Inputs[mode][gear]);
    }
}

/// @param writeMore  what else is to stand before everything is worked out
template <class Work>
bool Lay(const SetUp& setUp, Work writeMore) {
    if (Zolv.Select_Car.Find(setUp.CarName) < 0) return false;
    {
        const Raised busy(guards.Busy);
        PlaceChoices(setUp, PresentSetUp());
        Zolv.Select_Car.SetText(setUp.CarName);
        WriteInputs(setUp);
        writeMore();
    }
    deskFollowUps.LaidOut();
    return true;
}

PerGear<double> NumbersOf(GearingPanel& panel, double factor) {
    PerGear<double> numbers;
    for (int gear = 1; gear <= kGears; ++gear) numbers[gear] = Val(panel.Input[gear].Text()) / factor;
    return numbers;
}

}  // namespace

SetUp PresentSetUp() {
    SetUp setUp{.CarName = Zolv.Select_Car.Text(),
                .Car = vehicle.CurrentCar,
                .From = gearing.From(),
                .Ratios = NumbersOf(Zolv.Ratios, 1),
                .Speeds = NumbersOf(Zolv.Speeds, units.Speed.Factor),
                .FinalDrive = {Val(Zolv.Ratios.FinalDrive.Text()), Val(Zolv.Speeds.FinalDrive.Text())},
                .FrontPressure = Zolv.Select_PressureF.Value(),
                .RearPressure = Zolv.Select_PressureR.Value(),
                .Blown = tyres.BlowTyresOn,
                .TyreType = Zolv.Select_Tyres.Picked(),
                .TyreMu = tyres.TyreMu,
                .FrontWingAngle = Zolv.Select_FrontWingAngle.Value(),
                .RearWingAngle = Zolv.Select_RearWingAngle.Value(),
                .AirSpeed = {},
                .Shifts = PresentShiftOptions(),
                .Targets = units.Speed.Unit};
    if (!aero.FixedSpeedMode) setUp.AirSpeed = Zolv.Select_AeroSpeed.Value();
    return setUp;
}

bool LiesOnPages(const SetUp& setUp) {
    SetUp present = PresentSetUp();
    const bool fromRatios = present.From == Direction::FromRatios;
    present.Targets = setUp.Targets;
    (fromRatios ? present.Speeds : present.Ratios) = fromRatios ? setUp.Speeds : setUp.Ratios;
    present.FinalDrive[fromRatios ? 1 : 0] = setUp.FinalDrive[fromRatios ? 1 : 0];
    return present == setUp;
}

bool LayOut(const SetUp& setUp) {
    return Lay(setUp, [] {});
}

BoxTexts PresentBoxTexts() {
    BoxTexts texts;
    texts.SpeedUnit = units.Speed.Unit;
    ForEachBox(texts, [](TextBox& box, std::string& text) { text = box.Text(); });
    return texts;
}

bool LayOutExactly(SetUp setUp, const BoxTexts* texts) {
    setUp.Shifts = PresentShiftOptions();
    return Lay(setUp, [&] {
        WriteInputs(setUp);
        if (texts == nullptr || texts->SpeedUnit != units.Speed.Unit) return;
        ForEachBox(*texts, [](TextBox& box, const std::string& text) { Place(box, text); });
    });
}

SetUp WithinRanges(SetUp setUp) {
    for (const GearingInputs& inputs : BothGearingInputs()) {
        const bool ratios = &inputs.panel == &Zolv.Ratios;
        double& finalDrive = setUp.FinalDrive[ratios ? 0 : 1];
        finalDrive = WithinRange(finalDrive, inputs.panel.FinalDriveSlider, kThousandths);
        const double unit = ratios ? 1 : units.Speed.Factor;
        for (int gear = 1; gear <= kGears; ++gear) {
            double& number = (ratios ? setUp.Ratios : setUp.Speeds)[gear];
            number = WithinRange(number * unit, inputs.panel.InputSlider[gear], inputs.scale) / unit;
        }
    }
    const CarRecord& car = setUp.Car;
    setUp.FrontPressure = PressureRange(car.FMinPressure, car.FMaxPressure).Limit(setUp.FrontPressure);
    setUp.RearPressure = PressureRange(car.RMinPressure, car.RMaxPressure).Limit(setUp.RearPressure);
    const auto within = [](int value, const Slider& slider) { return std::clamp(value, slider.Min(), slider.Max()); };
    setUp.FrontWingAngle = within(setUp.FrontWingAngle, Zolv.Select_FrontWingAngle);
    setUp.RearWingAngle = within(setUp.RearWingAngle, Zolv.Select_RearWingAngle);
    return setUp;
}

std::string WhyNotLaidOut(const SetUp& setUp) {
    const std::optional<CarRecord> car = vehicle.RecordNamed(setUp.CarName);
    if (!car) return words.Sentence("CarIsGone", {setUp.CarName});
    return *car == setUp.Car ? std::string() : words.Sentence("CarHasChanged", {setUp.CarName});
}

}  // namespace zolv
