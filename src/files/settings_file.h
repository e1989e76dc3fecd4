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

/// Asks for a file and holds its set-up beside the present one, with what a file lacks as it is at present. What cannot
/// be read, or is of a car that is not there, shows a message and changes nothing.
void HoldSettings();
void HoldSettingsFile(const std::string& name);

void SaveSettings();

/// A set-up that could not be written under its new name keeps the one that it had, in the title as well.
void SaveSettingsAs();
void CloseSettings();

/// Takes the present set-up for the one that is saved, as after the load.
void NoteSaved();

/// Whether the present set-up differs in anything that a file holds from the one that was last saved or opened.
[[nodiscard]] bool SettingsChanged();

/// The set-up as the text of a settings file, but with its speeds in m/s whatever unit is in force.
[[nodiscard]] std::string PresentSettingsText();

/// Lays out such a text, without messages: one that is no set-up, or of a car that is not there, changes nothing.
/// @return whether it was laid out
bool LayOutSettingsText(std::string_view text);

/// Makes a file of an earlier start the current one again, whatever lies on the pages; one that cannot be read any more
/// is left.
void ResumeFile(const std::string& name);

}  // namespace zolv
