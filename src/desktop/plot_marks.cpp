#include "desktop/plot_marks.h"

#include <algorithm>
#include <vector>

#include "desktop/canvas_painting.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"

namespace zolv {
namespace {

constexpr double kGapBetween = 14;  // of legend entries
constexpr double kStroke = 16;      // length of a legend's stroke
constexpr double kPadding = 5;      // inside a box
constexpr double kFrame = 1;

constexpr QColor kWordsOnWhite{40, 45, 52};
constexpr QColor kVeil{255, 255, 255, 215};

/// Where the unit of y stands: above its numbers, and above the plot where it is longer than they.
QRectF UnitOfYBox(const PlotPlace& place, const QString& unit, const QFontMetricsF& metrics) {
    const double width = metrics.horizontalAdvance(unit);
    const double right = place.ground.left() - kFrame - kTick - kNumberGap;
    return {std::max(1.0, right - width), place.ground.top() - kFrame - kNumberGap - metrics.height(), width,
            metrics.height()};
}

/// Marks at the numbers, in line with the grid.
void PaintTicks(QPainter& painter, const PlotPlace& place) {
    const DevicePixels pixels(painter);
    const QRect ground = pixels.Snapped(place.ground);
    const CanvasMapping mapping = MapOnto(place.part, ground.x(), ground.y(), ground.width(), ground.height());
    const QColor ink = painter.pen().color();
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

void PaintNumbersOfX(QPainter& painter, const PlotPlace& place, const QString& unit) {
    const QFontMetricsF metrics(painter.font());
    const CanvasMapping mapping = place.Mapping();
    const double top = place.ground.bottom() + kFrame + kTick + kNumberGap;
    const double unitWidth = metrics.horizontalAdvance(unit);
    const QRectF unitBox(place.ground.right() - unitWidth, top, unitWidth, metrics.height());
    painter.drawText(unitBox, Qt::AlignRight | Qt::TextDontClip, unit);
    const double end = unit.isEmpty() ? place.ground.right() + metrics.height() : unitBox.left() - metrics.height() / 2;
    for (const AxisNumber& number : place.xNumbers.numbers) {
        const double x = mapping.X(number.coordinate);
        const QString text = ToQt(number.text);
        const double half = metrics.horizontalAdvance(text) / 2;
        if (x + half > end) continue;
        painter.drawText(QRectF(x - half, top, 2 * half, metrics.height()), Qt::AlignCenter | Qt::TextDontClip, text);
    }
}

void PaintNumbersOfY(QPainter& painter, const PlotPlace& place, const QString& unit) {
    const QFontMetricsF metrics(painter.font());
    const CanvasMapping mapping = place.Mapping();
    const QRectF unitBox = UnitOfYBox(place, unit, metrics);
    painter.drawText(unitBox, Qt::AlignRight | Qt::TextDontClip, unit);
    const double right = place.ground.left() - kFrame - kTick - kNumberGap;
    for (const AxisNumber& number : place.yNumbers.numbers) {
        const double y = mapping.Y(number.coordinate);
        const QRectF box(0, y - metrics.height() / 2, right, metrics.height());
        if (!unit.isEmpty() && box.top() < unitBox.bottom() - metrics.descent()) continue;
        painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip, ToQt(number.text));
    }
}

struct LegendLine {
    QString name;
    Rgb colour;
};

bool IsColourShared(const Canvas& canvas, Rgb colour) {
    return std::count_if(canvas.Legend().begin(), canvas.Legend().end(),
                         [&](const LegendEntry& entry) { return entry.colour == colour; }) > 1;
}

/// The legend with the curves of one colour in one entry, without those that have their names at the curve.
std::vector<LegendLine> LegendLines(const Canvas& canvas, bool namedAtCurves) {
    std::vector<LegendLine> lines;
    for (const LegendEntry& entry : canvas.Legend()) {
        if (namedAtCurves && IsColourShared(canvas, entry.colour)) continue;
        const auto same = std::find_if(lines.begin(), lines.end(),
                                       [&](const LegendLine& line) { return line.colour == entry.colour; });
        if (same == lines.end()) {
            lines.push_back({ToQt(entry.name), entry.colour});
        } else {
            same->name += QLatin1String(", ") + ToQt(entry.name);
        }
    }
    return lines;
}

double WidthOf(const LegendLine& line, const QFontMetricsF& metrics) {
    return kStroke + kPadding + metrics.horizontalAdvance(line.name);
}

/// The stroke lies on white, as on the ground, so that its colour reads in every theme.
void PaintLegendLine(QPainter& painter, const LegendLine& line, const QPointF& corner, const QColor& words) {
    const QFontMetricsF metrics(painter.font());
    const double middle = corner.y() + metrics.height() / 2;
    painter.fillRect(QRectF(corner.x(), middle - 4, kStroke, 8), Qt::white);
    painter.fillRect(QRectF(corner.x() + 1, middle - 1, kStroke - 2, 2), InkColour(line.colour));
    painter.setPen(words);
    const QRectF box(corner.x() + kStroke + kPadding, corner.y(), metrics.horizontalAdvance(line.name),
                     metrics.height());
    painter.drawText(box, Qt::AlignLeft | Qt::TextDontClip, line.name);
}

void PaintLegendAbove(QPainter& painter, const std::vector<LegendLine>& lines, QPointF corner, const QColor& ink) {
    const QFontMetricsF metrics(painter.font());
    for (const LegendLine& line : lines) {
        PaintLegendLine(painter, line, corner, ink);
        corner.rx() += WidthOf(line, metrics) + kGapBetween;
    }
}

/// Leaves the curves more room than it takes, or stays away.
void PaintLegendInside(QPainter& painter, const std::vector<LegendLine>& lines, const QRectF& ground) {
    constexpr double kLargestShare = 0.6;  // of each side
    const QFontMetricsF metrics(painter.font());
    double widest = 0;
    for (const LegendLine& line : lines) widest = std::max(widest, WidthOf(line, metrics));
    QRectF box(0, 0, widest + 2 * kPadding, static_cast<double>(lines.size()) * metrics.height() + 2 * kPadding);
    if (box.width() > ground.width() * kLargestShare || box.height() > ground.height() * kLargestShare) return;
    box.moveTopRight(ground.topRight() + QPointF(-kPadding, kPadding));
    painter.fillRect(box, kVeil);
    QPointF corner = box.topLeft() + QPointF(kPadding, kPadding);
    for (const LegendLine& line : lines) {
        PaintLegendLine(painter, line, corner, kWordsOnWhite);
        corner.ry() += metrics.height();
    }
}

struct CurveName {
    QString text;
    QRectF box;
    Rgb colour;
};

/// Whether the curves of a drawing are those of its legend, one for one.
bool IsLegendOf(const std::vector<LegendEntry>& legend, const std::vector<Curve>& curves) {
    return std::equal(legend.begin(), legend.end(), curves.begin(), curves.end(),
                      [](const LegendEntry& entry, const Curve& curve) { return entry.colour == curve.colour; });
}

/// A place for a name of that size at its curve, over its top or behind its end, that is free of the names before it;
/// empty where there is none.
QRectF PlaceAtCurve(const Curve& curve, const QSizeF& size, const PlotPlace& place,
                    const std::vector<CurveName>& names) {
    constexpr double kAside = 3;
    const CanvasMapping mapping = place.Mapping();
    const QPointF top(mapping.X(curve.topX) - size.width() / 2, mapping.Y(curve.topY) - size.height() - kAside);
    const QPointF end(mapping.X(curve.endX) + kAside, mapping.Y(curve.endY) - size.height() / 2);
    for (const QPointF& corner : {top, end}) {
        QRectF box(corner, size);
        box.moveLeft(std::clamp(box.left(), place.ground.left(), place.ground.right() - size.width()));
        box.moveTop(std::clamp(box.top(), place.ground.top(), place.ground.bottom() - size.height()));
        const bool covers =
            std::any_of(names.begin(), names.end(), [&](const CurveName& other) { return other.box.intersects(box); });
        if (!covers) return box;
    }
    return {};
}

/// Names for the curves whose colours others share; none at all where one of them would lie on another, or where it is
/// not certain which curve is whose.
std::vector<CurveName> NamesAtCurves(const Canvas& canvas, const PlotPlace& place, const QFontMetricsF& metrics) {
    const std::vector<LegendEntry>& legend = canvas.Legend();
    const auto isShared = [&](const LegendEntry& entry) { return IsColourShared(canvas, entry.colour); };
    if (std::none_of(legend.begin(), legend.end(), isShared)) return {};
    const std::vector<Curve> curves = CurvesOf(canvas);
    if (!IsLegendOf(legend, curves)) return {};
    std::vector<CurveName> names;
    for (std::size_t i = 0; i < legend.size(); ++i) {
        if (!isShared(legend[i])) continue;
        const QString text = ToQt(legend[i].name);
        const QSizeF size(metrics.horizontalAdvance(text) + 2, metrics.height());
        if (size.width() > place.ground.width() || size.height() > place.ground.height()) return {};
        const QRectF box = PlaceAtCurve(curves[i], size, place, names);
        if (box.isEmpty()) return {};
        names.push_back({text, box, legend[i].colour});
    }
    return names;
}

void PaintNamesAtCurves(QPainter& painter, const std::vector<CurveName>& names) {
    for (const CurveName& name : names) {
        painter.fillRect(name.box, kVeil);
        painter.setPen(InkColour(name.colour));
        painter.drawText(name.box, Qt::AlignCenter | Qt::TextDontClip, name.text);
    }
}

/// Up and right of the pointer, on another side where there is no room.
QRectF ReadingBox(const QPointF& pointer, const QSizeF& size, const QRectF& bounds) {
    constexpr double kOffset = 12;
    QRectF box(QPointF(pointer.x() + kOffset, pointer.y() - kOffset - size.height()), size);
    if (box.right() > bounds.right()) box.moveRight(pointer.x() - kOffset);
    if (box.top() < bounds.top()) box.moveTop(pointer.y() + kOffset);
    box.moveLeft(std::max(bounds.left(), std::min(box.left(), bounds.right() - box.width())));
    box.moveTop(std::max(bounds.top(), std::min(box.top(), bounds.bottom() - box.height())));
    return box;
}

void PaintCross(QPainter& painter, const QRectF& ground, const QPointF& pointer) {
    constexpr QColor kCross{70, 78, 88, 150};
    const DevicePixels pixels(painter);
    const QRect inner = pixels.Snapped(ground);
    const QPoint at = pixels.Snapped({pointer, QSizeF()}).topLeft();
    const int width = std::max(1, qRound(pixels.Scale()));
    painter.fillRect(QRect(inner.left(), at.y(), inner.width(), width), kCross);
    painter.fillRect(QRect(at.x(), inner.top(), width, inner.height()), kCross);
}

}  // namespace

void PaintNumbers(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QColor& ink) {
    if (!place.hasAxes) return;
    painter.setPen(ink);
    PaintTicks(painter, place);
    PaintNumbersOfX(painter, place, ToQt(canvas.PresentAxes().x.unit));
    PaintNumbersOfY(painter, place, ToQt(canvas.PresentAxes().y.unit));
}

void PaintLegend(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QColor& ink) {
    if (canvas.Legend().size() < 2) return;
    const QFontMetricsF metrics(painter.font());
    const std::vector<CurveName> names = NamesAtCurves(canvas, place, metrics);
    PaintNamesAtCurves(painter, names);
    const std::vector<LegendLine> lines = LegendLines(canvas, !names.empty());
    if (lines.empty()) return;
    double width = -kGapBetween;
    for (const LegendLine& line : lines) width += WidthOf(line, metrics) + kGapBetween;
    const QRectF unit = UnitOfYBox(place, ToQt(canvas.PresentAxes().y.unit), metrics);
    const QPointF corner(place.ground.right() - width, unit.top());
    if (corner.x() > std::max(unit.right(), place.ground.left()) + kGapBetween) {
        PaintLegendAbove(painter, lines, corner, ink);
    } else {
        PaintLegendInside(painter, lines, place.ground);
    }
}

void PaintCrosshair(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QPointF& pointer,
                    const QRectF& bounds) {
    const Canvas::Axes& axes = canvas.PresentAxes();
    const CanvasMapping mapping = place.Mapping();
    PaintCross(painter, place.ground, pointer);
    const QString x = ToQt(ReadingAt(axes.x, mapping.CanvasX(pointer.x()), mapping.scaleX));
    const QString y = ToQt(ReadingAt(axes.y, mapping.CanvasY(pointer.y()), mapping.scaleY));
    const QFontMetricsF metrics(painter.font());
    const double width = std::max(metrics.horizontalAdvance(x), metrics.horizontalAdvance(y));
    const QSizeF size(width + 4 * kPadding, 2 * metrics.height() + 2 * kPadding);
    const QRectF box = ReadingBox(pointer, size, bounds);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(140, 147, 156), 1));
    painter.setBrush(QColor(255, 255, 255, 240));
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setPen(kWordsOnWhite);
    const QRectF words = box.adjusted(2 * kPadding, kPadding, -2 * kPadding, -kPadding);
    painter.drawText(words, Qt::AlignRight | Qt::AlignTop | Qt::TextDontClip, x);
    painter.drawText(words, Qt::AlignRight | Qt::AlignBottom | Qt::TextDontClip, y);
}

}  // namespace zolv
