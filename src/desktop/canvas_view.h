#pragma once

#include <QWidget>
#include <optional>

#include "desktop/plot_place.h"
#include "fields/kinds.h"

namespace zolv {

/// Paints the drawing of a canvas: white in every theme, lines smooth and at least one device pixel wide at any display
/// scale. A plot is stretched to the room there is and has numbers along its axes, outside the canvas; a drawing
/// without axes, or with one scale in both directions, keeps its proportions. Under the mouse a crosshair reads the
/// values. The context menu, by the mouse or a key, copies or saves the picture.
class CanvasView : public QWidget {
public:
    using Shape = CanvasShape;

    CanvasView(const CanvasField& field, Shape shape, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {150, 100}; }

    /// Puts the picture into the clipboard, at twice the resolution of the screen.
    void CopyPicture() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    PlotPlace Place() const;

    const CanvasField& field_;
    Shape shape_;
    std::optional<QPointF> pointer_;  // the mouse, in widget coordinates
};

}  // namespace zolv
