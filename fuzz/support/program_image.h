#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "aero/aero_state.h"
#include "fields/windows.h"
#include "files/file_state.h"
#include "gearing/gearing_state.h"
#include "language/language_state.h"
#include "platform/text_files.h"
#include "plots/engine_plot.h"
#include "shell/shell_state.h"
#include "text/texts.h"
#include "tyres/tyre_state.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/preset_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

/// What one field holds, whatever its kind.
struct SavedField {
    explicit SavedField(const Field& field);

    /// Puts it back, without an event: the field's hooks come loose.
    void PutBack(Field& field) const;
    bool operator==(const SavedField& other) const;

    Look look;
    std::string text;  // of a box; the path of a picture
    std::vector<std::string> rows;
    int picked = -1;
    bool locked = false;
    int min = 0, max = 0, value = 0;  // of a slider
    bool on = false;                  // checked, or on top of its stack
    std::optional<Canvas> drawing;
};

/// The whole program at one moment. A fresh start takes a hundred times as long as putting this back.
class ProgramImage {
public:
    /// Takes the image of the program as it stands.
    ProgramImage();

    /// Puts back the fields that changed since, and all state.
    void PutBack() const;

    /// The fields that differ from the image, as "Window.Field".
    [[nodiscard]] std::vector<std::string> Differences() const;

private:
    std::unordered_map<const Field*, SavedField> fields_;
    PlatformState platform_ = platform;
    Texts texts_ = texts;
    UnitState units_ = units;
    OptionState options_ = options;
    VehicleState vehicle_ = vehicle;
    PresetState presets_ = presets;
    TyreState tyres_ = tyres;
    AeroState aero_ = aero;
    GearingState gearing_ = gearing;
    PlotState plots_ = plots;
    FileState files_ = files;
    LanguageState language_ = language;
    ShellState shell_ = shell;
};

/// The fields of all windows that changed since the last image was taken or put back, which this does not forget.
std::vector<Field*> ChangedFields();

}  // namespace zolv
