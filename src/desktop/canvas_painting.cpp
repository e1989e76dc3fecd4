#include "desktop/canvas_painting.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <vector>

#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"

namespace zolv {
namespace {

using Kind = DrawingOperation::Kind;

// The grid is drawn in black like the curves; it steps back behind them here.
constexpr QColor kGridInk{224, 227, 231};
constexpr QColor kZeroInk{150, 156, 164};  // the line of the value zero

/// The lines of one pen that wait to be painted, as polylines.
struct Strand {
    Rgb colour;
    std::uint16_t width = 0;
    std::vector<QPointF> points;
    std::vector<std::size_t> starts;  // of each polyline, in `points`

    void Add(const QPointF& from, const QPointF& to) {
        if (points.empty() || points.back() != from) {
            starts.push_back(points.size());
            points.push_back(from);
        }
        points.push_back(to);
    }
};

/// A polyline without the points that lie on the way from one kept point to the next, within a tenth of a device pixel
/// up or down: stroking is what takes the time of a plot, and a run has a point every other pixel.
std::vector<QPointF> Straightened(std::span<const QPointF> points) {
    constexpr double kTolerance = 0.1;
    constexpr double kAnySlope = std::numeric_limits<double>::infinity();
    std::vector<QPointF> kept{points.front()};
    double lowest = -kAnySlope;  // slopes from the last kept point that pass all points since
    double highest = kAnySlope;
    for (std::size_t i = 1; i < points.size(); ++i) {
        QPointF way = points[i] - kept.back();
        const double slope = way.y() / way.x();
        if (!(way.x() > 0 && slope >= lowest && slope <= highest) && i > 1) {
            if (kept.back() != points[i - 1]) kept.push_back(points[i - 1]);
            way = points[i] - kept.back();
            lowest = -kAnySlope;
            highest = kAnySlope;
        }
        const bool goesOn = way.x() > 0;  // straight up or back, the point is a corner
        lowest = goesOn ? std::max(lowest, (way.y() - kTolerance) / way.x()) : kAnySlope;
        highest = goesOn ? std::min(highest, (way.y() + kTolerance) / way.x()) : -kAnySlope;
    }
    kept.push_back(points.back());
    return kept;
}

/// Paints the operations of one drawing in device pixels. Lines are gathered by pen, also where curves are drawn in
/// turns, since the painter strokes one long polyline much faster than its pieces.
class StrokePainter {
public:
    StrokePainter(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QRect& ground, double scale)
        : painter_(painter),
          canvas_(canvas),
          ground_(ground),
          scale_(scale),
          whole_(place.part),
          cut_(place.part),
          map_(MapOnto(place.part, ground.x(), ground.y(), ground.width(), ground.height())) {
        const double reserveX = place.part.Width() * 0.05;  // keeps the ends of cut lines out of sight
        const double reserveY = place.part.Height() * 0.05;
        cut_ = {cut_.left - reserveX, cut_.top - reserveY, cut_.right + reserveX, cut_.bottom + reserveY};
        const Canvas::Axes& axes = canvas.PresentAxes();
        if (!place.hasAxes) return;
        gridStepX_ = PaintedGridStep(axes.x, place.xNumbers, place.Mapping().scaleX);
        gridStepY_ = PaintedGridStep(axes.y, place.yNumbers, place.Mapping().scaleY);
    }

    void Paint() {
        for (const DrawingOperation& operation : canvas_.Operations()) {
            switch (operation.kind) {
                case Kind::Line: PaintLine(operation); break;
                case Kind::Rectangle: PaintRectangle(operation); break;
                case Kind::Circle: PaintCircle(operation); break;
                case Kind::Text: break;
            }
        }
        PaintStrands();
    }

private:
    double PenWidth(int width) const { return std::max(1.0, width * scale_); }

    bool HasAxes() const { return canvas_.PresentAxes().present; }

    /// A thin line along an axis, or any that runs all across, is a rule.
    bool IsRule(const DrawingOperation& line) const {
        constexpr double kAcross = 0.9;
        if (line.y1 == line.y2) return line.width <= 1 || std::fabs(line.x2 - line.x1) > whole_.Width() * kAcross;
        if (line.x1 == line.x2) return line.width <= 1 || std::fabs(line.y2 - line.y1) > whole_.Height() * kAcross;
        return false;
    }

