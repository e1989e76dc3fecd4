#include "desktop/saved_note.h"

#include <QPushButton>

#include "desktop/texts_of_qt.h"
#include "files/options_file.h"
#include "text/words.h"

namespace zolv {

SavedNote::SavedNote(const QPushButton& save, QWidget* parent) : QLabel(parent) {
    constexpr int kShown_ms = 4000;
    setObjectName(QStringLiteral("OptionsSaved"));
    shown_.setSingleShot(true);
    shown_.setInterval(kShown_ms);
    connect(&shown_, &QTimer::timeout, this, &QLabel::clear);
    connect(&save, &QPushButton::clicked, this, [this] {
        if (OptionsChanged()) return;
        setText(ToQt(words["OptionsSaved"]));
        shown_.start();
    });
}

}  // namespace zolv
