#include "desktop/held_strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "desktop/binding.h"
#include "desktop/theme.h"
#include "fields/all_windows.h"

namespace zolv {
namespace {

/// Words that are cut where there is too little room for them, and then read in the tool tip.
class ShrinkingLabel : public QLabel {
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override {
        constexpr int kShortest = 60;
        return {std::min(kShortest, QLabel::minimumSizeHint().width()), QLabel::minimumSizeHint().height()};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignRight,
                         fontMetrics().elidedText(text(), Qt::ElideRight, width()));
    }
};

}  // namespace

HeldStrip::HeldStrip(Binding& binding, QWidget* parent) : QWidget(parent) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    auto* const words = new ShrinkingLabel(this);
    words->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    row->addWidget(words, 1);
    binding.Bind(Zolv.Label_Held, *words);
    binding.OnChanged(Zolv.Label_Held, [words] { words->setToolTip(words->text()); });
    for (Button* field : {&Zolv.HeldSwap, &Zolv.HeldRelease}) {
        auto* const button = new QPushButton(this);
        button->setFlat(true);
        button->setFocusPolicy(Qt::TabFocus);  // a press leaves the box that is being typed in
        row->addWidget(button);
        binding.Bind(*field, *button);
    }
}

}  // namespace zolv
