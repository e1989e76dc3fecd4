#include "desktop/plot_marks.h"

#include <QFontMetricsF>
#include <algorithm>
#include <vector>

#include "desktop/canvas_painting.h"
#include "desktop/texts_of_qt.h"
#include "drawing/curve_reading.h"
#include "drawing/reading_box.h"

namespace zolv {
namespace {

constexpr double kPadding = 5;  // inside a box
constexpr QColor kVeil{255, 255, 255, 215};

/// Marks at the numbers, in line with the grid.
void PaintTicks(QPainter& painter, const PlotPlace& place, const QColor& ink) {
    const DevicePixels pixels(painter);
    const QRect ground = pixels.Snapped(ToQt(place.ground));
    const CanvasMapping mapping = MapOnto(place.part, ground.x(), ground.y(), ground.width(), ground.height());
    const int length = qRound(kTick * pixels.Scale());
    const int width = std::max(1, qRound(pixels.Scale()));
    for (const AxisNumber& number : place.xNumbers.numbers) {
        const int x = qRound(mapping.X(number.coordinate) - width / 2.0);
        painter.fillRect(x, ground.bottom() + 1, width, length, ink);
    }
    for (const AxisNumber& number : place.yNumbers.numbers) {
        const int y = qRound(mapping.Y(number.coordinate) - width / 2.0);
        painter.fillRect(ground.left() - length, y, length, width, ink);
    }
}

Qt::Alignment AlignmentOf(PlacedWords::Anchor anchor) {
    switch (anchor) {
        case PlacedWords::Anchor::Left: return Qt::AlignLeft;
        case PlacedWords::Anchor::Right: return Qt::AlignRight;
        default: return Qt::AlignHCenter;
    }
}

void PaintStroke(QPainter& painter, const QRectF& box, Meaning meaning) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(box.adjusted(-1, box.height() / 2 - 4, 1, 4 - box.height() / 2), Qt::white);
    QPen pen = PenOf(StyleOf(meaning), 1);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.drawLine(QPointF(box.left(), box.center().y()), QPointF(box.right(), box.center().y()));
}

void PaintWords(QPainter& painter, const PlacedWords& words, const QColor& ink) {
    const QRectF box = ToQt(words.box);
    if (words.veiled) painter.fillRect(box, kVeil);
    painter.setPen(words.onPlot ? ToQt(words.colour) : ink);
    painter.drawText(box, static_cast<int>(AlignmentOf(words.anchor) | Qt::AlignVCenter) | Qt::TextDontClip,
                     ToQt(words.text));
}

void PaintCross(QPainter& painter, const QRectF& ground, const Crosshair& crosshair) {
    constexpr QColor kCross{70, 78, 88, 150};
    const DevicePixels pixels(painter);
    const QRect inner = pixels.Snapped(ground);
    const QPoint at = pixels.Snapped({QPointF(crosshair.x, crosshair.y), QSizeF()}).topLeft();
    const int width = std::max(1, qRound(pixels.Scale()));
    if (!crosshair.shared) painter.fillRect(QRect(inner.left(), at.y(), inner.width(), width), kCross);
    painter.fillRect(QRect(at.x(), inner.top(), width, inner.height()), kCross);
}

/// What the box of a crosshair says, line by line.
struct BoxLine {
    QString name, value;
    Meaning meaning;
};

std::vector<BoxLine> LinesAt(const Canvas& canvas, const PlotPlace& place, const Crosshair& crosshair) {
    const Canvas::Axes& axes = canvas.PresentAxes();
    const CanvasMapping mapping = place.Mapping();
    const double canvasX = mapping.CanvasX(crosshair.x);
    std::vector<BoxLine> lines{{ToQt(axes.x.title), ToQt(ReadingAt(axes.x, canvasX, mapping.scaleX)), Role::Words}};
    const auto isTitle = [&](const PartName& part) { return part.name == axes.y.title; };
    // Two lines of one name, of which the curve's is the one to be read, would be a riddle.
    if (!crosshair.shared && std::ranges::none_of(canvas.Names(), isTitle)) {
        const double canvasY = mapping.CanvasY(crosshair.y);
        lines.push_back({ToQt(axes.y.title), ToQt(ReadingAt(axes.y, canvasY, mapping.scaleY)), Role::Words});
    }
    if (const std::string value = MapReadingAt(canvas, canvasX, mapping.CanvasY(crosshair.y)); !value.empty()) {
        lines.push_back({ToQt(canvas.Scale()->title), ToQt(value), Role::Words});
    }
    for (const CurveReading& reading : ReadingsAt(canvas, canvasX, mapping.scaleY)) {
        lines.push_back({ToQt(reading.name), ToQt(reading.value), reading.meaning});
    }
    return lines;
}

}  // namespace

QFont NumberFont(QFont font) {
    constexpr double kSmaller = 0.9;
    if (font.pixelSize() > 0) {
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * kSmaller)));
    } else {
        font.setPointSizeF(font.pointSizeF() * kSmaller);
    }
    return font;
}

TextMeasure MeasureOf(const QFont& numberFont) {
    const QFontMetricsF metrics(numberFont);
    return {.height = metrics.height(),
            .width = [metrics](std::string_view text) { return metrics.horizontalAdvance(ToQt(text)); }};
}

void PaintLabels(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QColor& ink) {
    if (!place.hasAxes) return;
    PaintTicks(painter, place, ink);
    const PlotLabels labels = LabelsOf(canvas, place, MeasureOf(painter.font()));
    if (labels.veil.width > 0) painter.fillRect(ToQt(labels.veil), kVeil);
    for (const LegendStroke& stroke : labels.strokes) PaintStroke(painter, ToQt(stroke.box), stroke.meaning);
    for (const PlacedWords& words : labels.words) PaintWords(painter, words, ink);
}

void PaintCrosshair(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const Crosshair& crosshair,
                    const QRectF& bounds) {
    constexpr double kBetween = 12;
    PaintCross(painter, ToQt(place.ground), crosshair);
    const std::vector<BoxLine> lines = LinesAt(canvas, place, crosshair);
    const QFontMetricsF metrics(painter.font());
    double names = 0;
    double values = 0;
    for (const BoxLine& line : lines) {
        names = std::max(names, metrics.horizontalAdvance(line.name));
        values = std::max(values, metrics.horizontalAdvance(line.value));
    }
    const double height = metrics.height();
    const QSizeF size(names + kBetween + values + 4 * kPadding,
                      static_cast<double>(lines.size()) * height + 2 * kPadding);
    const QRectF box = ToQt(ReadingBox(canvas, place, {crosshair.x, crosshair.y}, {size.width(), size.height()},
                                       {bounds.x(), bounds.y(), bounds.width(), bounds.height()}));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(140, 147, 156), 1));
    painter.setBrush(QColor(255, 255, 255, 240));
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    QRectF words = box.adjusted(2 * kPadding, kPadding, -2 * kPadding, 0);
    words.setHeight(height);
    for (const BoxLine& line : lines) {
        painter.setPen(ToQt(ColourOf(line.meaning)));
        painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, line.name);
        painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip, line.value);
        words.translate(0, height);
    }
}

}  // namespace zolv
