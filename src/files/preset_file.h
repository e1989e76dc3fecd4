#pragma once

namespace zolv {

/// Writes the preset picked in EditName to the preset file, 29 lines of a key and a value; without one picked, or when
/// the file cannot be written, a message says so and the old file stays.
/// Reads:  EditName, vehicle.CustomData, files.PresetFileName
void SavePresetFile();

/// Fills the add panel from the preset file and finds its base car, as far as it can be told; adding it is the user's
/// own step. A file that cannot be read or has too few lines leaves the panel as it is, after a message.
/// Reads:  files.PresetFileName, vehicle.CarData
/// Writes: the add panel, presets.LoadingPreset during the call
void LoadPresetFile();

/// Asks for a file and saves the preset picked in EditName there.
/// Writes: files.PresetFileName
void SavePresetAs();

/// Asks for a file and loads it into the add panel.
/// Writes: files.PresetFileName
void LoadPresetFrom();

}  // namespace zolv
