#include "desktop/beside_tabs.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QTabBar>
#include <algorithm>

#include "desktop/theme.h"

namespace zolv {

BesideTabs::BesideTabs(QTabBar& tabs) : QWidget(&tabs), tabs_(tabs), row_(new QHBoxLayout(this)) {
    row_->setContentsMargins(0, 0, kMargin, 0);
    row_->setSpacing(kGap);
    row_->addStretch(1);
    tabs.installEventFilter(this);
    Place();
}

void BesideTabs::Add(QWidget* widget) { row_->addWidget(widget); }

void BesideTabs::Place() {
    const int left = tabs_.count() == 0 ? 0 : tabs_.tabRect(tabs_.count() - 1).right() + kSection;
    setGeometry(left, 0, std::max(0, tabs_.width() - left), tabs_.height());
}

bool BesideTabs::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) Place();
    return QWidget::eventFilter(watched, event);
}

}  // namespace zolv
