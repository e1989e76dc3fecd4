#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/parsed.h"

namespace zolv {

/// What a list of languages holds.
struct LanguageListFile {
    std::int16_t Number = 0;  // of the stored choice, from 1; 0 is none yet. No language need have it: -9 to 99
    std::vector<std::string> Names;
    bool LastLineEnds = false;  // what follows the last line end counts as one more line when a choice is saved

    bool operator==(const LanguageListFile&) const = default;
};

/// Reads the text of a list: line 0 "Language: " and the number, of which the last two characters count, so that 112 is
/// 12; then a name a line. Lines end in CR LF, or all of them in LF alone; the last may do without.
/// @param text  without a byte order mark
/// @return refused where it neither names a language nor stores a choice
Parsed<LanguageListFile> ParseLanguageList(std::string_view text);

/// The number to store for the name that is chosen, as text: the last of equal names, nothing for a name that the list
/// lacks. With none chosen it is that of the empty line behind the last line end, which no language has.
[[nodiscard]] std::string NumberToStore(const LanguageListFile& list, std::string_view chosen);

/// The text of a list with another number in line 0; every line ends.
[[nodiscard]] std::string LanguageListText(std::string_view number, const std::vector<std::string>& names);

}  // namespace zolv
