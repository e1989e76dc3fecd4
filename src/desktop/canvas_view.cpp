#include "desktop/canvas_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/canvas_export.h"
#include "desktop/plot_marks.h"
#include "desktop/texts_of_qt.h"
#include "text/words.h"

namespace zolv {
namespace {

/// Between the words and the ground of a theme: less than a page's own text, so that the curves come first.
QColor Blend(const QColor& over, const QColor& under, double share) {
    const auto mix = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
    return {mix(over.red(), under.red()), mix(over.green(), under.green()), mix(over.blue(), under.blue())};
}

CanvasInks InksOf(const QWidget& view) {
    const QColor words = view.palette().color(QPalette::WindowText);
    const QColor ground = view.palette().color(QPalette::Window);
    CanvasInks inks{.words = Blend(words, ground, 0.8), .frame = Blend(words, ground, 0.4)};
    if (view.hasFocus()) {
        inks.frame = view.palette().color(QPalette::Highlight);
        inks.frameWidth = 2;
    }
    return inks;
}

}  // namespace

CanvasView::CanvasView(const CanvasField& field, Shape shape, QWidget* parent)
    : QWidget(parent), field_(field), shape_(shape) {
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // A click leaves the caret in the box where the user is typing.
    setFocusPolicy(Qt::TabFocus);
}

QSize CanvasView::sizeHint() const {
    constexpr int kHeight = 300;
    const Canvas& canvas = field_.Drawing();
    return {qRound(kHeight * canvas.Width() / canvas.Height()), kHeight};
}

PlotPlace CanvasView::Place() const {
    return PlaceOf(field_.Drawing(), shape_, size(), QFontMetricsF(NumberFont(font())));
}

void CanvasView::CopyPicture() const {
    QGuiApplication::clipboard()->setImage(PictureOf(field_.Drawing(), shape_, size(), font()));
}

void CanvasView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const PlotPlace place = Place();
    PaintPicture(painter, field_.Drawing(), place, font(), InksOf(*this));
    if (!place.hasAxes || !pointer_ || !place.ground.contains(*pointer_)) return;
    painter.setFont(font());
    PaintCrosshair(painter, field_.Drawing(), place, *pointer_, rect());
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
    pointer_ = event->position();
    update();
}

void CanvasView::leaveEvent(QEvent*) {
    pointer_.reset();
    update();
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
    const auto add = [&](const QString& name, const QString& text, auto work) {
        menu->addAction(text, this, work)->setObjectName(name);
    };
    add(QStringLiteral("CopyPicture"), ToQt(words["CopyPicture"]), [this] { CopyPicture(); });
    add(QStringLiteral("SaveAsSvg"), ToQt(words["SaveAsSvgEntry"]), [this] { SaveAsSvg(field_.Drawing()); });
    add(QStringLiteral("SaveAsPng"), ToQt(words["SaveAsPngEntry"]),
        [this] { SaveAsPng(PictureOf(field_.Drawing(), shape_, size(), font())); });
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    menu->popup(byKey ? mapToGlobal(rect().center()) : event->globalPos());
}

}  // namespace zolv
