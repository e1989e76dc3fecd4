#include "desktop/picture_view.h"

#include <QImageReader>
#include <QPainter>

#include "desktop/colours.h"
#include "desktop/picture_ground.h"

namespace zolv {

void PictureView::SetPath(const QString& path) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QImage picture = path.isEmpty() ? QImage() : reader.read();
    picture_ = QPixmap::fromImage(IsDark(palette()) ? OnGround(picture, palette().color(QPalette::Window)) : picture);
    update();
}

void PictureView::paintEvent(QPaintEvent*) {
    if (picture_.isNull()) return;
    const QSize size = picture_.size().scaled(this->size(), Qt::KeepAspectRatio);
    const QPoint corner((width() - size.width()) / 2, (height() - size.height()) / 2);
    // The painter's own scaling is coarse below half the size.
    const QPixmap fitted = picture_.scaled(size * devicePixelRatioF(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter(this).drawPixmap(QRect(corner, size), fitted);
}

}  // namespace zolv
