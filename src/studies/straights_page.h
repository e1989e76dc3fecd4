#pragma once

/// The straights of a track, in the finder's window: the text in the field Straights is that of a `.straights` file.
namespace zolv {

/// The text has changed: reads it, says how many straights there are or what is wrong, and drives them.
/// Writes: finder.Track, StraightsNote, StraightTimes
void ReadTrack();

/// Says how many straights there are, or what is wrong with the text.
void ShowTrackNote();

/// Whether there are straights to search with; if not, a message has said what is wrong.
[[nodiscard]] bool ExpectTrack();

/// Asks for a file and puts its straights into the field. A file that cannot be read, or is none, shows a message with
/// the line and the reason, and changes nothing.
void OpenStraights();

/// Asks for a name and writes the straights. A text that is none, or a write that fails, shows a message.
void SaveStraightsAs();

/// Time and end speed of each straight, with the present set-up and with the found one.
/// Writes: StraightTimes
void ShowStraightTimes();

}  // namespace zolv
