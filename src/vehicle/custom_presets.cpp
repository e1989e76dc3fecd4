#include "vehicle/custom_presets.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "model/whole_number.h"
#include "platform/dialogs.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "text/words.h"
#include "vehicle/preset_figures.h"
#include "vehicle/preset_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

PresetState presets;

namespace {

/// The one base car whose wheels are alike front and rear, so that its panel has no rear tyre.
constexpr std::string_view kEqualTyresCar = "Pell S";

/// What the boxes of the tyres allow, by base car.
struct TyreRule {
    std::string_view baseCar;
    bool typed;  // whether the boxes can be typed into
    bool rearShown = true;
    std::string Texts::*frontCaption = &Texts::TextFrontWheelSize;
};
constexpr TyreRule kTyreRules[] = {
    {kEqualTyresCar, true, false, &Texts::TextWheelSize},
    {"Ondo T", true},
    {"Ondo T Boost", true},
};
constexpr TyreRule kOtherTyreRule{"", false};

const TyreRule& TyreRuleOf(std::string_view baseCar) {
    const auto* const rule = std::ranges::find(kTyreRules, baseCar, &TyreRule::baseCar);
    return rule == std::end(kTyreRules) ? kOtherTyreRule : *rule;
}

std::array<TextBox*, 3> FrontTyreBoxes() {
    return {&CustomPresets.New.FTyreWidth, &CustomPresets.New.FTyreProfile, &CustomPresets.New.FWheelSize};
}

std::array<TextBox*, 3> RearTyreBoxes() {
    return {&CustomPresets.New.RTyreWidth, &CustomPresets.New.RTyreProfile, &CustomPresets.New.RWheelSize};
}

void ShowRearTyre(bool shown) {
    CustomPresets.CUPLabel[kCupRearWheelSize].SetVisible(shown);
    for (TextBox* box : RearTyreBoxes()) box->SetVisible(shown);
}

void ApplyTyreRule(const TyreRule& rule) {
    CustomPresets.CUPLabel[kCupFrontWheelSize].SetCaption(texts.*rule.frontCaption);
    ShowRearTyre(rule.rearShown);
    for (TextBox* box : FrontTyreBoxes()) box->SetEnabled(rule.typed);
    if (!rule.rearShown) return;
    for (TextBox* box : RearTyreBoxes()) box->SetEnabled(rule.typed);
}

std::string FigureText(const PresetFigure& figure, const CarFigures& figures) {
    return NumberText(static_cast<float>(figures[IndexOf(figure.field)] * figure.Scale()));
}

void ShowLists(PresetPanel& panel, const CarFigures& figures) {
    panel.Drivetrain.Pick(ToInt32(figures[IndexOf(CarField::DrivetrainType)]));
    panel.Gears.SetText(NumberText(figures[IndexOf(CarField::NumGears)]));
}

void ShowBaseCar(const CarFigures& figures) {
    for (const PresetFigure& figure : kPresetFigures) figure.AddBox().SetText(FigureText(figure, figures));
    // A preset's unsprung mass is a whole number, and this box cannot be typed into.
    CustomPresets.New.UnsprungMass.SetText(NumberText(ToInt32(figures[IndexOf(CarField::UnsprungMass)])));
    ShowLists(CustomPresets.New, figures);
}

void Store(std::int16_t& member, double value) { member = ToInt16(value); }
void Store(std::int32_t& member, double value) { member = ToInt32(value); }
void Store(float& member, double value) { member = static_cast<float>(value); }

void ReadFigure(const PresetFigure& figure, const TextBox& box, PresetEntry& entry) {
    const double value = Val(box.Text()) / figure.Scale();
    std::visit([&](auto member) { Store(entry.*member, value); }, figure.member);
}

void StoreFigure(const PresetFigure& figure, const PresetEntry& entry, CarFigures& figures) {
    figures[IndexOf(figure.field)] =
        std::visit([&](auto member) { return static_cast<float>(entry.*member); }, figure.member);
}

void StoreLists(const PresetEntry& entry, CarFigures& figures) {
    figures[IndexOf(CarField::DrivetrainType)] = entry.CustomDrivetrain;
    figures[IndexOf(CarField::NumGears)] = entry.CustomGears;
}

/// @param otherwise  what counts for a text that is none of the three
std::int16_t DrivetrainOf(const std::string& text, std::int16_t otherwise) {
    const auto names = DrivetrainNames();
    const auto found = std::ranges::find_if(names, [&](const std::string* name) { return *name == text; });
    return found == names.end() ? otherwise : static_cast<std::int16_t>(found - names.begin());
}

void ReadAddPanel(PresetEntry& entry) {
    for (const PresetFigure& figure : kPresetFigures) ReadFigure(figure, figure.AddBox(), entry);
    entry.CustomDrivetrain = DrivetrainOf(CustomPresets.New.Drivetrain.Text(), kNoDrivetrain);
    entry.CustomGears = ToInt16(Val(CustomPresets.New.Gears.Text()));
    if (CustomPresets.NewCar.Text() == kEqualTyresCar) {
        entry.CustomRTyreWidth = entry.CustomFTyreWidth;
        entry.CustomRTyreProfile = entry.CustomFTyreProfile;
        entry.CustomRWheelSize = entry.CustomFWheelSize;
    }
}

void ReadEditPanel(PresetEntry& entry) {
    constexpr std::int16_t kAllWheels = 2;
    for (const PresetFigure& figure : kPresetFigures) {
        if (figure.box != nullptr) ReadFigure(figure, CustomPresets.Edit.*figure.box, entry);
    }
    entry.CustomDrivetrain = DrivetrainOf(CustomPresets.Edit.Drivetrain.Text(), kAllWheels);
    entry.CustomGears = ToInt16(Val(CustomPresets.Edit.Gears.Text()));
}

bool IsTaken(const std::string& name) { return vehicle.FindCar(name) >= 0 || vehicle.FindPreset(name) >= 0; }

enum class Checked : bool { WhenAdding, Always };

/// What is to be mended: a control that both panels have, or one of the add panel alone.
using Mended = std::variant<TextBox PresetPanel::*, PickList PresetPanel::*, const Field*>;

/// What makes a preset unusable, in the order of the checks.
struct PresetCheck {
    bool (*fails)(const PresetEntry&);
    std::string Texts::*message;
    Mended mended;
    Checked checked = Checked::Always;
};

// The limits of the fractions are singles like the figures: 5% and 95% themselves pass.
// clang-format off
constexpr PresetCheck kChecks[] = {
    {[](const PresetEntry&) { return IsTaken(CustomPresets.NewName.Text()); },        &Texts::TextPresetNameUsed,       &CustomPresets.NewName, Checked::WhenAdding},
    {[](const PresetEntry&) { return vehicle.PresetsUsed >= kMaxPresets; },           &Texts::TextPresetLimit,          &CustomPresets.NewName, Checked::WhenAdding},
    {[](const PresetEntry&) { return CustomPresets.NewName.Text().empty(); },         &Texts::TextPresetNoName,         &CustomPresets.NewName, Checked::WhenAdding},
    {[](const PresetEntry&) { return CustomPresets.NewCar.Text().empty(); },          &Texts::TextPresetNoCar,          &CustomPresets.NewCar, Checked::WhenAdding},
    {[](const PresetEntry& p) { return p.CustomPower < 1; },                          &Texts::TextBadPower,             &PresetPanel::Power},
    {[](const PresetEntry& p) { return p.CustomPowerRPM < 100; },                     &Texts::TextBadPowerRpm,          &PresetPanel::PowerRPM},
    {[](const PresetEntry& p) { return p.CustomTorque < 1; },                         &Texts::TextBadTorque,            &PresetPanel::Torque},
    {[](const PresetEntry& p) { return p.CustomTorqueRPM < 100; },                    &Texts::TextBadTorqueRpm,         &PresetPanel::TorqueRPM},
    {[](const PresetEntry& p) { return p.CustomIdleRPM < 100; },                      &Texts::TextBadIdle,              &PresetPanel::IdleRPM},
    {[](const PresetEntry& p) { return p.CustomIdleRPM > p.CustomPowerRPM / 3.0; },   &Texts::TextIdleTooHigh,          &PresetPanel::IdleRPM},
    {[](const PresetEntry& p) { return p.CustomDrivetrain == kNoDrivetrain; },        &Texts::TextNoDrivetrain,         &PresetPanel::Drivetrain, Checked::WhenAdding},
    {[](const PresetEntry& p) { return p.CustomGears == 0; },                         &Texts::TextNoGears,              &PresetPanel::Gears, Checked::WhenAdding},
    {[](const PresetEntry& p) { return p.CustomMass < 1; },                           &Texts::TextBadMass,              &PresetPanel::Mass},
    {[](const PresetEntry& p) { return p.CustomUnsprungMass < 1; },                   &Texts::TextBadUnsprungMass,      &PresetPanel::UnsprungMass},
    {[](const PresetEntry& p) { return p.CustomDist < 0.05F; },                       &Texts::TextBadWeightDistLow,     &PresetPanel::Dist},
    {[](const PresetEntry& p) { return p.CustomDist > 0.95F; },                       &Texts::TextBadWeightDistHigh,    &PresetPanel::Dist},
    {[](const PresetEntry& p) { return p.CustomCx <= 0; },                            &Texts::TextBadDrag,              &PresetPanel::Cx},
    {[](const PresetEntry& p) { return p.CustomFTyreWidth < 1; },                     &Texts::TextBadFrontTyreWidth,    &PresetPanel::FTyreWidth},
    {[](const PresetEntry& p) { return p.CustomFTyreProfile < 0.01F; },               &Texts::TextBadFrontTyreProfile,  &PresetPanel::FTyreProfile},
    {[](const PresetEntry& p) { return p.CustomFWheelSize < 1; },                     &Texts::TextBadFrontRim,          &PresetPanel::FWheelSize},
    {[](const PresetEntry& p) { return p.CustomRTyreWidth < 1; },                     &Texts::TextBadRearTyreWidth,     &PresetPanel::RTyreWidth},
    {[](const PresetEntry& p) { return p.CustomRTyreProfile < 0.01F; },               &Texts::TextBadRearTyreProfile,   &PresetPanel::RTyreProfile},
    {[](const PresetEntry& p) { return p.CustomRWheelSize < 1; },                     &Texts::TextBadRearRim,           &PresetPanel::RWheelSize},
    {[](const PresetEntry& p) { return p.CustomFTrack < 0.5F; },                      &Texts::TextBadFrontTrack,        &PresetPanel::FTrack},
    {[](const PresetEntry& p) { return p.CustomRTrack < 0.5F; },                      &Texts::TextBadRearTrack,         &PresetPanel::RTrack},
    {[](const PresetEntry& p) { return p.CustomWheelbase < 0.5F; },                   &Texts::TextBadWheelbase,         &PresetPanel::Wheelbase},
};
// clang-format on
static_assert(std::size(kChecks) == 26);

const Field* FieldOf(const Mended& mended, bool adding) {
    const PresetPanel& panel = adding ? CustomPresets.New : CustomPresets.Edit;
    struct {
        const PresetPanel& panel;
        const Field* operator()(const Field* field) const { return field; }
        const Field* operator()(TextBox PresetPanel::*box) const { return &(panel.*box); }
        const Field* operator()(PickList PresetPanel::*list) const { return &(panel.*list); }
    } const ofPanel{panel};
    return std::visit(ofPanel, mended);
}

std::vector<PresetFault> FaultsOf(const PresetEntry& entry, bool adding) {
    std::vector<PresetFault> faults;
    for (const PresetCheck& check : kChecks) {
        if (!adding && check.checked == Checked::WhenAdding) continue;
        if (check.fails(entry)) faults.push_back({FieldOf(check.mended, adding), texts.*check.message});
    }
    return faults;
}

void Tell(const std::function<void(const std::string&)>& window, const std::string& sentence) {
    if (window) {
        window(sentence);
    } else {
        ShowMessage(sentence);
    }
}

/// Whether the entry passes; tells the first check that fails.
bool PassesChecks(const PresetEntry& entry, bool adding) {
    const std::vector<PresetFault> faults = FaultsOf(entry, adding);
    if (!faults.empty()) Tell(presetFollowUps.Refused, faults.front().Sentence);
    return faults.empty();
}

void ShowPresetsUsed() {
    CustomPresets.PresetsUsed.SetCaption(NumberText(vehicle.PresetsUsed) + " / " + NumberText(kMaxPresets));
}

/// What the panel does not show comes from the base car.
CarFigures FiguresOf(const PresetEntry& entry, int baseCar) {
    CarFigures figures = vehicle.FiguresOfCar(baseCar);
    for (const PresetFigure& figure : kPresetFigures) StoreFigure(figure, entry, figures);
    StoreLists(entry, figures);
    return figures;
}

}  // namespace

