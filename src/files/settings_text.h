#pragma once

#include <array>
#include <string>
#include <string_view>

#include "text/parsed.h"

namespace zolv {

/// What a settings file holds: the numbers as they stand there, within no range.
struct SettingsFile {
    std::string CarName;
    double FPressure = 0, RPressure = 0;  // [kPa]
    double GearF = 0;
    std::array<double, 6> Gear{};  // 1st to 6th
    double Final = 0;
    std::array<double, 6> Speed{};  // 1st to 6th, in the unit of speed that was in force when the file was saved
    double FWing = 0, RWing = 0;    // [degrees]

    bool operator==(const SettingsFile&) const = default;
};

/// Reads the text of a settings file: 19 lines "Key: value", ended by CR LF, in a fixed order. It goes by line and
/// position and never looks at a key. A value that is no number is 0; lines behind the last are not read.
/// @param text  without a byte order mark
/// @return refused where lines are missing
Parsed<SettingsFile> ParseSettings(std::string_view text);

/// The 19 lines of a set-up, numbers in their shortest form.
[[nodiscard]] std::string SettingsText(const SettingsFile& file);

}  // namespace zolv
