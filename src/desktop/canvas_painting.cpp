#include "desktop/canvas_painting.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <vector>

#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "drawing/palette.h"

namespace zolv {
namespace {

using Kind = DrawingOperation::Kind;

/// The lines of one pen that wait to be painted, as polylines.
struct Strand {
    Meaning meaning;
    StrokeStyle style;
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
          cut_(place.part),
          grid_(canvas, place),
          map_(MapOnto(place.part, ground.x(), ground.y(), ground.width(), ground.height())) {
        const double reserveX = place.part.Width() * 0.05;  // keeps the ends of cut lines out of sight
        const double reserveY = place.part.Height() * 0.05;
        cut_ = {cut_.left - reserveX, cut_.top - reserveY, cut_.right + reserveX, cut_.bottom + reserveY};
    }

    void Paint() {
        for (const DrawingOperation& line : grid_.RoundLines()) PaintGridLine(line);
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
    double PenWidth(double width) const { return std::max(1.0, width * scale_); }

    void PaintGridLine(DrawingOperation line) {
        if (CutLine(line, cut_)) PaintRule(line, ToQt(grid_.ColourOf(line)), 1);
    }

    void PaintLine(DrawingOperation line) {
        if (line.meaning.role == Role::Grid) {
            if (grid_.Shows(line)) PaintGridLine(line);
            return;
        }
        if (!CutLine(line, cut_)) return;
        const StrokeStyle style = StyleOf(line);
        const bool isStraight = line.x1 == line.x2 || line.y1 == line.y2;
        if (isStraight && !style.dashed && !IsCurve(line.meaning.role)) {
            PaintRule(line, ToQt(style.colour), style.width);
        } else {
            StrandOf(line.meaning, style).Add({map_.X(line.x1), map_.Y(line.y1)}, {map_.X(line.x2), map_.Y(line.y2)});
        }
    }

    void PaintRule(const DrawingOperation& line, const QColor& ink, double layoutWidth) {
        const int width = qRound(PenWidth(layoutWidth));
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
        painter_.fillRect(QRect(corner, QSize(end.x() - corner.x(), end.y() - corner.y())), ToQt(FillOf(rectangle)));
    }

    void PaintCircle(const DrawingOperation& circle) {
        constexpr double kLargest = 1e5;  // what is beyond covers the canvas all the same, and a painter can take it
        PaintStrands();
        const double radius = std::min(circle.x2, kLargest);
        if (!(radius > 0) || std::fabs(circle.x1) > kLargest || std::fabs(circle.y1) > kLargest) return;
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(ToQt(FillOf(circle)));
        const Role role = circle.meaning.role;
        // A dot on a curve or a map stays round on a plot that is stretched.
        const bool isDot = IsCurve(role) || role == Role::PresentPoint || role == Role::BestPoint;
        const double scaleY = isDot ? map_.scaleX : map_.scaleY;
        painter_.drawEllipse(QPointF(map_.X(circle.x1), map_.Y(circle.y1)), radius * map_.scaleX, radius * scaleY);
    }

    Strand& StrandOf(Meaning meaning, const StrokeStyle& style) {
        for (Strand& strand : strands_) {
            if (strand.meaning == meaning && strand.style == style) return strand;
        }
        return strands_.emplace_back(Strand{meaning, style, {}, {}});
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
            painter_.setPen(PenOf(strand.style, scale_));
            for (std::size_t i = 0; i < strand.starts.size(); ++i) {
                const std::size_t start = strand.starts[i];
                const std::size_t end = i + 1 < strand.starts.size() ? strand.starts[i + 1] : strand.points.size();
                const std::vector<QPointF> points = Straightened(std::span(strand.points).subspan(start, end - start));
                if (strand.style.dashed) {
                    painter_.drawPolyline(points.data(), static_cast<int>(points.size()));  // dashes run on
                } else {
                    PaintPolyline(points);
                }
            }
        }
        strands_.clear();
    }

    QPainter& painter_;
    const Canvas& canvas_;
    QRect ground_;
    double scale_;
    CanvasPart cut_;
    ShownGrid grid_;
    CanvasMapping map_;
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
        painter.setPen(ToQt(Softened(print.colour)));
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

QPen PenOf(const StrokeStyle& style, double scale) {
    QPen pen(ToQt(style.colour), std::max(1.0, style.width * scale), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (!style.dashed) return pen;
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({kDash, kDashGap});
    return pen;
}

void PaintGround(QPainter& painter, const Box& ground, const QColor& frame, double frameWidth) {
    const DevicePixels pixels(painter);
    const QRect inner = pixels.Snapped(ToQt(ground));
    const int width = std::max(1, static_cast<int>(std::floor(frameWidth * pixels.Scale())));
    painter.fillRect(inner.adjusted(-width, -width, width, width), frame);
    painter.fillRect(inner, Qt::white);
}

void PaintStrokes(QPainter& painter, const Canvas& canvas, const PlotPlace& place) {
    const DevicePixels pixels(painter);
    const QRect ground = pixels.Snapped(ToQt(place.ground));
    painter.setClipRect(ground, Qt::IntersectClip);
    StrokePainter(painter, canvas, place, ground, pixels.Scale()).Paint();
}

void PaintScale(QPainter& painter, const Box& bar, const QColor& frame) {
    if (bar.width <= 0) return;
    const DevicePixels pixels(painter);
    const QRect inner = pixels.Snapped(ToQt(bar));
    const int width = std::max(1, static_cast<int>(std::floor(pixels.Scale())));
    painter.fillRect(inner.adjusted(-width, -width, width, width), frame);
    for (int shade = 0; shade < kShades; ++shade) {
        const int top = inner.bottom() + 1 - inner.height() * (shade + 1) / kShades;
        const int bottom = inner.bottom() + 1 - inner.height() * shade / kShades;
        painter.fillRect(inner.left(), top, inner.width(), bottom - top, ToQt(ShadeColour(shade)));
    }
}

void PaintPrints(QPainter& painter, const Canvas& canvas, const Box& box) {
    constexpr double kSmallest = 6.5;  // points
    const std::vector<PrintedText> prints = PrintsOf(canvas);
    if (prints.empty()) return;
    const QRectF ground = ToQt(box);
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