void LoadCustomPresets() {
    for (const std::string& car : vehicle.CarName) CustomPresets.NewCar.Add(car);
    ShowPresetsUsed();
    for (std::size_t preset = 0; preset < static_cast<std::size_t>(vehicle.PresetsUsed); ++preset) {
        CustomPresets.EditName.Add(vehicle.CustomName[preset]);
    }
}

void FillDrivetrainLists() {
    for (PickList* list : {&CustomPresets.New.Drivetrain, &CustomPresets.Edit.Drivetrain}) {
        const int row = list->Picked();
        list->Clear();
        for (const std::string* name : DrivetrainNames()) list->Add(*name);
        list->Pick(row);
    }
}

void ChooseBaseCar() {
    const std::string& baseCar = CustomPresets.NewCar.Text();
    const int car = vehicle.FindCar(baseCar);
    if (car < 0) return;
    if (!presets.LoadingPreset) ShowBaseCar(vehicle.FiguresOfCar(car));
    ApplyTyreRule(TyreRuleOf(baseCar));
}

void AddPresetOf(const std::string& name, const CarFigures& figures) {
    vehicle.StorePreset(vehicle.PresetsUsed, name, figures);
    Zolv.Select_Car.Add(name);
    ++vehicle.PresetsUsed;
    ShowPresetsUsed();
    CustomPresets.EditName.Add(name);
}

