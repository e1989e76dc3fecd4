#include "desktop/balance_bar.h"

#include <QPainter>
#include <algorithm>
#include <string>

#include "aero/aero_page.h"
#include "desktop/colours.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "fields/all_windows.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr int kBarHeight = 8;
constexpr double kMark = 6;  // radius

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

}  // namespace

BalanceBar::BalanceBar(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("BalanceBar"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void BalanceBar::Refresh() {
    const QFontMetrics metrics(Bold(font()));
    wordWidth_ = 0;
    for (const std::string& word : {words["Understeer"], words["Neutral"], words["Oversteer"]}) {
        wordWidth_ = std::max(wordWidth_, metrics.horizontalAdvance(ToQt(word)));
    }
    setAccessibleName(ToQt(Zolv.Aero_AeroDistribution.ToolTip()));
    updateGeometry();
    update();
}

QSize BalanceBar::sizeHint() const { return {100 + kMargin + wordWidth_, fontMetrics().height() + kGap / 2}; }

void BalanceBar::paintEvent(QPaintEvent*) {
    const BalanceMarks marks = PresentBalanceMarks();
    const QColor ink = TextColour(Zolv.Aero_AeroDistribution.Colour(), palette());
    const double middle = height() / 2.0;
    const QRectF bar(kMark, middle - kBarHeight / 2.0, width() - wordWidth_ - kMargin - 2 * kMark, kBarHeight);
    const auto at = [&bar](double share) { return bar.left() + share * bar.width(); };
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Blend(palette().color(QPalette::WindowText), palette().color(QPalette::Window), 0.2));
    painter.drawRoundedRect(bar, kBarHeight / 2.0, kBarHeight / 2.0);
    painter.setBrush(TextColour(kDarkGreen, palette()));
    painter.drawRect(QRectF(QPointF(at(marks.BandFrom), bar.top()), QPointF(at(marks.BandTo), bar.bottom())));
    if (marks.Here) {
        painter.setPen(QPen(palette().color(QPalette::Window), 2));
        painter.setBrush(ink);
        painter.drawEllipse(QPointF(at(*marks.Here), middle), kMark, kMark);
    }
    painter.setFont(Bold(font()));
    painter.setPen(ink);
    painter.drawText(QRectF(width() - wordWidth_, 0, wordWidth_, height()), Qt::AlignRight | Qt::AlignVCenter,
                     ToQt(Zolv.Aero_AeroDistribution.ToolTip()));
}

}  // namespace zolv
