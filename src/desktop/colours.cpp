#include "desktop/colours.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace zolv {
namespace {

// Six colours that can be told apart with any colour blindness, dark enough for words on a light ground and light
// enough for them on a dark one.
using SixColours = std::array<Rgb, 6>;
constexpr SixColours kGearsOnLight{{{0x11, 0x11, 0xbb},
                                    {0x99, 0x55, 0x77},
                                    {0x22, 0x66, 0x44},
                                    {0x66, 0x66, 0xdd},
                                    {0x66, 0x77, 0x11},
                                    {0x66, 0x00, 0x00}}};
constexpr SixColours kGearsOnDark{{{0x99, 0x88, 0xff},
                                   {0xdd, 0x77, 0xaa},
                                   {0xaa, 0xee, 0xaa},
                                   {0xee, 0xbb, 0xff},
                                   {0x55, 0xbb, 0x00},
                                   {0xbb, 0x99, 0x88}}};

}  // namespace

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

QColor TextColour(std::optional<Rgb> colour, const QPalette& palette) {
    const bool dark = IsDark(palette);
    if (colour == kRed) return QColor(QLatin1String(dark ? "#ff8a80" : "#c62828"));
    if (colour == kBlue) return QColor(QLatin1String(dark ? "#82b1ff" : "#1f4fd0"));
    if (colour == kDarkGreen) return QColor(QLatin1String(dark ? "#7ee08a" : "#1b7a2f"));
    return palette.color(QPalette::WindowText);
}

QColor FaultColour(const QPalette& palette) { return TextColour(kRed, palette); }

QColor Blend(const QColor& over, const QColor& under, double share) {
    const auto mix = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
    return {mix(over.red(), under.red()), mix(over.green(), under.green()), mix(over.blue(), under.blue())};
}

QColor GearTint(int gear, double share, const QPalette& palette) {
    const SixColours& gears = IsDark(palette) ? kGearsOnDark : kGearsOnLight;
    const Rgb colour = gears[static_cast<std::size_t>(std::clamp(gear, 1, 6) - 1)];
    QColor tint(colour.red, colour.green, colour.blue);
    tint.setAlphaF(static_cast<float>(share));
    return tint;
}

QColor InkColour(Rgb colour) {
    // Pure green, cyan and magenta are too pale for thin lines on white.
    if (colour == kGreen) return {0, 150, 60};
    if (colour == kCyan) return {0, 160, 180};
    if (colour == kMagenta) return {190, 0, 170};
    if (colour == kRed) return {208, 32, 32};
    if (colour == kBlue) return {32, 80, 208};
    return {colour.red, colour.green, colour.blue};
}

}  // namespace zolv
