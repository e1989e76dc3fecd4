#include "desktop/picture_view.h"

#include <QImageReader>
#include <QPainter>

namespace zolv {

void PictureView::SetPath(const QString& path) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    picture_ = path.isEmpty() ? QPixmap() : QPixmap::fromImageReader(&reader);
    update();
}

void PictureView::paintEvent(QPaintEvent*) {
    if (picture_.isNull()) return;
    const QSize size = picture_.size().scaled(this->size(), Qt::KeepAspectRatio);
    const QPoint corner((width() - size.width()) / 2, (height() - size.height()) / 2);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(corner, size), picture_);
}

}  // namespace zolv
