#pragma once

#include <string>

namespace zolv {

/// Writes the set-up sheet by the ending of the path: .html, .csv or .txt, in letters of either case. Beside a CSV the
/// rows of the run go into a second file, "NAME-run.csv", where there is a run. Each file is there whole or not at all.
/// @return the reason as words for a message, empty when all was written
[[nodiscard]] std::string WriteSheet(const std::string& path);

/// The file of the run's rows beside a sheet "NAME.csv".
[[nodiscard]] std::string RunFileBeside(const std::string& path);

/// Asks for a file and writes the sheet into it; a message says what went wrong.
void SaveSheet();

/// Shows the sheet where there are windows for it, otherwise asks for a file.
void OpenSheet();

}  // namespace zolv
