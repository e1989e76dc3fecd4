#pragma once

#include <QColor>
#include <QPointF>

class QPainter;

namespace zolv::pictures {

struct WingInks {
    QColor endPlate, blade;
};

/// Paints a wing by its type, a row of its table from 1: a higher one has more blades and larger end plates. In metres,
/// y up.
/// @param at    middle of a rear wing's end plate; of a front wing, the middle of its lower edge
/// @param scale 1 for the wings of a formula car
void PaintRearWing(QPainter& painter, QPointF at, int type, const WingInks& inks, double scale);
void PaintFrontWing(QPainter& painter, QPointF at, int type, const WingInks& inks);

}  // namespace zolv::pictures
