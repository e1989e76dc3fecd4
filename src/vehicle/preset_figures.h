#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <variant>

#include "fields/custom_presets_window.h"
#include "model/car_record.h"
#include "vehicle/preset_state.h"

namespace zolv {

/// Where a field stands in CarFigures.
constexpr std::size_t IndexOf(CarField field) { return static_cast<std::size_t>(field); }

/// A figure of a car that a preset has in a box of its own: where it stands in the record, in the preset as read, and
/// on the panels. Drivetrain and gears are lists and not among them.
struct PresetFigure {
    using Member = std::variant<std::int16_t PresetEntry::*, std::int32_t PresetEntry::*, float PresetEntry::*>;

    CarField field;
    Member member;
    TextBox PresetPanel::*box = nullptr;                  // of both panels
    TextBox CustomPresetsWindow::*addPanelBox = nullptr;  // of a figure that the edit panel lacks
    bool percent = false;                                 // the box shows hundredths of what the record holds

    TextBox& AddBox() const { return box != nullptr ? CustomPresets.New.*box : CustomPresets.*addPanelBox; }

    /// What a figure of the record is multiplied by for its box.
    double Scale() const { return percent ? 100 : 1; }
};

// clang-format off
inline constexpr std::array<PresetFigure, 20> kPresetFigures = {{
    {CarField::Power,        &PresetEntry::CustomPower,        &PresetPanel::Power},
    {CarField::PowerRPM,     &PresetEntry::CustomPowerRPM,     &PresetPanel::PowerRPM},
    {CarField::Torque,       &PresetEntry::CustomTorque,       &PresetPanel::Torque},
    {CarField::TorqueRPM,    &PresetEntry::CustomTorqueRPM,    &PresetPanel::TorqueRPM},
    {CarField::IdleRPM,      &PresetEntry::CustomIdleRPM,      &PresetPanel::IdleRPM},
    {CarField::Mass,         &PresetEntry::CustomMass,         &PresetPanel::Mass},
    {CarField::WeightDist,   &PresetEntry::CustomDist,         &PresetPanel::Dist,         nullptr, true},
    {CarField::Cd,           &PresetEntry::CustomCx,           &PresetPanel::Cx},
    {CarField::FTW,          &PresetEntry::CustomFTyreWidth,   &PresetPanel::FTyreWidth},
    {CarField::FTP,          &PresetEntry::CustomFTyreProfile, &PresetPanel::FTyreProfile, nullptr, true},
    {CarField::FWS,          &PresetEntry::CustomFWheelSize,   &PresetPanel::FWheelSize},
    {CarField::FTrack,       &PresetEntry::CustomFTrack,       &PresetPanel::FTrack},
    {CarField::RTW,          &PresetEntry::CustomRTyreWidth,   &PresetPanel::RTyreWidth},
    {CarField::RTP,          &PresetEntry::CustomRTyreProfile, &PresetPanel::RTyreProfile, nullptr, true},
    {CarField::RWS,          &PresetEntry::CustomRWheelSize,   &PresetPanel::RWheelSize},
    {CarField::RTrack,       &PresetEntry::CustomRTrack,       &PresetPanel::RTrack},
    {CarField::Wheelbase,    &PresetEntry::CustomWheelbase,    &PresetPanel::Wheelbase},
    {CarField::UnsprungMass, &PresetEntry::CustomUnsprungMass, &PresetPanel::UnsprungMass},
    {CarField::Efficiency,   &PresetEntry::CustomEfficiency,   nullptr, &CustomPresetsWindow::NewDrivetrainEff, true},
    {CarField::FrontalArea,  &PresetEntry::CustomFrontalArea,  nullptr, &CustomPresetsWindow::NewFrontalArea},
}};
// clang-format on
static_assert(std::ranges::is_sorted(kPresetFigures, {}, &PresetFigure::field));

/// The figure that stands at a field of the record; nullptr for one that no box shows.
constexpr const PresetFigure* FindPresetFigure(CarField field) {
    const auto* const found = std::ranges::find(kPresetFigures, field, &PresetFigure::field);
    return found == kPresetFigures.end() ? nullptr : found;
}

}  // namespace zolv
