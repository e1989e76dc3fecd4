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
    SetMarkRoom(true);
}

void ValueLabel::SetMarkRoom(bool room) { setContentsMargins(room ? kMarkRoom : 0, 0, 0, 0); }

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

void ValueLabel::SetStanding(FigureStanding standing) {
    if (standing_ == standing) return;
    standing_ = standing;
    ApplyColour();
    update();
}

void ValueLabel::ApplyColour() {
    const QPalette ground = parentWidget() != nullptr ? parentWidget()->palette() : palette();
    QPalette colours;
    colours.setColor(QPalette::WindowText, standing_ == FigureStanding::Older
                                               ? ground.color(QPalette::Disabled, QPalette::WindowText)
                                               : TextColour(state_, ground));
    setPalette(colours);
}

QSize ValueLabel::sizeHint() const {
    QSize size = QLabel::sizeHint();
    for (const QString& text : reserved_) {
        size.setWidth(std::max(size.width(), fontMetrics().horizontalAdvance(text) + contentsMargins().left() + 2));
    }
    return size;
}

void ValueLabel::paintEvent(QPaintEvent* event) {
    if (standing_ == FigureStanding::NotShown) return;
    QLabel::paintEvent(event);
    if (!HasMark(state_) || standing_ == FigureStanding::Older) return;
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
