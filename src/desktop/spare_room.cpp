#include "desktop/spare_room.h"

namespace zolv {

SpareRoom::SpareRoom(QWidget* content, int least, QWidget* parent) : QWidget(parent), content_(content), least_(least) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    content->setParent(this);
}

void SpareRoom::resizeEvent(QResizeEvent*) {
    content_->setGeometry(contentsRect());
    content_->setVisible(content_->height() >= least_);
}

}  // namespace zolv
