#pragma once

#include <QWidget>

namespace zolv {

/// The balance of the air against that of the weight as a bar: the neutral band in its middle, a mark where the lift
/// lies, and the word for it beside.
class BalanceBar : public QWidget {
public:
    explicit BalanceBar(QWidget* parent = nullptr);

    /// The balance, its words or its colours have changed.
    void Refresh();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int wordWidth_ = 0;  // of the widest word
};

}  // namespace zolv