    void PaintLine(DrawingOperation line) {
        const bool onGrid = HasAxes() && IsGridLine(line);
        if ((onGrid && IsLeftOut(line)) || !CutLine(line, cut_)) return;
        if (onGrid) {
            PaintRule(line, IsZeroInside(line) ? kZeroInk : kGridInk);
        } else if (IsRule(line)) {
            PaintRule(line, InkColour(line.colour));
        } else {
            StrandOf(line).Add({map_.X(line.x1), map_.Y(line.y1)}, {map_.X(line.x2), map_.Y(line.y2)});
        }
    }

    bool IsLeftOut(const DrawingOperation& gridLine) const {
        const Canvas::Axes& axes = canvas_.PresentAxes();
        return gridLine.x1 == gridLine.x2 ? !IsPaintedGridLine(axes.x, gridLine.x1, gridStepX_)
                                          : !IsPaintedGridLine(axes.y, gridLine.y1, gridStepY_);
    }

    /// Whether a grid line is that of the value zero and not on the frame, which would double it.
    bool IsZeroInside(const DrawingOperation& gridLine) const {
        const Canvas::Axes& axes = canvas_.PresentAxes();
        if (gridLine.x1 == gridLine.x2) return gridLine.x1 == axes.x.origin && gridLine.x1 > whole_.left;
        return gridLine.y1 == axes.y.origin && gridLine.y1 < whole_.bottom;
    }

    void PaintRule(const DrawingOperation& line, const QColor& ink) {
        const int width = qRound(PenWidth(line.width));
        const double x1 = map_.X(std::min(line.x1, line.x2));
        const double x2 = map_.X(std::max(line.x1, line.x2));
        const double y1 = map_.Y(std::min(line.y1, line.y2));
        const double y2 = map_.Y(std::max(line.y1, line.y2));
        if (line.x1 == line.x2) {
            const int x = FromEdge(qRound(x1 - width / 2.0), width, ground_.left(), ground_.right());
            FillRule({x, qRound(y1), width, qRound(y2) - qRound(y1)}, ink);
        } else {
            const int y = FromEdge(qRound(y1 - width / 2.0), width, ground_.top(), ground_.bottom());
            FillRule({qRound(x1), y, qRound(x2) - qRound(x1), width}, ink);
        }
    }

    /// Moves a rule that lies over the edge of the ground inside.
    static int FromEdge(int start, int width, int first, int last) {
        if (start < first && start + width > first) return first;
        if (start <= last + 1 && start + width > last + 1) return last + 1 - width;
        return start;
    }

    /// Lines of a dense grid fall on one another.
    void FillRule(const QRect& rule, const QColor& ink) {
        if (rule == lastRule_ && ink == lastRuleInk_) return;
        lastRule_ = rule;
        lastRuleInk_ = ink;
        painter_.fillRect(rule, ink);
    }

    void PaintRectangle(const DrawingOperation& rectangle) {
        PaintStrands();
        const double left = std::clamp(std::min(rectangle.x1, rectangle.x2), cut_.left, cut_.right);
        const double right = std::clamp(std::max(rectangle.x1, rectangle.x2), cut_.left, cut_.right);
        const double top = std::clamp(std::min(rectangle.y1, rectangle.y2), cut_.top, cut_.bottom);
        const double bottom = std::clamp(std::max(rectangle.y1, rectangle.y2), cut_.top, cut_.bottom);
        const QPoint corner(qRound(map_.X(left)), qRound(map_.Y(top)));
        const QPoint end(qRound(map_.X(right)), qRound(map_.Y(bottom)));
        painter_.fillRect(QRect(corner, QSize(end.x() - corner.x(), end.y() - corner.y())),
                          InkColour(rectangle.colour));
    }

    void PaintCircle(const DrawingOperation& circle) {
        constexpr double kLargest = 1e5;  // what is beyond covers the canvas all the same, and a painter can take it
        PaintStrands();
        const double radius = std::min(circle.x2, kLargest);
        if (!(radius > 0) || std::fabs(circle.x1) > kLargest || std::fabs(circle.y1) > kLargest) return;
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(InkColour(circle.colour));
        painter_.drawEllipse(QPointF(map_.X(circle.x1), map_.Y(circle.y1)), radius * map_.scaleX, radius * map_.scaleY);
    }

    Strand& StrandOf(const DrawingOperation& line) {
        for (Strand& strand : strands_) {
            if (strand.colour == line.colour && strand.width == line.width) return strand;
        }
        return strands_.emplace_back(Strand{line.colour, line.width, {}, {}});
    }

