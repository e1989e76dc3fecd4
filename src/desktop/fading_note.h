#pragma once

#include <QLabel>
#include <QTimer>

namespace zolv {

/// A line that says for a while that something has been done, and then fades. Nobody has to click it away.
class FadingNote : public QLabel {
public:
    explicit FadingNote(QWidget* parent);

    /// Shows a sentence, in place of the one before it. A screen reader reads it out.
    void Say(const QString& sentence);

private:
    void Fade();

    QTimer shown_;
};

}  // namespace zolv
