#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

namespace zolv {

/// Shows a picture from a file in its own proportions, as large as there is room. A file that holds no picture shows
/// nothing.
class PictureView : public QWidget {
public:
    explicit PictureView(QWidget* parent = nullptr) : QWidget(parent) {}

    void SetPath(const QString& path);

    QSize sizeHint() const override { return {300, 200}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
};

}  // namespace zolv
