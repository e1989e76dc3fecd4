#include "desktop/work_row.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "desktop/page_parts.h"
#include "desktop/value_label.h"

namespace zolv {

void FillWorkRow(Binding& binding, QHBoxLayout& row, const WorkRow& work) {
    QWidget* const parent = row.parentWidget();
    auto* const bar = new QProgressBar(parent);
    bar->setRange(0, 1000);
    bar->setTextVisible(false);
    bar->setFixedHeight(8);
    QSizePolicy policy = bar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    bar->setSizePolicy(policy);
    row.addWidget(&work.start);
    row.addWidget(&work.stop);
    row.addWidget(bar, 1);
    row.addWidget(MakeFigure(binding, work.progress, parent, {QStringLiteral("100 %")}));
    binding.OnChanged(work.progress, [&stop = work.stop, running = work.running, done = work.done, bar] {
        const bool runs = running();
        stop.setEnabled(runs);
        bar->setVisible(runs);
        bar->setValue(qRound(done() * 1000));
    });
}

}  // namespace zolv
