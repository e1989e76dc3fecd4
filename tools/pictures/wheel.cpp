#include "pictures/wheel.h"

#include <QPainter>
#include <QPainterPath>
#include <numbers>

#include "pictures/inks.h"

namespace zolv::pictures {
namespace {

void Disc(QPainter& painter, QPointF centre, double radius, const QColor& colour) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(centre, radius, radius);
}

void Ring(QPainter& painter, QPointF centre, double radius, double width, const QColor& colour) {
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(centre, radius, radius);
}

void PaintBrake(QPainter& painter, QPointF centre, double rimRadius, const QColor& caliper) {
    Disc(painter, centre, rimRadius * 0.94, kRimWell);
    Disc(painter, centre, rimRadius * 0.66, kBrakeDisc);
    const double radius = rimRadius * 0.58;
    painter.setPen(QPen(caliper, rimRadius * 0.22, Qt::SolidLine, Qt::FlatCap));
    // Sixteenths of a degree. The caliper sits behind the disc's axle.
    painter.drawArc(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), -40 * 16, 80 * 16);
}

/// One spoke that points to the right, from the hub to the rim.
QPolygonF Spoke(double rimRadius, double innerHalf, double outerHalf) {
    const double from = rimRadius * 0.12, to = rimRadius * 0.95;
    return QPolygonF({{from, -innerHalf}, {to, -outerHalf}, {to, outerHalf}, {from, innerHalf}});
}

void PaintSpokes(QPainter& painter, QPointF centre, double rimRadius, const WheelLook& look) {
    const double turn = 360.0 / look.spokes;
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.rim);
    for (int i = 0; i < look.spokes; ++i) {
        for (const double side : {-0.17, 0.17}) {
            painter.save();
            painter.translate(centre);
            painter.rotate(90 + turn * (i + (look.paired ? side : 0)));
            const double half = rimRadius * (look.paired ? 0.055 : 0.36 / (look.spokes - 1.5));
            painter.drawPolygon(Spoke(rimRadius, half * 1.15, half));
            painter.restore();
        }
    }
}

}  // namespace

void PaintWheel(QPainter& painter, QPointF centre, double tyreRadius, double rimRadius, const WheelLook& look) {
    Disc(painter, centre, tyreRadius, kTyre);
    const double sidewall = tyreRadius - rimRadius;
    Ring(painter, centre, rimRadius + sidewall * 0.55, sidewall * (look.sidewall.isValid() ? 0.16 : 0.10),
         look.sidewall.isValid() ? look.sidewall : kTyreLine);
    PaintBrake(painter, centre, rimRadius, look.caliper);
    PaintSpokes(painter, centre, rimRadius, look);
    Ring(painter, centre, rimRadius * 0.95, rimRadius * 0.10, look.rim);
    Disc(painter, centre, rimRadius * 0.21, look.rim);
    Disc(painter, centre, rimRadius * 0.09, kRimWell);
}

}  // namespace zolv::pictures
