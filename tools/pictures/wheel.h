#pragma once

#include <QColor>
#include <QPointF>

class QPainter;

namespace zolv::pictures {

struct WheelLook {
    int spokes = 5;
    bool paired = false;  // two thin spokes in place of a broad one
    QColor rim;
    QColor caliper;
    QColor sidewall;  // line on the tyre, where valid
};

void PaintWheel(QPainter& painter, QPointF centre, double tyreRadius, double rimRadius, const WheelLook& look);

}  // namespace zolv::pictures
