#include "desktop/zolv_style.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

#include "desktop/colours.h"

namespace zolv {
namespace {

constexpr double kRound = 4;     // radius of the corners
constexpr double kHandle = 7;    // radius of a slider's handle
constexpr double kGroove = 2;    // half the height of its groove
constexpr int kCaptionRoom = 6;  // between the caption of a group, its rule, and what stands below

bool Is(const QStyleOption& option, QStyle::StateFlag flag) { return option.state.testFlag(flag); }

bool IsFaulty(const QWidget* widget) { return widget != nullptr && widget->property(kFaultyProperty).toBool(); }

/// The thin lines around and between things.
QColor RuleColour(const QPalette& palette) {
    return Blend(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.16);
}

/// The edge of what can be used: a little stronger than a rule.
QColor EdgeColour(const QPalette& palette) {
    return Blend(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.38);
}

/// A painter that smoothes, as it was before at the end.
class Smooth {
public:
    explicit Smooth(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~Smooth() { painter_.restore(); }
    Smooth(const Smooth&) = delete;
    Smooth& operator=(const Smooth&) = delete;

private:
    QPainter& painter_;
};

/// A flat panel with round corners: the ground of a button, a list, a box.
void PaintPanel(QPainter& painter, const QRect& rect, const QColor& ground, const QColor& edge, double width) {
    const Smooth smooth(painter);
    painter.setPen(QPen(edge, width));
    painter.setBrush(ground);
    const double inset = width / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), kRound, kRound);
}

/// @param faulty  whether what is picked is to be mended
void PaintButton(QPainter& painter, const QStyleOption& option, bool faulty = false) {
    const QPalette& palette = option.palette;
    const bool enabled = Is(option, QStyle::State_Enabled);
    const QColor accent = palette.color(QPalette::Highlight);
    QColor ground = palette.color(enabled ? QPalette::Button : QPalette::Window);
    if (enabled && Is(option, QStyle::State_Sunken)) {
        ground = Blend(accent, ground, 0.22);
    } else if (enabled && Is(option, QStyle::State_MouseOver)) {
        ground = Blend(accent, ground, 0.09);
    }
    const bool focus = enabled && Is(option, QStyle::State_HasFocus);
    QColor edge = enabled ? EdgeColour(palette) : RuleColour(palette);
    if (focus) edge = accent;
    if (faulty) edge = FaultColour(palette);
    PaintPanel(painter, option.rect, ground, edge, focus || faulty ? 2 : 1);
}

/// @param faulty  whether what stands in the box is to be mended
void PaintBox(QPainter& painter, const QStyleOption& option, bool faulty) {
    const QPalette& palette = option.palette;
    const bool enabled = Is(option, QStyle::State_Enabled);
    const bool focus = enabled && Is(option, QStyle::State_HasFocus);
    QColor edge = enabled ? EdgeColour(palette) : RuleColour(palette);
    if (focus) edge = palette.color(QPalette::Highlight);
    if (faulty) edge = FaultColour(palette);
    PaintPanel(painter, option.rect, palette.color(enabled ? QPalette::Base : QPalette::Window), edge,
               focus || faulty ? 2 : 1);
}

/// An arrow that points down, around `centre`.
void PaintArrow(QPainter& painter, const QStyleOption& option, const QPointF& centre) {
    const Smooth smooth(painter);
    const auto group = Is(option, QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    painter.setPen(QPen(option.palette.color(group, QPalette::ButtonText), 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawPolyline(
        QPolygonF({centre + QPointF(-3.5, -1.75), centre + QPointF(0, 1.75), centre + QPointF(3.5, -1.75)}));
}

/// The part of the groove that leads to the handle is filled. The handle is light with a dark ground around it and has
/// the accent as its edge, so that it stands out of the groove in both themes.
void PaintSlider(QPainter& painter, const QStyleOptionSlider& option, const QPointF& handle) {
    const Smooth smooth(painter);
    const QPalette& palette = option.palette;
    const bool enabled = Is(option, QStyle::State_Enabled);
    const QColor accent = enabled ? palette.color(QPalette::Highlight) : EdgeColour(palette);
    const QRectF groove(option.rect.left() + kHandle, handle.y() - kGroove, option.rect.width() - 2 * kHandle,
                        2 * kGroove);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Blend(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.22));
    painter.drawRoundedRect(groove, kGroove, kGroove);
    const bool rightward = !option.upsideDown;
    painter.setBrush(accent);
    painter.drawRoundedRect(rightward ? QRectF(groove.topLeft(), QPointF(handle.x(), groove.bottom()))
                                      : QRectF(QPointF(handle.x(), groove.top()), groove.bottomRight()),
                            kGroove, kGroove);
    if (enabled && Is(option, QStyle::State_HasFocus)) {
        QColor halo = accent;
        halo.setAlphaF(0.3F);
        painter.setBrush(halo);
        painter.drawEllipse(handle, kHandle + 2, kHandle + 2);
    }
    const bool held = Is(option, QStyle::State_Sunken) || Is(option, QStyle::State_MouseOver);
    const QColor light = IsDark(palette) ? palette.color(QPalette::WindowText) : palette.color(QPalette::Base);
    painter.setPen(QPen(accent, 2));
    painter.setBrush(enabled && held ? accent : enabled ? light : palette.color(QPalette::Window));
    painter.drawEllipse(handle, kHandle - 1, kHandle - 1);
}

/// The tab in front is underlined; the others are words.
void PaintTab(QPainter& painter, const QStyleOptionTab& option) {
    const QPalette& palette = option.palette;
    const bool chosen = Is(option, QStyle::State_Selected);
    if (!chosen && Is(option, QStyle::State_MouseOver)) {
        painter.fillRect(option.rect.adjusted(0, 0, 0, -1),
                         Blend(palette.color(QPalette::Highlight), palette.color(QPalette::Window), 0.09));
    }
    if (!chosen) return;
    constexpr int kUnderline = 3;
    QRect line = option.rect;
    line.setTop(line.bottom() - kUnderline + 1);
    painter.fillRect(line, palette.color(QPalette::Highlight));
}

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

/// A group's caption, and the rule below it.
void PaintGroup(QPainter& painter, const QStyleOptionGroupBox& option, const QWidget& group) {
    const QFont font = Bold(group.font());
    const int height = QFontMetrics(font).height();
    painter.save();
    painter.setFont(font);
    painter.setPen(option.palette.color(QPalette::WindowText));
    painter.drawText(QRect(option.rect.topLeft(), QSize(option.rect.width(), height)),
                     static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextShowMnemonic, option.text);
    painter.fillRect(QRect(option.rect.left(), option.rect.top() + height + kCaptionRoom / 2, option.rect.width(), 1),
                     RuleColour(option.palette));
    painter.restore();
}

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

/// A check box, or a round one of which one is chosen.
void PaintIndicator(QPainter& painter, const QStyleOption& option, bool round) {
    const Smooth smooth(painter);
    const bool on = Is(option, QStyle::State_On);
    const QRectF box = QRectF(option.rect).adjusted(1, 1, -1, -1);
    QPainterPath outline;
    if (round) {
        outline.addEllipse(box);
    } else {
        outline.addRoundedRect(box, 2.5, 2.5);
    }
    PaintOutline(painter, option, outline, on);
    if (on && round) PaintDot(painter, option, box);
    if (on && !round) PaintTick(painter, option, box);
}

}  // namespace

ZolvStyle::ZolvStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void ZolvStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    switch (element) {
        case PE_IndicatorRadioButton:
        case PE_IndicatorCheckBox: PaintIndicator(*painter, *option, element == PE_IndicatorRadioButton); return;
        case PE_PanelButtonCommand: PaintButton(*painter, *option); return;
        case PE_FrameTabBarBase:
            painter->fillRect(QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1),
                              RuleColour(option->palette));
            return;
        case PE_PanelLineEdit:
            if (qstyleoption_cast<const QStyleOptionFrame*>(option)->lineWidth > 0) {
                PaintBox(*painter, *option, IsFaulty(widget));
                return;
            }
            break;
        default: break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ZolvStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    if (element == CE_TabBarTabShape) {
        PaintTab(*painter, *qstyleoption_cast<const QStyleOptionTab*>(option));
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void ZolvStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const {
    if (control == CC_Slider) {
        const auto& slider = *qstyleoption_cast<const QStyleOptionSlider*>(option);
        const QRectF handle = subControlRect(CC_Slider, option, SC_SliderHandle, widget);
        PaintSlider(*painter, slider, {handle.center().x(), QRectF(option->rect).center().y()});
    } else if (control == CC_ComboBox && !qstyleoption_cast<const QStyleOptionComboBox*>(option)->editable) {
        PaintButton(*painter, *option, IsFaulty(widget));
        const QRectF arrow = subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
        PaintArrow(*painter, *option, arrow.center());
    } else if (control == CC_GroupBox && widget != nullptr) {
        PaintGroup(*painter, *qstyleoption_cast<const QStyleOptionGroupBox*>(option), *widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

int ZolvStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;  // buttons are plain in dialogs, too
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

int ZolvStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    if (metric == PM_HeaderMargin)
        return QProxyStyle::pixelMetric(PM_FocusFrameHMargin, option, widget) + 1;  // as a cell
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QRect ZolvStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const {
    if (control == CC_GroupBox && widget != nullptr) {
        const int height = QFontMetrics(Bold(widget->font())).height();
        QRect rect = option->rect;
        if (part == SC_GroupBoxContents || part == SC_GroupBoxFrame) {
            rect.setTop(rect.top() + height + kCaptionRoom);
            return rect;
        }
        if (part == SC_GroupBoxLabel) {
            rect.setHeight(height);
            return rect;
        }
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

}  // namespace zolv
