#pragma once

#include <string>
#include <vector>

namespace zolv {

/// What the desktop program was started with.
struct CommandLine {
    std::string file = {};    // the set-up to open, with its whole path; empty for none
    std::string answer = {};  // for standard output, in place of a window
    std::string fault = {};   // for standard error, where it cannot be used
};

/// Reads the words behind the program's name: one FILE, or --help, or --version; behind "--" each is a file.
[[nodiscard]] CommandLine ReadCommandLine(const std::vector<std::string>& words);

/// Prints the answer, or the fault.
/// @return the status to end with
int Answer(const CommandLine& line);

/// Behind a fresh start and before the load: finds where the program's own files lie, goes there, and sets
/// platform.SharedPath. A folder that cannot be used is told, and the current one stays.
void EnterDataFolder();

/// Behind the load: opens the set-up that was named, if one was.
void OpenNamedFile(const CommandLine& line);

}  // namespace zolv
