#pragma once

#include <QPushButton>
#include <functional>

namespace zolv {

class Binding;

/// What the windows say while the gears are in the wrong order: the figures of the gearing are older than what is set.
/// `paint` runs now and whenever that may have changed.
void OnOrderChanged(Binding& binding, const std::function<void()>& paint);

/// A line at the top of every page: that figures have not been updated, and which gears are the reason. A press leads
/// to the first one's box.
class OrderFaultLine : public QPushButton {
public:
    OrderFaultLine(Binding& binding, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, 0}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Refresh();
    void LeadThere();

    Binding& binding_;
};

}  // namespace zolv
