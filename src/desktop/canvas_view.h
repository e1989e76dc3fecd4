#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "drawing/svg.h"
#include "fields/kinds.h"

namespace zolv {

/// Paints the drawing of a canvas: white in every theme, lines smooth and at least one device pixel wide at any display
/// scale. A plot is stretched to the room there is and has numbers along its axes, outside the canvas; a drawing
/// without axes, or with one scale in both directions, keeps its proportions. Under the mouse a crosshair reads the
/// values of the axes and of each curve; it stands in those views of the same parent, too, that have the same x. The
/// context menu, by the mouse or a key, copies or saves the picture.
class CanvasView : public QWidget {
    Q_OBJECT  // by which views find each other

        public : using Shape = CanvasShape;

    /// @param canvas  lives longer than the view; who draws on it calls update()
    CanvasView(const Canvas& canvas, Shape shape, QWidget* parent = nullptr);
    CanvasView(const CanvasField& field, Shape shape, QWidget* parent = nullptr)
        : CanvasView(field.Drawing(), shape, parent) {}

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {150, 100}; }

    /// What a click on a plot does, with what its axes read there.
    void SetClick(std::function<void(double x, double y)> click);

    /// Ask for a file and write the picture into it as it stands in the view.
    void SavePng();

    /// Whether its lines are pale, as those of a drawing that is older than what is set.
    void SetFaded(bool faded);

    /// Puts the picture into the clipboard, at twice the resolution of the screen.
    void CopyPicture() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    PlotPlace Place() const;
    SvgSize PictureSize() const { return {double(width()), double(height()), shape_}; }
    void ShareCrosshair();
    void ShowToolTip();

    const Canvas& canvas_;
    Shape shape_;
    std::optional<QPointF> pointer_;  // the mouse, in widget coordinates
    std::function<void(double, double)> click_;
    bool faded_ = false;
    std::optional<double> sharedX_;  // value of x under the mouse in another view
};

}  // namespace zolv
