#pragma once

#include <array>
#include <string_view>

#include "language/caption_table.h"
#include "text/parsed.h"

namespace zolv {

/// The lines of a language file, which are parts of its text.
using LanguageLines = std::array<std::string_view, kCaptionLines>;

/// How every refusal of a language file begins.
inline constexpr std::string_view kWrongLineCount =
    "Language file does not have the correct number of lines. Loading failed.";

/// Reads the text of a language file: one line for each of the caption table, divided by CR LF, none behind the last.
/// Each is taken as it stands.
/// @param text  without a byte order mark; outlives the lines
/// @return refused for any other number of lines, with what was found
Parsed<LanguageLines> ParseLanguage(std::string_view text);

}  // namespace zolv
