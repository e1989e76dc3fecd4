#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// The one parser and the one writer of all number text: input boxes, pages and files. The decimal point is "." on
/// every machine; nothing here asks the user's locale, and nothing elsewhere converts number text.
namespace zolv {

/// The leading number of a text, 0 if there is none; never an error.
/// An optional sign, digits with at most one ".", an optional exponent behind E or D. Blanks, tabs and line feeds are
/// skipped wherever they stand, so "1 0" is ten. The first character that cannot continue the number ends it; a comma
/// does. A number beyond the range of a double is the largest double of its sign.
[[nodiscard]] double Val(std::string_view text);

/// Nearest multiple of 10^-decimals, half to even: the nearest whole number to value * 10^decimals, over 10^decimals.
/// @param decimals  0 to 9
[[nodiscard]] double Round(double value, int decimals);

/// Shortest decimal form: up to 15 significant digits of a double, 7 of a float, no trailing zeros, no thousands
/// separator and no exponent, however large or small the number is. Negative zero is "0", what is not finite is "N/A".
[[nodiscard]] std::string NumberText(double value);
[[nodiscard]] std::string NumberText(float value);
[[nodiscard]] std::string NumberText(std::int32_t value);

/// NumberText(Round(value, decimals)), some ten times faster.
[[nodiscard]] std::string RoundedText(double value, int decimals);

/// RoundedText with a unit or sign behind it, which "N/A" goes without: "8.34 Hz".
[[nodiscard]] std::string WithUnit(double value, int decimals, std::string_view unit);

/// Room that WriteRounded asks for: the largest double has 309 digits.
inline constexpr std::size_t kRoundedTextSize = 352;

/// Writes the characters of RoundedText(value, decimals) to `out`, which has room for kRoundedTextSize of them.
/// @return the end of what was written
char* WriteRounded(char* out, double value, int decimals);

/// "True" or "False".
[[nodiscard]] std::string BooleanText(bool value);

/// The shortest text that reads back as the same double; for coordinates, not for pages.
[[nodiscard]] std::string ExactText(double value);

}  // namespace zolv
