#pragma once

#include <QPlainTextEdit>

#include "fields/kinds.h"

namespace zolv {

/// Shows the table of an acceleration run: the rows of a text box, whose columns are told apart by tabs, under their
/// titles. It can be selected and copied. The text is taken over only while the table is in view, so that one that is
/// hidden costs nothing; caret and scroll position stay where the reader put them.
class RunTable : public QPlainTextEdit {
public:
    explicit RunTable(const TextBox& field, QWidget* parent = nullptr);

    /// The field holds another text.
    void SetStale();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Fill();
    void SetTabStops(const QString& text);

    const TextBox& field_;
    bool stale_ = true;
};

}  // namespace zolv
