#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "model/car_record.h"
#include "text/parsed.h"

namespace zolv {

/// Figures of a preset file: those of a car, but for the fittings at the end of its record.
inline constexpr std::size_t kPresetFileFigures = 28;

/// What a preset file holds: the name, and the figures in the order of CarField, as they stand there.
struct PresetFile {
    std::string Name;
    std::array<double, kPresetFileFigures> Figures{};

    double operator[](CarField field) const { return Figures[static_cast<std::size_t>(field)]; }
    bool operator==(const PresetFile&) const = default;
};

/// The drivetrain of a line that ends in none of 0, 1 and 2.
inline constexpr double kUnknownDrivetrain = 3;

/// Reads the text of a preset file: 29 lines "Key: value", ended by CR LF, in a fixed order. It goes by line and
/// position and never looks at a key. Of drivetrain and gears only the last character counts. A value that is no number
/// is 0; lines behind the last are not read.
/// @param text  without a byte order mark
/// @return refused where lines are missing
Parsed<PresetFile> ParsePreset(std::string_view text);

/// The 29 lines of a preset, each figure in the shortest form of a 32-bit float.
[[nodiscard]] std::string PresetText(const std::string& name, const CarFigures& figures);

}  // namespace zolv
