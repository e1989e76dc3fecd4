#include "desktop/canvas_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "desktop/canvas_export.h"
#include "desktop/canvas_painting.h"
#include "desktop/colours.h"
#include "desktop/plot_marks.h"
#include "desktop/texts_of_qt.h"
#include "drawing/curve_reading.h"
#include "text/words.h"

namespace zolv {
namespace {

/// What stands around a plot is paler than a page's own text, so that the curves come first.
CanvasInks InksOf(const QWidget& view, bool faded) {
    const QColor words = view.palette().color(QPalette::WindowText);
    const QColor ground = view.palette().color(QPalette::Window);
    constexpr double kFaded = 0.4;
    CanvasInks inks{
        .words = Blend(words, ground, 0.8), .frame = Blend(words, ground, 0.4), .strokes = faded ? kFaded : 1};
    if (view.hasFocus()) {
        inks.frame = view.palette().color(QPalette::Highlight);
        inks.frameWidth = 2;
    }
    return inks;
}

}  // namespace

CanvasView::CanvasView(const Canvas& canvas, Shape shape, QWidget* parent)
    : QWidget(parent), canvas_(canvas), shape_(shape) {
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // A click leaves the caret in the box where the user is typing.
    setFocusPolicy(Qt::TabFocus);
}

QSize CanvasView::sizeHint() const {
    constexpr int kHeight = 300;
    return {qRound(kHeight * canvas_.Width() / canvas_.Height()), kHeight};
}

PlotPlace CanvasView::Place() const {
    return PlaceOf(canvas_, shape_, {double(width()), double(height())}, MeasureOf(NumberFont(font())));
}

void CanvasView::SetFaded(bool faded) {
    if (faded_ == faded) return;
    faded_ = faded;
    update();
}

void CanvasView::CopyPicture() const {
    QGuiApplication::clipboard()->setImage(PictureOf(canvas_, PictureSize(), font()));
}

void CanvasView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const PlotPlace place = Place();
    PaintPicture(painter, canvas_, place, font(), InksOf(*this, faded_));
    if (!place.hasAxes) return;
    painter.setFont(font());
    const Box& ground = place.ground;
    if (pointer_ && ToQt(ground).contains(*pointer_)) {
        PaintCrosshair(painter, canvas_, place, {.x = pointer_->x(), .y = pointer_->y()}, rect());
    } else if (sharedX_) {
        const PlotAxis& axis = canvas_.PresentAxes().x;
        const double x = place.Mapping().X(axis.origin + axis.scale * *sharedX_);
        if (x < ground.left || x > ground.Right()) return;
        PaintCrosshair(painter, canvas_, place, {.x = x, .y = ground.CentreY(), .shared = true}, rect());
    }
}

/// Tells the views beside this one the value of x under the mouse, or that there is none.
void CanvasView::ShareCrosshair() {
    std::optional<double> value;
    const PlotPlace place = Place();
    if (pointer_ && place.hasAxes && ToQt(place.ground).contains(*pointer_)) {
        const PlotAxis& axis = canvas_.PresentAxes().x;
        value = (place.Mapping().CanvasX(pointer_->x()) - axis.origin) / axis.scale;
    }
    for (CanvasView* view : window()->findChildren<CanvasView*>()) {
        if (view == this || (value && !ShareX(canvas_, view->canvas_)) || value == view->sharedX_) continue;
        view->sharedX_ = value;
        view->update();
    }
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
    pointer_ = event->position();
    ShareCrosshair();
    update();
}

void CanvasView::SetClick(std::function<void(double, double)> click) {
    click_ = std::move(click);
    setCursor(click_ ? Qt::CrossCursor : Qt::ArrowCursor);
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
    const PlotPlace place = Place();
    if (!click_ || event->button() != Qt::LeftButton || !place.hasAxes) return;
    if (!ToQt(place.ground).contains(event->position())) return;
    const Canvas::Axes& axes = canvas_.PresentAxes();
    const CanvasMapping mapping = place.Mapping();
    click_((mapping.CanvasX(event->position().x()) - axes.x.origin) / axes.x.scale,
           (mapping.CanvasY(event->position().y()) - axes.y.origin) / axes.y.scale);
}

void CanvasView::SavePng() { SaveAsPng(PictureOf(canvas_, PictureSize(), font())); }

void CanvasView::leaveEvent(QEvent*) {
    pointer_.reset();
    ShareCrosshair();
    update();
}

/// Where the crosshair reads the curves no tip covers them; beside the plot one stands below it.
void CanvasView::ShowToolTip() {
    const PlotPlace place = Place();
    const bool onPlot = place.hasAxes && pointer_ && ToQt(place.ground).contains(*pointer_);
    if (onPlot || toolTip().isEmpty()) return QToolTip::hideText();
    QToolTip::showText(mapToGlobal(QPoint(qRound(place.ground.left), qRound(place.ground.Bottom()))), toolTip(), this);
}

bool CanvasView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    ShowToolTip();
    return true;
}

void CanvasView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        CopyPicture();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void CanvasView::contextMenuEvent(QContextMenuEvent* event) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& name, std::string_view text, auto work) {
        menu->addAction(ToQt(text), this, work)->setObjectName(name);
    };
    add(QStringLiteral("CopyPicture"), words["CopyPicture"], [this] { CopyPicture(); });
    add(QStringLiteral("SaveAsSvg"), words["SaveAsSvgEntry"], [this] { SaveAsSvg(canvas_, PictureSize()); });
    add(QStringLiteral("SaveAsPng"), words["SaveAsPngEntry"], [this] { SavePng(); });
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    menu->popup(byKey ? mapToGlobal(rect().center()) : event->globalPos());
}

}  // namespace zolv
