#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A track as the list of its straights, which is what matters of a track to a gearbox, and the `.straights` file that
/// holds one.
namespace zolv {

struct Straight {
    std::string Name;
    double EntrySpeed = 0;  // [m/s] at its beginning; 0 is a standing start
    double Length = 0;      // [m]

    bool operator==(const Straight&) const = default;
};

inline constexpr std::size_t kMostStraights = 1000;
inline constexpr double kFastestEntry = 200;        // [m/s]
inline constexpr double kLongestStraight = 20'000;  // [m]

/// A file's straights, with the units that its header names, in which it is written again.
struct StraightsFile {
    std::string SpeedUnit = "m/s";  // or km/h, mph, knots, ft/s
    std::string LengthUnit = "m";   // or km, ft, yd, mi
    std::vector<Straight> Straights;

    bool operator==(const StraightsFile&) const = default;
};

enum class StraightsFault : std::uint8_t {
    NoHeader,          // the first line is not "name,entry speed,length"
    UnknownUnit,       // Text is the unit
    WrongColumns,      // a line has more or fewer than three
    UnclosedQuotes,    // a quoted name does not end on its line
    NotANumber,        // Text is what stands in place of one
    EntryOutOfRange,   // Text is the number: 0 to kFastestEntry
    LengthOutOfRange,  // Text is the number: above 0, to kLongestStraight
    TooMany,           // more than kMostStraights
    None,              // not one straight
};

/// Where a text is not a `.straights` file, and why.
struct StraightsError {
    StraightsFault Fault{};
    int Line = 0;      // from 1
    std::string Text;  // what stands there

    bool operator==(const StraightsError&) const = default;
};

struct StraightsRead {
    StraightsFile File;                   // empty with an error
    std::optional<StraightsError> Error;  // the first
};

/// Reads a whole file: UTF-8, comma separated, its header "name,entry speed [km/h],length [m]". Units stand in square
/// or round brackets or bare behind a blank; without any they are m/s and m. A name with a comma or quotes in it stands
/// in double quotes, and quotes within it are doubled. Blank lines, blanks around a cell, a byte order mark and either
/// kind of line end are taken as they come; the decimal point is a point.
[[nodiscard]] StraightsRead ReadStraights(std::string_view text);

/// The text of a file, its numbers with at most six decimals. What ReadStraights has read reads the same again, unless
/// it has finer digits or line breaks in its names, which become blanks.
[[nodiscard]] std::string StraightsText(const StraightsFile& file);

}  // namespace zolv
