#pragma once

#include <array>
#include <string>
#include <string_view>

#include "text/parsed.h"
#include "units/option_state.h"
#include "units/unit_catalogue.h"

namespace zolv {

/// What an options file holds.
struct OptionsFile {
    std::array<int, kQuantities> Units{};  // the row of each quantity, in the order of UnitCatalogue()
    OptionState Options;

    bool operator==(const OptionsFile&) const = default;
};

/// Reads the text of an options file: 31 lines "Key: value", ended by CR LF, in a fixed order. It goes by line and
/// position and never looks at a key; numbers are the last characters of their line, as many as the range needs.
/// @param text  without a byte order mark
/// @return refused where lines are missing, or a unit or a scale does not exist
Parsed<OptionsFile> ParseOptions(std::string_view text);

/// The 31 lines. Fixed engine speeds of one to three digits do not read back: the reader takes five characters.
[[nodiscard]] std::string OptionsText(const OptionsFile& file);

}  // namespace zolv
