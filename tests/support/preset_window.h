#pragma once

#include <string>
#include <vector>

#include "support/zolv_test.h"
#include "vehicle/car_selection.h"
#include "vehicle/custom_presets.h"
#include "vehicle/preset_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

/// The custom presets window as after the load, alone: no other page follows its events.
class PresetWindow : public ZolvTest {
protected:
    PresetWindow() {
        InitCatalogue();
        LoadCustomPresets();
        FillDrivetrainLists();
        CustomPresets.NewCar.OnClick = ChooseBaseCar;
        CustomPresets.EditName.OnClick = ShowPresetForEditing;
    }

    /// Adds a preset with the figures of a built-in car as they stand.
    void Add(const std::string& name, const std::string& baseCar) {
        CustomPresets.NewName.Enter(name);
        CustomPresets.NewCar.SetText(baseCar);
        AddPreset();
        ExpectMessage("Added custom preset: " + name);
    }

    void AddAndEdit(const std::string& name, const std::string& baseCar) {
        Add(name, baseCar);
        CustomPresets.EditName.SetText(name);
    }

    /// What the add panel shows, for comparing it as a whole.
    static std::vector<std::string> AddPanel() {
        std::vector<std::string> shown;
        for (const Field* field : CustomPresets.Fields()) {
            if (!field->Name().starts_with("New")) continue;
            shown.push_back(field->Name() + " = " + Shown("CustomPresets." + field->Name()));
        }
        return shown;
    }
};

}  // namespace zolv
