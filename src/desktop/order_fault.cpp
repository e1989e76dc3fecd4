#include "desktop/order_fault.h"

#include <QLineEdit>
#include <QPainter>
#include <QStringList>
#include <functional>

#include "desktop/binding.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "fields/all_windows.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"

namespace zolv {
namespace {

constexpr int kGearingPage = 1;

/// "Speeds have NOT been updated: The ratio for 2nd cannot be shorter than the ratio for 1st", and so on for each
/// fault.
QString Headline() {
    const OrderWords said = OrderWordsOf(gearing.From());
    QString headline = ToQt(said.notUpdated);
    while (!headline.isEmpty() && headline.back().isPunct()) headline.chop(1);  // some languages go on with a comma
    QStringList sentences;
    for (const int gear : gearing.WrongOrder) sentences.append(ToQt(OrderSentence(said, gear)));
    return headline + QStringLiteral(": ") + sentences.join(QStringLiteral("; "));
}

}  // namespace

void OnOrderChanged(Binding& binding, const std::function<void()>& paint) {
    // The report goes onto this plot, and so does the first drawing that is right again.
    binding.OnChanged(Zolv.TorquePlot, paint);
    for (Panel* page : {&Zolv.Ratios.Frame, &Zolv.Speeds.Frame}) binding.OnChanged(*page, paint);
}

OrderFaultLine::OrderFaultLine(Binding& binding, QWidget* parent) : QPushButton(parent), binding_(binding) {
    setObjectName(QStringLiteral("OrderFault"));
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QPushButton::clicked, this, [this] { LeadThere(); });
    OnOrderChanged(binding, [this] { Refresh(); });
}

void OrderFaultLine::Refresh() {
    const bool faulty = !gearing.WrongOrder.empty();
    setVisible(faulty);
    if (!faulty) return;
    setText(Headline());
    setToolTip(text());
    setAccessibleName(text());
    updateGeometry();
}

QSize OrderFaultLine::sizeHint() const {
    constexpr int kRounding = 2;  // without it words are elided that just fit
    return {fontMetrics().horizontalAdvance(text()) + 2 * kMargin + kRounding, fontMetrics().height() + kGap};
}

void OrderFaultLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = FaultColour(palette());
    // A darker ground would leave its words too little contrast.
    painter.setPen(QPen(ink, hasFocus() || underMouse() ? 2 : 1));
    painter.setBrush(Blend(ink, palette().color(QPalette::Window), 0.08));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    const QRect room = rect().adjusted(kMargin, 0, -kMargin, 0);
    painter.setPen(ink);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
}

void OrderFaultLine::LeadThere() {
    const int gear = gearing.WrongOrder.front() + 1;
    const Field& box = Zolv.GearingOf(gearing.RatiosMode ? 0 : 1).Input[gear];
    binding_.Act([] { Zolv.Select_Page.Pick(kGearingPage); });
    if (auto* const edit = window()->findChild<QLineEdit*>(ToQt(box.Name()))) {
        edit->setFocus(Qt::OtherFocusReason);
        edit->selectAll();
    }
}

}  // namespace zolv
