#include "desktop/fading_note.h"

#include <QAccessible>
#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>

namespace zolv {

FadingNote::FadingNote(QWidget* parent) : QLabel(parent) {
    constexpr int kShown_ms = 4000;
    setTextFormat(Qt::PlainText);
    shown_.setSingleShot(true);
    shown_.setInterval(kShown_ms);
    connect(&shown_, &QTimer::timeout, this, &FadingNote::Fade);
}

void FadingNote::Say(const QString& sentence) {
    setGraphicsEffect(nullptr);  // a fading that is on its way ends with it
    setText(sentence);
    setAccessibleName(sentence);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    shown_.start();
}

void FadingNote::Fade() {
    constexpr int kFading_ms = 800;
    auto* const effect = new QGraphicsOpacityEffect(this);
    setGraphicsEffect(effect);
    auto* const fading = new QPropertyAnimation(effect, "opacity", effect);
    fading->setDuration(kFading_ms);
    fading->setStartValue(1.0);
    fading->setEndValue(0.0);
    connect(fading, &QPropertyAnimation::finished, this, [this] {
        clear();
        setGraphicsEffect(nullptr);
    });
    fading->start();
}

}  // namespace zolv
