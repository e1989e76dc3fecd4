#pragma once

namespace zolv {

/// The options file, "Options.ini" in the program's folder, holds all units and options; its text is told in
/// options_text.h.

/// Writes the options. A failed write shows a message and leaves the old file whole.
/// Reads: units, options
void SaveOptions();

/// Reads the options and applies them; ends with the follow-up fileFollowUps.OptionsLoaded. A file that is missing or
/// empty shows TextOptionsMissing. One that cannot be read, lacks lines, or holds a unit or a scale that does not exist
/// shows a message with the reason. In both cases the options in memory are applied, since a start needs them applied
/// once.
///
/// Writes: units, options, the options panel
void LoadOptions();

/// Whether the options are others than when they were last loaded or saved.
[[nodiscard]] bool OptionsChanged();

}  // namespace zolv
