#include "desktop/plot_place.h"

#include <QMarginsF>
#include <algorithm>

#include "desktop/texts_of_qt.h"

namespace zolv {
namespace {

constexpr double kFrame = 1;
constexpr double kFreeSide = 10;  // right of a plot, for half of a last number

AxisNumbers NumbersOfX(const PlotPlace& place, const PlotAxis& axis, const QFontMetricsF& metrics) {
    const double gap = metrics.horizontalAdvance(QLatin1Char('0')) * 1.5;
    return NumbersAlong(axis, place.part.left, place.part.right, place.Mapping().scaleX,
                        [&](const std::string& text) { return metrics.horizontalAdvance(ToQt(text)) + gap; });
}

AxisNumbers NumbersOfY(const PlotPlace& place, const PlotAxis& axis, const QFontMetricsF& metrics) {
    return NumbersAlong(axis, place.part.top, place.part.bottom, place.Mapping().scaleY,
                        [room = metrics.height() * 1.3](const std::string&) { return room; });
}

QMarginsF MarginsFor(const AxisNumbers& yNumbers, const QFontMetricsF& metrics) {
    double widest = metrics.horizontalAdvance(QStringLiteral("00000"));
    for (const AxisNumber& number : yNumbers.numbers) {
        widest = std::max(widest, metrics.horizontalAdvance(ToQt(number.text)));
    }
    const double beside = kTick + kNumberGap + kFrame;
    return {widest + beside + 1, metrics.height() + kNumberGap + kFrame, kFreeSide, metrics.height() + beside};
}

/// The largest rectangle of the part's proportions in the middle of `room`.
QRectF KeepProportions(const CanvasPart& part, const QRectF& room) {
    QRectF fitted(QPointF(), QSizeF(part.Width(), part.Height()).scaled(room.size(), Qt::KeepAspectRatio));
    fitted.moveCenter(room.center());
    return fitted;
}

/// A view smaller than its margins still has a ground to paint on.
QRectF Within(const QSizeF& size, const QMarginsF& margins) {
    const double width = std::max(1.0, size.width() - margins.left() - margins.right());
    const double height = std::max(1.0, size.height() - margins.top() - margins.bottom());
    return {margins.left(), margins.top(), width, height};
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

PlotPlace PlaceOf(const Canvas& canvas, CanvasShape shape, QSizeF size, const QFontMetricsF& metrics) {
    const Canvas::Axes& axes = canvas.PresentAxes();
    PlotPlace place{.part = UsedPart(canvas), .hasAxes = axes.present};
    const bool proportional = shape == CanvasShape::Proportional;
    if (proportional && !axes.present) {
        place.ground = KeepProportions(place.part, Within(size, {kFrame, kFrame, kFrame, kFrame}));
        return place;
    }
    // The numbers of y need the height of the ground only, and their width gives its left side.
    place.ground = Within(size, MarginsFor({}, metrics));
    if (axes.present) place.yNumbers = NumbersOfY(place, axes.y, metrics);
    place.ground = Within(size, MarginsFor(place.yNumbers, metrics));
    if (proportional) place.ground = KeepProportions(place.part, place.ground);
    if (!axes.present) return place;
    place.xNumbers = NumbersOfX(place, axes.x, metrics);
    place.yNumbers = NumbersOfY(place, axes.y, metrics);
    return place;
}

}  // namespace zolv
