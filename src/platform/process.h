#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace zolv {

/// What a program is called with, behind its own name, as UTF-8. Takes what main() is given; on Windows, where that
/// has lost whatever the code page lacks, it asks the system itself.
[[nodiscard]] std::vector<std::string> ArgumentsOf(int argc, char** argv);

/// For the start of a program that talks through its standard streams: they pass every byte as it is, and a console
/// shows them as UTF-8 while the program runs.
void PassBytesThrough();

/// Says something without a window of the program's own, on stdout or stderr. A windowed program on Windows has
/// neither unless they lead into a file or a pipe: it then takes the console that it was started from, and where there
/// is none, a box.
/// @return false where it could not be said
bool Say(std::FILE* stream, const std::string& text);

}  // namespace zolv
