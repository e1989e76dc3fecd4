#include "pictures/icon.h"

#include <QPainter>
#include <QPainterPath>
#include <numbers>

namespace zolv::pictures {
namespace {

const QColor kWheel(0x3a668c), kFace(0xf6f8fa), kCurve(0xe2661c), kSheetEdge(0x9aa5b1);

/// Measures on a square of 128.
struct IconForm {
    int teeth;
    double outer, root, face;    // radii
    double toothRoot, toothTip;  // half angles, as shares of a tooth and its gap
    double curveWidth;
    QPointF from, bend, top, to;  // of the cubic
};

constexpr double kGrid = 128;
const IconForm kLarge{12, 62, 51, 39, 0.30, 0.17, 9, {39, 84}, {68, 84}, {66, 52}, {88, 44}};
const IconForm kSmall{8, 64, 50, 38, 0.30, 0.20, 16, {40, 84}, {68, 84}, {66, 54}, {86, 44}};

const IconForm& FormFor(int size) { return size <= 32 ? kSmall : kLarge; }

/// The wheel's outline: four corners for each tooth. The first tooth stands upright.
QPolygonF Teeth(const IconForm& form) {
    QPolygonF outline;
    const QPointF centre(kGrid / 2, kGrid / 2);
    for (int tooth = 0; tooth < form.teeth; ++tooth) {
        for (const auto& [share, radius] :
             {std::pair{-form.toothRoot, form.root}, std::pair{-form.toothTip, form.outer},
              std::pair{form.toothTip, form.outer}, std::pair{form.toothRoot, form.root}}) {
            const double angle = 2 * std::numbers::pi * (tooth + share) / form.teeth;
            outline << centre + radius * QPointF(std::sin(angle), -std::cos(angle));
        }
    }
    return outline;
}

void Paint(QPainter& painter, const IconForm& form) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(kGrid / 2, kGrid / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kWheel);
    painter.drawPolygon(Teeth(form));
    painter.setBrush(kFace);
    painter.drawEllipse(centre, form.face, form.face);
    QPainterPath curve(form.from);
    curve.cubicTo(form.bend, form.top, form.to);
    painter.strokePath(curve, QPen(kCurve, form.curveWidth, Qt::SolidLine, Qt::RoundCap));
}

QString Number(double value) { return QString::number(value, 'g', 5); }
QString Pair(QPointF at) { return Number(at.x()) + QLatin1Char(' ') + Number(at.y()); }

}  // namespace

void PaintIcon(QPainter& painter, const QRectF& square) {
    painter.save();
    painter.translate(square.topLeft());
    painter.scale(square.width() / kGrid, square.height() / kGrid);
    Paint(painter, kLarge);
    painter.restore();
}

QImage IconOf(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(size / kGrid, size / kGrid);
    Paint(painter, FormFor(size));
    return image;
}

QImage SheetIconOf(int size, const QColor& stripe) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / kGrid, size / kGrid);
    painter.setPen(QPen(kSheetEdge, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(kFace);
    painter.drawPolygon(QPolygonF({{20, 4}, {80, 4}, {108, 32}, {108, 124}, {20, 124}}));
    painter.setBrush(kSheetEdge);
    painter.drawPolygon(QPolygonF({{80, 4}, {108, 32}, {80, 32}}));
    painter.setPen(Qt::NoPen);
    painter.setBrush(stripe);
    painter.drawRect(QRectF(30, 104, 68, 12));
    painter.translate(32, 36);
    painter.scale(0.5, 0.5);
    Paint(painter, FormFor(size / 2));
    return image;
}

QByteArray IconAsSvg() {
    QStringList corners;
    for (const QPointF& corner : Teeth(kLarge)) corners << Pair(corner);
    const QString text =
        QStringLiteral(
            "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 128 128\">\n"
            "  <title>Zolv</title>\n"
            "  <path fill=\"%1\" d=\"M%2Z\"/>\n"
            "  <circle cx=\"64\" cy=\"64\" r=\"%3\" fill=\"%4\"/>\n"
            "  <path fill=\"none\" stroke=\"%5\" stroke-width=\"%6\" stroke-linecap=\"round\" d=\"M%7C%8\"/>\n"
            "</svg>\n")
            .arg(kWheel.name(), corners.join(QLatin1String(" L")), Number(kLarge.face), kFace.name(), kCurve.name(),
                 Number(kLarge.curveWidth), Pair(kLarge.from),
                 QStringList{Pair(kLarge.bend), Pair(kLarge.top), Pair(kLarge.to)}.join(QLatin1Char(' ')));
    return text.toUtf8();
}

}  // namespace zolv::pictures
