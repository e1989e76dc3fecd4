#include "pictures/wordmark.h"

#include <QPainter>
#include <QPainterPath>

#include "pictures/icon.h"

namespace zolv::pictures {
namespace {

/// Both have a contrast of more than 3.5 against white and against the dark theme's window.
const QColor kGrey(0x7b8794), kOrange(0xd9622b);

/// The letters are drawn, not typeset, so that every machine makes the same picture without a font. One unit is the
/// height of a small "o" between the middles of its strokes; y runs down, the letters stand on 1.
constexpr double kStroke = 0.26;
constexpr double kCapital = -0.52;  // top of a capital
constexpr double kDescender = 1.5;
constexpr double kLetterGap = 0.44;  // between the middles of two letters' strokes
constexpr double kWordGap = 0.95;

/// Adds a letter with its left edge at `x`, and returns its right edge.
double AddLetter(QPainterPath& path, char letter, double x) {
    const auto line = [&](double x1, double y1, double x2, double y2) {
        path.moveTo(x + x1, y1);
        path.lineTo(x + x2, y2);
    };
    const auto arch = [&](double from, double width, double down) {
        path.moveTo(x + from, width / 2);
        path.arcTo(QRectF(x + from, 0, width, width), 180, -180);
        path.lineTo(x + from + width, down);
    };
    switch (letter) {
        case 'T': line(0, kCapital, 1.06, kCapital), line(0.53, kCapital, 0.53, 1); return x + 1.06;
        case 'Z':
            path.moveTo(x, kCapital), path.lineTo(x + 1.06, kCapital), path.lineTo(x, 1), path.lineTo(x + 1.06, 1);
            return x + 1.06;
        case 'a': path.addEllipse(QRectF(x, 0, 1, 1)), line(1, 0, 1, 1); return x + 1;
        case 'q': path.addEllipse(QRectF(x, 0, 1, 1)), line(1, 0, 1, kDescender); return x + 1;
        case 'o': path.addEllipse(QRectF(x, 0, 1, 1)); return x + 1;
        case 'l': line(0, kCapital, 0, 1); return x;
        case 'r':
            line(0, 0, 0, 1), path.moveTo(x, 0.45), path.arcTo(QRectF(x, 0, 0.9, 0.9), 180, -105);
            return x + 0.50;
        case 'm': line(0, 0, 0, 1), arch(0, 0.74, 1), arch(0.74, 0.74, 1); return x + 1.48;
        case 'v': path.moveTo(x, 0), path.lineTo(x + 0.5, 1), path.lineTo(x + 1, 0); return x + 1;
        default: return x;
    }
}

/// Paints a word and returns its right edge.
double PaintWord(QPainter& painter, const char* word, double x, const QColor& colour) {
    QPainterPath path;
    for (const char* letter = word; *letter != '\0'; ++letter) x = AddLetter(path, *letter, x) + kLetterGap;
    painter.strokePath(path, QPen(colour, kStroke, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    return x - kLetterGap;
}

QImage Nothing(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

}  // namespace

QImage Title() {
    QImage image = Nothing(640, 128);  // four times the size at which it is shown
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintIcon(painter, QRectF(4, 4, 120, 120));
    painter.translate(150, 55);
    painter.scale(34, 34);
    const double right = PaintWord(painter, "Tarmaq", 0, kGrey);
    PaintWord(painter, "Zolv", right + kWordGap, kOrange);
    return image;
}

QImage Logo() {
    QImage image = Nothing(384, 128);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.shear(-0.16, 0);
    painter.translate(26, 34);
    painter.scale(40, 40);
    const double right = PaintWord(painter, "Tarmaq", 0, kGrey);
    QPen dashes(kOrange, 0.2, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({4, 2});  // in widths of the line
    painter.setPen(dashes);
    painter.drawLine(QPointF(0, 1.72), QPointF(right, 1.72));
    return image;
}

}  // namespace zolv::pictures