void AddPreset() {
    ReadAddPanel(presets.Entry);
    if (!PassesChecks(presets.Entry, true)) return;

    const std::string name = CustomPresets.NewName.Text();
    const int baseCar = vehicle.FindCar(CustomPresets.NewCar.Text());
    AddPresetOf(name, FiguresOf(presets.Entry, baseCar));
    Tell(presetFollowUps.Stored, texts.TextAddedPreset + " " + name);
}

std::vector<PresetFault> PresetFaults(bool adding) {
    PresetEntry entry = presets.Entry;
    (adding ? ReadAddPanel : ReadEditPanel)(entry);
    return FaultsOf(entry, adding);
}

void ShowPresetForEditing() {
    const int preset = vehicle.FindPreset(CustomPresets.EditName.Text());
    if (preset < 0) return;
    const CarFigures figures = vehicle.FiguresOfPreset(preset);
    for (const PresetFigure& figure : kPresetFigures) {
        if (figure.box != nullptr) (CustomPresets.Edit.*figure.box).SetText(FigureText(figure, figures));
    }
    ShowLists(CustomPresets.Edit, figures);
}

void UpdatePreset() {
    const std::optional<int> preset = ChosenPreset();
    if (!preset) return;
    ReadEditPanel(presets.Entry);
    if (!PassesChecks(presets.Entry, false)) return;

    const std::string& name = CustomPresets.EditName.Text();
    CarFigures figures = vehicle.FiguresOfPreset(*preset);
    for (const PresetFigure& figure : kPresetFigures) {
        if (figure.box != nullptr) StoreFigure(figure, presets.Entry, figures);
    }
    StoreLists(presets.Entry, figures);
    vehicle.StorePreset(*preset, name, figures);
    Tell(presetFollowUps.Stored, texts.TextUpdatedPreset + " " + name);
}

std::optional<int> ChosenPreset() {
    const int preset = vehicle.FindPreset(CustomPresets.EditName.Text());
    if (preset >= 0) return preset;
    ShowMessage(words["SelectPresetFirst"]);
    return std::nullopt;
}

}  // namespace zolv
