#pragma once

#include <QWidget>

class QHBoxLayout;
class QTabBar;

namespace zolv {

/// The room right of the last tab, and so at the top of every page: what is added stands at its right end, and shrinks
/// where there is too little room.
class BesideTabs : public QWidget {
public:
    explicit BesideTabs(QTabBar& tabs);

    void Add(QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Place();

    QTabBar& tabs_;
    QHBoxLayout* row_;
};

}  // namespace zolv
