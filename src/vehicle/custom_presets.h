#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/car_record.h"

namespace zolv {

class Field;

/// The load of the window: lists the cars that a preset can be based upon, and the presets there are.
/// Reads:  vehicle
/// Writes: NewCar, EditName, PresetsUsed
void LoadCustomPresets();

/// Puts the three kinds of drivetrain into the lists of both panels, in the language in force. A list keeps its row.
/// Writes: NewDrivetrain, EditDrivetrain
void FillDrivetrainLists();

/// The base car was picked in NewCar: fills the add panel with its figures, unless a file is filling it, and sets which
/// tyre boxes can be typed into.
/// Reads:  NewCar, presets.LoadingPreset, vehicle.CarData
/// Writes: the add panel but for NewName
void ChooseBaseCar();

/// Adds the preset on the add panel to the cars, or says what is wrong with it. The car in use stays.
/// Reads:  the add panel
/// Writes: presets.Entry, vehicle.CustomData/CustomName/PresetsUsed, Select_Car, EditName, PresetsUsed
void AddPreset();

/// Adds a preset whose name is free, without a question.
/// @param figures  of a car as the checks let one through; vehicle.PresetsUsed is below kMaxPresets
/// Writes: what AddPreset writes of the cars and the lists
void AddPresetOf(const std::string& name, const CarFigures& figures);

/// What is wrong on a panel, and the field that is to be mended.
struct PresetFault {
    const Field* Where = nullptr;
    std::string Sentence;
};

/// All that stands against adding the preset on the add panel, or against updating the one on the edit panel, in the
/// order of the checks; empty where nothing does.
/// Reads: the panel
std::vector<PresetFault> PresetFaults(bool adding);

/// Shows the preset picked in EditName on the edit panel.
/// Reads:  EditName, vehicle.CustomData
/// Writes: the edit panel
void ShowPresetForEditing();

/// Stores the figures on the edit panel in the preset picked there, or says what is wrong with them. What the panel
/// does not show stays; so does the car in use, which takes the figures at its next selection.
/// Reads:  the edit panel
/// Writes: presets.Entry, vehicle.CustomData
void UpdatePreset();

/// Index of the preset picked in EditName; none, after a message, where none is picked.
std::optional<int> ChosenPreset();

}  // namespace zolv
