#include "desktop/zolv_style.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>

namespace zolv {
namespace {

/// An indicator's outline, and its filling when it is on; grey when it is disabled.
void PaintOutline(QPainter& painter, const QStyleOption& option, const QPainterPath& outline, bool on) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool marked = option.state.testFlag(QStyle::State_HasFocus) || option.state.testFlag(QStyle::State_MouseOver);
    const QColor accent = option.palette.color(QPalette::Highlight);
    const QColor grey = option.palette.color(QPalette::Disabled, QPalette::Text);
    const QColor filling = enabled ? accent : grey;
    painter.setPen(QPen(on || (marked && enabled) ? filling : grey, 1.3));
    painter.setBrush(on ? filling : option.palette.color(QPalette::Base));
    painter.drawPath(outline);
}

void PaintTick(QPainter& painter, const QStyleOption& option, const QRectF& box) {
    QPainterPath tick;
    tick.moveTo(box.left() + box.width() * 0.24, box.top() + box.height() * 0.52);
    tick.lineTo(box.left() + box.width() * 0.43, box.top() + box.height() * 0.71);
    tick.lineTo(box.left() + box.width() * 0.77, box.top() + box.height() * 0.31);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(option.palette.color(QPalette::HighlightedText), 1.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(tick);
}

void PaintDot(QPainter& painter, const QStyleOption& option, const QRectF& box) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::HighlightedText));
    painter.drawEllipse(box.center(), box.width() * 0.2, box.height() * 0.2);
}

}  // namespace

ZolvStyle::ZolvStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void ZolvStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (element != PE_IndicatorRadioButton && element != PE_IndicatorCheckBox) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const bool round = element == PE_IndicatorRadioButton;
    const bool on = option->state.testFlag(State_On);
    const QRectF box = QRectF(option->rect).adjusted(1, 1, -1, -1);
    QPainterPath outline;
    if (round) {
        outline.addEllipse(box);
    } else {
        outline.addRoundedRect(box, 2.5, 2.5);
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    PaintOutline(*painter, *option, outline, on);
    if (on && round) PaintDot(*painter, *option, box);
    if (on && !round) PaintTick(*painter, *option, box);
    painter->restore();
}

}  // namespace zolv
