#include "desktop/colours.h"

#include "drawing/palette.h"

namespace zolv {

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
    const Rgb colour = GearColour(gear);
    QColor tint(colour.red, colour.green, colour.blue);
    tint.setAlphaF(static_cast<float>(IsDark(palette) ? 2 * share : share));
    return tint;
}

}  // namespace zolv
