#pragma once

#include <string>
#include <string_view>

namespace zolv {

/// A text on one line: line breaks as \n, tabs as \t, backslashes as \\.
[[nodiscard]] std::string OneLine(std::string_view text);

/// One line on standard output.
void PrintLine(std::string_view line);

}  // namespace zolv
