#include "desktop/fault_mark.h"

#include <QLabel>

#include "desktop/colours.h"
#include "desktop/zolv_style.h"

namespace zolv {

QLabel* MakeFaultSentence(QWidget* parent) {
    constexpr double kSmaller = 0.9;
    auto* const sentence = new QLabel(parent);
    sentence->setTextFormat(Qt::PlainText);
    sentence->setWordWrap(true);
    sentence->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    QFont font = sentence->font();
    font.setPointSizeF(font.pointSizeF() * kSmaller);
    sentence->setFont(font);
    QPalette ink;
    ink.setColor(QPalette::WindowText, FaultColour(parent->palette()));
    sentence->setPalette(ink);
    sentence->hide();
    return sentence;
}

int HeightOfFaultSentence(const QLabel& sentence, const QString& sample) {
    constexpr QRect kAnyRoom(0, 0, 10000, 1000);
    return sentence.fontMetrics().boundingRect(kAnyRoom, Qt::AlignLeft, sample + u'\n' + sample).height();
}

void MarkFault(QWidget& control, const QString& sentence) {
    const bool faulty = !sentence.isEmpty();
    control.setAccessibleDescription(sentence);
    if (control.property(kFaultyProperty).toBool() == faulty) return;
    control.setProperty(kFaultyProperty, faulty);
    control.update();
}

}  // namespace zolv
