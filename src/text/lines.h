#pragma once

#include <string_view>
#include <vector>

namespace zolv {

/// What ends every line of a file that the program writes.
inline constexpr std::string_view kLineEnd = "\r\n";

/// Splits at CR LF. A text that ends in CR LF has an empty last line; a line feed alone does not end a line, unless it
/// is given as what does.
std::vector<std::string_view> SplitLines(std::string_view text, std::string_view lineEnd = kLineEnd);

/// The same without the empty line behind a last line end: the lines of a file whose every line ends.
std::vector<std::string_view> EndedLines(std::string_view text, std::string_view lineEnd = kLineEnd);

/// What stands in a line from that character on; nothing where the line is shorter.
std::string_view From(std::string_view line, std::size_t first);

/// The last characters of a line; the whole of a shorter one.
std::string_view LastOf(std::string_view line, std::size_t characters);

}  // namespace zolv
