#pragma once

#include <cstdint>

namespace zolv {

/// A colour as red, green and blue, 0 to 255 each.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Rgb&) const = default;
};

inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kWhite{255, 255, 255};
inline constexpr Rgb kRed{255, 0, 0};
inline constexpr Rgb kGreen{0, 255, 0};
inline constexpr Rgb kBlue{0, 0, 255};
inline constexpr Rgb kMagenta{255, 0, 255};
inline constexpr Rgb kCyan{0, 255, 255};
inline constexpr Rgb kDarkGreen{0, 160, 0};  // readable as text on white, which kGreen is not

}  // namespace zolv
