#pragma once

#include <QWidget>

namespace zolv {

/// The room that a layout has left. It asks for none, and shows what it holds where there is enough.
class SpareRoom : public QWidget {
public:
    /// @param least  the height from which `content` is shown
    SpareRoom(QWidget* content, int least, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* content_;
    int least_;
};

}  // namespace zolv