    /// The painter's time for one stroke grows with the square of its length along a row of pixels.
    void PaintPolyline(std::span<const QPointF> points) {
        const double piece = 32 * scale_;
        std::size_t start = 0;
        for (std::size_t i = 1; i < points.size(); ++i) {
            const bool isLast = i + 1 == points.size();
            if (!isLast && std::fabs(points[i + 1].x() - points[start].x()) <= piece) continue;
            painter_.drawPolyline(points.data() + start, static_cast<int>(i + 1 - start));
            start = i;
        }
    }

    void PaintStrands() {
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setBrush(Qt::NoBrush);
        for (const Strand& strand : strands_) {
            painter_.setPen(
                QPen(InkColour(strand.colour), PenWidth(strand.width), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            for (std::size_t i = 0; i < strand.starts.size(); ++i) {
                const std::size_t start = strand.starts[i];
                const std::size_t end = i + 1 < strand.starts.size() ? strand.starts[i + 1] : strand.points.size();
                PaintPolyline(Straightened(std::span(strand.points).subspan(start, end - start)));
            }
        }
        strands_.clear();
    }

    QPainter& painter_;
    const Canvas& canvas_;
    QRect ground_;
    double scale_;
    CanvasPart whole_, cut_;
    CanvasMapping map_;
    double gridStepX_ = 1, gridStepY_ = 1;
    std::vector<Strand> strands_;
    QRect lastRule_;
    QColor lastRuleInk_;
};

struct PrintedText {
    QString text;
    Rgb colour;
};

/// The prints without the line breaks that they end in; the gap between two stands for them.
std::vector<PrintedText> PrintsOf(const Canvas& canvas) {
    std::vector<PrintedText> prints;
    for (const DrawingOperation& operation : canvas.Operations()) {
        if (operation.kind != Kind::Text) continue;
        QString text = ToQt(canvas.TextOf(operation));
        text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        while (text.endsWith(QLatin1Char('\n'))) text.chop(1);
        prints.push_back({text, operation.colour});
    }
    return prints;
}

/// Lays the prints out from the top of `room`, and paints them where `painted` says so.
/// @return the height that they take
double LayPrints(QPainter& painter, const std::vector<PrintedText>& prints, QRectF room, bool painted) {
    constexpr int kWrapped = Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop;
    constexpr double kEndless = 1e6;
    const double top = room.top();
    const double gap = painter.fontMetrics().height() * 0.4;
    room.setHeight(kEndless);
    for (const PrintedText& print : prints) {
        painter.setPen(InkColour(print.colour));
        QRectF taken = painter.boundingRect(room, kWrapped, print.text);
        if (painted) painter.drawText(room, kWrapped, print.text);
        room.setTop(taken.bottom() + gap);
    }
    return room.top() - gap - top;
}

}  // namespace

DevicePixels::DevicePixels(QPainter& painter) : painter_(painter), toDevice_(painter.deviceTransform()) {
    painter_.save();
    painter_.setWorldTransform(toDevice_.inverted(), true);
}

QRect DevicePixels::Snapped(const QRectF& rectangle) const {
    const QRectF device = toDevice_.mapRect(rectangle);
    const QPoint corner(qRound(device.left()), qRound(device.top()));
    return {corner, QSize(qRound(device.right()) - corner.x(), qRound(device.bottom()) - corner.y())};
}

void PaintGround(QPainter& painter, const QRectF& ground, const QColor& frame, double frameWidth) {
    const DevicePixels pixels(painter);
    const QRect inner = pixels.Snapped(ground);
    const int width = std::max(1, static_cast<int>(std::floor(frameWidth * pixels.Scale())));
    painter.fillRect(inner.adjusted(-width, -width, width, width), frame);
    painter.fillRect(inner, Qt::white);
}

void PaintStrokes(QPainter& painter, const Canvas& canvas, const PlotPlace& place) {
    const DevicePixels pixels(painter);
    const QRect ground = pixels.Snapped(place.ground);
    painter.setClipRect(ground, Qt::IntersectClip);
    StrokePainter(painter, canvas, place, ground, pixels.Scale()).Paint();
}

void PaintPrints(QPainter& painter, const Canvas& canvas, const QRectF& ground) {
    constexpr double kSmallest = 6.5;  // points
    const std::vector<PrintedText> prints = PrintsOf(canvas);
    if (prints.empty()) return;
    painter.save();
    painter.setClipRect(ground, Qt::IntersectClip);
    const QRectF room = ground.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QFont font = painter.font();
    while (LayPrints(painter, prints, room, false) > room.height() && font.pointSizeF() > kSmallest) {
        font.setPointSizeF(font.pointSizeF() - 0.5);
        painter.setFont(font);
    }
    LayPrints(painter, prints, room, true);
    painter.restore();
}

}  // namespace zolv
