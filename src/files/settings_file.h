#pragma once

#include <string>
#include <string_view>

namespace zolv {

/// A settings file holds one set-up; its text is told in settings_text.h. No unit is stored: speeds are in the unit of
/// speed in force.

/// Writes the set-up to files.CurrentFileName. A failed write shows a message and leaves the old file whole.
/// Reads: Select_Car, pressures, both gearboxes, wing angles
void SaveSettingsFile();

/// Reads files.OpenFileName and applies it, with guards.Busy set. A car in neither table shows a message and closes the
/// current file. A file that cannot be read or has too few lines shows a message, and everything stays as it was.
/// @return whether the file could be read, its car known or not
bool LoadSettingsFile();

/// The menu entries. FileOpen ends with the follow-up fileFollowUps.SettingsOpened, unless the dialog was cancelled or
/// the file could not be read.
void OpenSettings();

/// Opens a file as FileOpen does with the name that its dialog returned.
void OpenSettingsFile(const std::string& name);

void SaveSettings();

/// A set-up that could not be written under its new name keeps the one that it had, in the title as well.
void SaveSettingsAs();
void CloseSettings();

/// The set-up as the text of a settings file.
[[nodiscard]] std::string PresentSettingsText();

/// Opens such a text as if it stood in a file, but without a file's name and without messages: one that is no set-up,
/// or of a car that is not there, changes nothing.
void OpenSettingsText(std::string_view text);

}  // namespace zolv
