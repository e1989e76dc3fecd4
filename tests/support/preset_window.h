#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "fields/windows.h"
#include "files/file_state.h"
#include "language/caption_table.h"
#include "language/texts.h"
#include "platform/dialogs.h"
#include "vehicle/car_selection.h"
#include "vehicle/custom_presets.h"
#include "vehicle/preset_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

/// The custom presets window as after the load, alone: no other page follows its events. A message that no test took
/// fails the test.
class PresetWindow : private Dialogs {
public:
    std::string answer = "*.cup";       // of the next file dialogs
    std::vector<FileRequest> requests;  // the file dialogs so far

protected:
    PresetWindow() {
        vehicle = {};
        presets = {};
        files = {};
        ResetWindows();
        AssignBuiltInCaptions();
        InitCatalogue();
        LoadCustomPresets();
        FillDrivetrainLists();
        CustomPresets.NewCar.OnClick = ChooseBaseCar;
        CustomPresets.EditName.OnClick = ShowPresetForEditing;
        UseDialogs(this);
    }
    ~PresetWindow() override {
        UseDialogs(nullptr);
        EXPECT_EQ(messages_, std::vector<std::string>()) << "nobody expected these messages";
    }

    /// The only message since the last call; empty for none.
    std::string TakeMessage() {
        EXPECT_LE(messages_.size(), 1U);
        const std::vector<std::string> taken = std::exchange(messages_, {});
        return taken.empty() ? "" : taken.back();
    }

    /// Adds a preset with the figures of a built-in car as they stand.
    void Add(const std::string& name, const std::string& baseCar) {
        CustomPresets.NewName.Enter(name);
        CustomPresets.NewCar.SetText(baseCar);
        AddPreset();
        ASSERT_EQ(TakeMessage(), "Added custom preset: " + name);
    }

    /// What the add panel shows, for comparing it as a whole.
    static std::vector<std::string> AddPanel() {
        std::vector<std::string> shown;
        for (const Field* field : CustomPresets.Fields()) {
            if (!field->Name().starts_with("New")) continue;
            const auto* const box = dynamic_cast<const TextBox*>(field);
            const auto* const list = dynamic_cast<const PickList*>(field);
            shown.push_back(field->Name() + " = " + (box != nullptr ? box->Text() : list->Text()));
        }
        return shown;
    }

private:
    void Message(const std::string& text) override { messages_.push_back(text); }
    std::string AskForFile(const FileRequest& request) override {
        requests.push_back(request);
        return answer;
    }

    std::vector<std::string> messages_;
};

}  // namespace zolv
