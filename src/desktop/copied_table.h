#pragma once

#include <QTableView>

namespace zolv {

/// A table from which is copied: what is selected is copied as text, with tabs between the cells and a line for
/// each row, by key and by a menu.
class CopiedTable : public QTableView {
public:
    explicit CopiedTable(QWidget* parent = nullptr);

    /// The figures no longer follow from what is set: they are greyed.
    void SetGreyed(bool greyed);

    /// Puts the selected cells into the clipboard.
    void Copy() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};

}  // namespace zolv
