#include "desktop/theme.h"

#include <QApplication>

#include "desktop/zolv_style.h"

namespace zolv {
namespace {

/// Colours of one theme. The ground is a little off white or black, so that canvases and fields stand out by
/// themselves. All words, dim ones too, have a contrast of at least 4.5 : 1 on every ground that they can lie on.
struct Colours {
    const char *window, *base, *alternateBase, *button, *text, *dimText, *highlight, *highlightText, *toolTip, *link;
};
constexpr Colours kLight{"#f4f5f7", "#ffffff", "#eceef1", "#ffffff", "#1b1f24",
                         "#5f666f", "#1f6fc4", "#ffffff", "#ffffff", "#1f6fc4"};
constexpr Colours kDark{"#1d2126", "#2a3038", "#23282e", "#2c323a", "#e6e9ed",
                        "#a0a8b2", "#4a9be8", "#0d1013", "#2c323a", "#6db3f2"};

QPalette PaletteOf(const Colours& colours) {
    const auto colour = [](const char* name) { return QColor(QLatin1String(name)); };
    QPalette palette(colour(colours.button), colour(colours.window));  // with the shades of bevels between the two
    palette.setColor(QPalette::Window, colour(colours.window));
    palette.setColor(QPalette::WindowText, colour(colours.text));
    palette.setColor(QPalette::Base, colour(colours.base));
    palette.setColor(QPalette::AlternateBase, colour(colours.alternateBase));
    palette.setColor(QPalette::Text, colour(colours.text));
    palette.setColor(QPalette::Button, colour(colours.button));
    palette.setColor(QPalette::ButtonText, colour(colours.text));
    palette.setColor(QPalette::BrightText, colour(colours.highlightText));
    palette.setColor(QPalette::Highlight, colour(colours.highlight));
    palette.setColor(QPalette::HighlightedText, colour(colours.highlightText));
    palette.setColor(QPalette::ToolTipBase, colour(colours.toolTip));
    palette.setColor(QPalette::ToolTipText, colour(colours.text));
    palette.setColor(QPalette::PlaceholderText, colour(colours.dimText));
    palette.setColor(QPalette::Link, colour(colours.link));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, colour(colours.dimText));
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight,
                     colour(colours.dimText));  // the part that a locked slider has passed
    return palette;
}

}  // namespace

void ApplyTheme() {
    const bool dark = IsDark(QApplication::palette());
    QApplication::setStyle(new ZolvStyle);
    QApplication::setPalette(PaletteOf(dark ? kDark : kLight));
}

}  // namespace zolv
