#include "desktop/picture_view.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

#include "desktop/colours.h"
#include "desktop/picture_ground.h"

namespace zolv {
namespace {

/// No picture where the file holds none; one without its light plate on a dark ground.
QPixmap PictureIn(const QString& path, const QPalette& palette) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QImage picture = path.isEmpty() ? QImage() : reader.read();
    if (picture.isNull()) return {};
    return QPixmap::fromImage(IsDark(palette) ? OnGround(picture, palette.color(QPalette::Window)) : picture);
}

}  // namespace

void PictureView::SetPath(const QString& path) {
    picture_ = PictureIn(path, palette());
    if (picture_.isNull() && !path.isEmpty() && !substitute_.isEmpty()) {
        picture_ = PictureIn(QFileInfo(path).dir().filePath(substitute_), palette());
    }
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
