#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

namespace zolv {

/// Shows a picture from a file in its own proportions, as large as there is room. A file that holds no picture shows
/// the substitute, or nothing.
class PictureView : public QWidget {
public:
    explicit PictureView(QWidget* parent = nullptr) : QWidget(parent) {}

    void SetPath(const QString& path);

    /// The name of a file beside that of SetPath, for the case that this one holds no picture.
    void SetSubstitute(const QString& name) { substitute_ = name; }

    QSize sizeHint() const override { return {300, 200}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
    QString substitute_;
};

}  // namespace zolv
