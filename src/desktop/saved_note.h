#pragma once

#include <QLabel>
#include <QTimer>

class QPushButton;

namespace zolv {

/// A line that says for a while that the options have been saved, whenever `save` has done so. Where they could not be
/// saved, a message has said why, and the line stays empty.
class SavedNote : public QLabel {
public:
    SavedNote(const QPushButton& save, QWidget* parent);

private:
    QTimer shown_;
};

}  // namespace zolv
