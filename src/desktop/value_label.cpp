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
constexpr int kChangeGap = 5;  // between a figure and the change beside it

/// A change is smaller than its figure.
QFont ChangeFont(const QFont& font) {
    constexpr double kShare = 0.8;
    QFont small = font;
    if (font.pixelSize() > 0) {
        small.setPixelSize(qRound(font.pixelSize() * kShare));
    } else {
        small.setPointSizeF(font.pointSizeF() * kShare);
    }
    return small;
}

int ChangeWidth(const QFont& font) {
    return QFontMetrics(ChangeFont(font)).horizontalAdvance(QStringLiteral("+888.8")) + kChangeGap;
}

/// Digits and signs have nothing below their line.
int ChangeHeight(const QFont& font) { return QFontMetrics(ChangeFont(font)).ascent(); }

}  // namespace

ValueLabel::ValueLabel(QWidget* parent) : QLabel(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    SetMarkRoom(true);
}

void ValueLabel::SetMarkRoom(bool room) {
    markRoom_ = room;
    PlaceMargins();
}

void ValueLabel::SetChangePlace(ChangePlace place) {
    changePlace_ = place;
    PlaceMargins();
}

void ValueLabel::PlaceMargins() {
    setContentsMargins(markRoom_ ? kMarkRoom : 0, 0, changePlace_ == ChangePlace::Beside ? ChangeWidth(font()) : 0, 0);
}

void ValueLabel::SetChange(const QString& change, ChangeSide side) {
    if (change_ == change && changeSide_ == side) return;
    change_ = change;
    changeSide_ = side;
    update();
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
        const int margins = contentsMargins().left() + contentsMargins().right();
        size.setWidth(std::max(size.width(), fontMetrics().horizontalAdvance(text) + margins + 2));
    }
    if (changePlace_ == ChangePlace::Below)
        size.rheight() += 2 * ChangeHeight(font());  // the figure stays in the middle
    return size;
}

void ValueLabel::paintEvent(QPaintEvent* event) {
    if (standing_ == FigureStanding::NotShown) return;
    QLabel::paintEvent(event);
    if (standing_ == FigureStanding::Older) return;
    if (HasMark(state_)) PaintMark();
    const bool older = standing_ == FigureStanding::Older;
    if (!change_.isEmpty() && !older && changePlace_ != ChangePlace::None) PaintChange();
}

void ValueLabel::PaintMark() {
    const int textWidth = fontMetrics().horizontalAdvance(text());
    const double x = std::max(0, width() - contentsMargins().right() - textWidth - kMarkRoom);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(MarkOf(*state_, QRectF(x, (height() - kMarkSize) / 2.0, kMarkSize, kMarkSize)),
                     palette().color(QPalette::WindowText));
}

/// One that is wider than its room is made narrower.
void ValueLabel::PaintChange() {
    const bool beside = changePlace_ == ChangePlace::Beside;
    const QRect room =
        beside ? QRect(width() - ChangeWidth(font()) + kChangeGap, 0, ChangeWidth(font()) - kChangeGap, height())
               : QRect(0, height() - ChangeHeight(font()), width(), ChangeHeight(font()));
    QFont small = ChangeFont(font());
    const int wanted = QFontMetrics(small).horizontalAdvance(change_);
    if (wanted > room.width()) small.setStretch(std::max(50, 100 * room.width() / wanted));
    const QPalette ground = parentWidget()->palette();
    QColor ink = ground.color(QPalette::PlaceholderText);
    if (changeSide_ == ChangeSide::Better) ink = TextColour(kDarkGreen, ground);
    if (changeSide_ == ChangeSide::Worse) ink = TextColour(kRed, ground);
    QPainter painter(this);
    painter.setFont(small);
    painter.setPen(ink);
    const Qt::Alignment where = beside ? Qt::AlignVCenter | Qt::AlignLeft : Qt::AlignBottom | Qt::AlignRight;
    painter.drawText(room, static_cast<int>(where) | Qt::TextDontClip, change_);
}

void ValueLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::ParentChange || event->type() == QEvent::StyleChange) ApplyColour();
}

}  // namespace zolv
