#pragma once

#include <QWidget>
#include <optional>

#include "fields/kinds.h"

namespace zolv {

/// Paints the drawing of a canvas: white in every theme, lines smooth and at least one device pixel wide at any display
/// scale. A plot is stretched to the room there is and has numbers along its axes, outside the canvas; a drawing
/// without axes, or with one scale in both directions, keeps its proportions. Under the mouse a crosshair reads the
/// values.
class CanvasView : public QWidget {
public:
    enum class Shape { Stretched, Proportional };

    CanvasView(const CanvasField& field, Shape shape, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {180, 120}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    const CanvasField& field_;
    Shape shape_;
    std::optional<QPointF> pointer_;  // the mouse, in widget coordinates
};

}  // namespace zolv
