#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zolv {

/// Why a text that lacks lines is no file of its kind, in words for someone who knows cars and not files: another kind
/// of file, a part of one, or one whose line ends an editor has changed.
/// @param kind    what the file should be, "a set-up"
/// @param wanted  its number of lines
[[nodiscard]] std::string MissingLines(std::string_view text, std::string_view kind, std::size_t wanted);

}  // namespace zolv
