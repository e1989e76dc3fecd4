#include "desktop/copied_table.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>

#include "desktop/texts_of_qt.h"
#include "text/words.h"

namespace zolv {

CopiedTable::CopiedTable(QWidget* parent) : QTableView(parent) {
    constexpr int kRowHeight = 18;
    setWordWrap(false);
    setShowGrid(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(std::max(kRowHeight, fontMetrics().height() + 2));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
}

void CopiedTable::SetGreyed(bool greyed) {
    QPalette colours;
    if (greyed) colours.setColor(QPalette::Text, palette().color(QPalette::Disabled, QPalette::Text));
    setPalette(colours);
}

void CopiedTable::Copy() const {
    QModelIndexList cells = selectionModel()->selectedIndexes();
    std::sort(cells.begin(), cells.end());  // by row, then by column
    QString text;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (i > 0) text += QLatin1Char(cells[i].row() == cells[i - 1].row() ? '\t' : '\n');
        text += cells[i].data().toString();
    }
    if (!cells.isEmpty()) QGuiApplication::clipboard()->setText(text);
}

void CopiedTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        Copy();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void CopiedTable::contextMenuEvent(QContextMenuEvent* event) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QModelIndex under = indexAt(event->pos());
    menu->addAction(ToQt(words["CopyEntry"]), QKeySequence::Copy, this, [this] { Copy(); })
        ->setEnabled(selectionModel()->hasSelection());
    menu->addAction(ToQt(words["CopyRowEntry"]), this,
                    [this, under] {
                        selectRow(under.row());
                        Copy();
                    })
        ->setEnabled(under.isValid());
    menu->addAction(ToQt(words["SelectAllEntry"]), QKeySequence::SelectAll, this, [this] { selectAll(); });
    menu->popup(event->globalPos());
}

}  // namespace zolv
