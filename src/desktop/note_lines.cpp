#include "desktop/note_lines.h"

#include <QLabel>

namespace zolv {
namespace {

class NoteLines : public QLabel {
public:
    NoteLines(QWidget* parent, int lines) : QLabel(parent), lines_(lines) {
        setWordWrap(true);
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }

    /// A height that goes by the width would make a scroll area ask for more than its window has.
    bool hasHeightForWidth() const override { return false; }
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override {
        constexpr int kNarrowest = 120;
        return {kNarrowest, lines_ * fontMetrics().lineSpacing()};
    }

private:
    int lines_;
};

}  // namespace

QLabel* MakeNoteLines(Binding& binding, Label& field, QWidget* parent, int lines) {
    auto* const note = new NoteLines(parent, lines);
    binding.Bind(field, *note);
    return note;
}

}  // namespace zolv
