#include "drawing/palette.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/canvas.h"

namespace zolv {
namespace {

// Blue, rose, green, lilac, olive, maroon: found by a search for six colours whose smallest difference (CIEDE2000) is
// as large as can be for normal, protanopic, deuteranopic and tritanopic eyes, within the contrast that words need.
constexpr std::array<Rgb, 6> kGears{{{0x11, 0x11, 0xbb},
                                     {0x99, 0x55, 0x77},
                                     {0x22, 0x66, 0x44},
                                     {0x66, 0x66, 0xdd},
                                     {0x66, 0x77, 0x11},
                                     {0x66, 0x00, 0x00}}};

constexpr Rgb kSoftRed{200, 30, 30};
constexpr Rgb kSoftGreen{0, 130, 52};
constexpr Rgb kSoftBlue{32, 80, 208};
constexpr Rgb kSoftMagenta{190, 0, 170};
constexpr Rgb kSoftCyan{0, 120, 140};
constexpr Rgb kRubber{64, 68, 74};

double Luminance(Rgb colour) {
    const auto linear = [](std::uint8_t part) {
        const double value = part / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

Rgb ColourOf(Role role) {
    switch (role) {
        case Role::PeakPower:
        case Role::Power:
        case Role::DrivingForce:
        case Role::Downforce: return kSoftGreen;
        case Role::PeakTorque:
        case Role::Torque:
        case Role::NetForce: return kSoftBlue;
        case Role::Limiter:
        case Role::Resistance:
        case Role::Drag: return kSoftRed;
        case Role::FrontLoad:
        case Role::BestValue:
        case Role::BestPoint: return kSoftMagenta;
        case Role::RearLoad: return kSoftCyan;
        case Role::Area: return kRubber;
        case Role::Grid: return kGridInk;
        default: return kWordsInk;
    }
}

}  // namespace

Rgb GearColour(int gear) { return kGears[static_cast<std::size_t>(std::clamp(gear, 1, 6) - 1)]; }

Rgb ColourOf(Meaning meaning) {
    if (meaning.standing == Standing::Doubtful) return kSoftRed;
    if (const int gear = GearOf(meaning.role); gear != 0) return GearColour(gear);
    if (meaning.role >= Role::Series1) {
        return GearColour(static_cast<int>(meaning.role) - static_cast<int>(Role::Series1) + 1);
    }
    return ColourOf(meaning.role);
}

Rgb ShadeColour(int shade) {
    // From a dark blue by a green to a light yellow
    constexpr std::array<Rgb, 5> kStops{
        {{0x30, 0x2c, 0x6e}, {0x2b, 0x62, 0x8c}, {0x2e, 0x93, 0x86}, {0x86, 0xc2, 0x5c}, {0xf7, 0xe5, 0x5b}}};
    const double place = std::clamp(shade, 0, kShades - 1) * (kStops.size() - 1.0) / (kShades - 1);
    const auto stop = std::min(static_cast<std::size_t>(place), kStops.size() - 2);
    const double share = place - static_cast<double>(stop);
    const auto mix = [share](std::uint8_t from, std::uint8_t to) {
        return static_cast<std::uint8_t>(std::lround(from + share * (to - from)));
    };
    const Rgb& from = kStops[stop];
    const Rgb& to = kStops[stop + 1];
    return {mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

Rgb ContourInk(int shade) { return shade < kShades / 2 ? Rgb{255, 255, 255} : Rgb{40, 45, 52}; }

Rgb Softened(Rgb colour) {
    if (colour == kRed) return kSoftRed;
    if (colour == kGreen) return kSoftGreen;
    if (colour == kBlue) return kSoftBlue;
    if (colour == kMagenta) return kSoftMagenta;
    if (colour == kCyan) return kSoftCyan;
    return colour;
}

double Contrast(Rgb one, Rgb other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

}  // namespace zolv
