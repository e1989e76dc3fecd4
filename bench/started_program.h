#pragma once

namespace zolv {

/// The program in a folder of its own under the system's one for temporary files, with a set-up whose run fills all
/// 1801 rows: a car that is geared so long that it still gains speed after 90 seconds.
/// @param folder  without files, except for what a benchmark puts there
void StartProgram(const char* folder = "empty");

}  // namespace zolv
