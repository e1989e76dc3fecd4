#include "desktop/value_label.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "desktop/state_mark.h"
#include "desktop/theme.h"

namespace zolv {
namespace {

constexpr int kMarkSize = 7;
constexpr int kMarkRoom = kMarkSize + 5;

}  // namespace

ValueLabel::ValueLabel(QWidget* parent) : QLabel(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setContentsMargins(kMarkRoom, 0, 0, 0);
}

void ValueLabel::ReserveFor(const std::vector<QString>& widest) {
    reserved_ = widest;
    updateGeometry();
}

void ValueLabel::SetState(std::optional<Rgb> colour) {
    if (state_ == colour) return;  // a palette is costly to set
    state_ = colour;
    ApplyColour();
    update();
}

void ValueLabel::ApplyColour() {
    QPalette colours;
    colours.setColor(QPalette::WindowText, TextColour(state_, parentWidget() ? parentWidget()->palette() : palette()));
    setPalette(colours);
}

QSize ValueLabel::sizeHint() const {
    QSize size = QLabel::sizeHint();
    for (const QString& text : reserved_) {
        size.setWidth(std::max(size.width(), fontMetrics().horizontalAdvance(text) + kMarkRoom + 2));
    }
    return size;
}

void ValueLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!HasMark(state_)) return;
    const int textWidth = fontMetrics().horizontalAdvance(text());
    const double x = std::max(0, width() - textWidth - kMarkRoom);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(MarkOf(*state_, QRectF(x, (height() - kMarkSize) / 2.0, kMarkSize, kMarkSize)),
                     palette().color(QPalette::WindowText));
}

void ValueLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::ParentChange || event->type() == QEvent::StyleChange) ApplyColour();
}

}  // namespace zolv
