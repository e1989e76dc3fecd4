#include "desktop/state_mark.h"

#include <QPainter>
#include <QPixmap>

namespace zolv {

bool HasMark(std::optional<Rgb> colour) { return colour == kRed || colour == kBlue || colour == kDarkGreen; }

QPainterPath MarkOf(Rgb colour, const QRectF& box) {
    QPainterPath mark;
    if (colour == kRed) {
        mark.addPolygon(QPolygonF({box.bottomLeft(), QPointF(box.center().x(), box.top()), box.bottomRight()}));
    } else if (colour == kBlue) {
        mark.addPolygon(QPolygonF({box.topLeft(), QPointF(box.center().x(), box.bottom()), box.topRight()}));
    } else {
        mark.addEllipse(box);
    }
    return mark;
}

QIcon MarkIcon(Rgb colour, const QColor& ink) {
    constexpr int kSize = 64;  // scaled down on every display
    constexpr QRectF kInside(18, 18, 28, 28);
    QPixmap picture(kSize, kSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(MarkOf(colour, kInside), ink);
    return QIcon(picture);
}

}  // namespace zolv
