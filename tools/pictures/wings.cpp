#include "pictures/wings.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace zolv::pictures {
namespace {

/// Side view of a wing: end plate and the blades that it holds. [m]
struct WingForm {
    double length, height;
    int blades;
};

// Row 0 is no wing.
constexpr WingForm kFrontWings[] = {{0, 0, 0}, {0.34, 0.13, 1}, {0.44, 0.16, 2}, {0.40, 0.14, 1}, {0.56, 0.21, 3}};
constexpr WingForm kRearWings[] = {{0, 0, 0}, {0.42, 0.26, 1}, {0.54, 0.36, 2}, {0.62, 0.46, 3}};

template <std::size_t Rows>
const WingForm& FormOf(const WingForm (&forms)[Rows], int type) {
    return forms[std::clamp(type, 0, static_cast<int>(Rows) - 1)];
}

void PaintPlate(QPainter& painter, const QRectF& plate, const QColor& colour) {
    QPainterPath path;
    const double round = std::min(plate.width(), plate.height()) * 0.16;
    path.addRoundedRect(plate, round, round);
    painter.fillPath(path, colour);
}

/// A blade's edge on the end plate: low in front, rising to the rear.
void PaintBlade(QPainter& painter, QPointF front, double length, double rise, const QColor& colour) {
    QPainterPath blade(front);
    blade.quadTo(front + QPointF(length * 0.6, rise * 0.1), front + QPointF(length, rise));
    painter.strokePath(blade, QPen(colour, 0.026, Qt::SolidLine, Qt::RoundCap));
}

void PaintBlades(QPainter& painter, const QRectF& plate, int blades, const QColor& colour) {
    const double step = plate.height() * 0.78 / (blades + 1);
    for (int i = 0; i < blades; ++i) {
        const QPointF front(plate.left() + plate.width() * (0.12 + 0.06 * i),
                            plate.top() + plate.height() * 0.10 + step * (i + 0.4));
        PaintBlade(painter, front, plate.width() * (0.76 - 0.06 * i), step * 0.75, colour);
    }
}

}  // namespace

void PaintRearWing(QPainter& painter, QPointF at, int type, const WingInks& inks, double scale) {
    const WingForm& form = FormOf(kRearWings, type);
    const double length = form.length * scale, height = form.height * scale;
    const QRectF plate(at.x() - length / 2, at.y() - height / 2, length, height);
    PaintPlate(painter, plate, inks.endPlate);
    PaintBlades(painter, plate, form.blades, inks.blade);
}

void PaintFrontWing(QPainter& painter, QPointF at, int type, const WingInks& inks) {
    const WingForm& form = FormOf(kFrontWings, type);
    const QRectF plate(at.x() - form.length / 2, at.y(), form.length, form.height);
    PaintPlate(painter, plate, inks.endPlate);
    PaintBlades(painter, plate, form.blades, inks.blade);
}

}  // namespace zolv::pictures
