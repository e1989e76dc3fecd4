#pragma once

#include <string>
#include <string_view>

namespace zolv {

/// A settings file holds one set-up; its text is told in settings_text.h. No unit is stored: speeds are in the unit of
/// speed in force.

/// Writes the set-up to files.CurrentFileName. A failed write shows a message and leaves the old file whole.
/// Reads: Select_Car, pressures, both gearboxes, wing angles
void SaveSettingsFile();

/// The menu entry: asks for a file and opens it, unless the dialog was cancelled.
void OpenSettings();

/// Lays out what a file holds of a set-up; the rest stays as it was. A file that cannot be read or has too few lines
/// shows a message, and everything stays as it was. A car in neither table shows a message and closes the current file;
/// the pages are then refreshed as they stand.
/// Writes: files.OpenFileName and CurrentFileName, the title, and what LayOut writes
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
