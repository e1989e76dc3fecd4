#pragma once

#include <QPushButton>
#include <functional>

class QTabBar;

namespace zolv {

class Binding;

/// What the windows say while the gears are in the wrong order: the figures of the gearing are older than what is set.
/// `paint` runs now and whenever that may have changed.
void OnOrderChanged(Binding& binding, const std::function<void()>& paint);

/// A line beside the tabs, and so at the top of every page: that figures have not been updated, and which gear is the
/// reason. A press leads to that gear's box.
class OrderFaultLine : public QPushButton {
public:
    OrderFaultLine(Binding& binding, QTabBar& tabs);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, 0}; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Refresh();
    void Place();
    void LeadThere();

    Binding& binding_;
    QTabBar& tabs_;
};

}  // namespace zolv
