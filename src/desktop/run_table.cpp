#include "desktop/run_table.h"

#include <QScrollBar>
#include <QTextCursor>
#include <QTextOption>
#include <algorithm>
#include <vector>

#include "desktop/texts_of_qt.h"

namespace zolv {
namespace {

constexpr double kColumnGap = 18;

/// The title and the longest text of each column.
struct Column {
    QStringView title, longest;
};

std::vector<Column> ColumnsOf(const QString& text) {
    std::vector<Column> columns;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        std::size_t i = 0;
        for (const QStringView cell : line.split(u'\t')) {
            if (i == columns.size()) columns.push_back({cell, cell});
            if (cell.size() > columns[i].longest.size()) columns[i].longest = cell;
            ++i;
        }
    }
    return columns;
}

}  // namespace

RunTable::RunTable(const TextBox& field, QWidget* parent) : QPlainTextEdit(parent), field_(field) {
    setReadOnly(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
}

void RunTable::SetStale() {
    stale_ = true;
    if (isVisible()) Fill();
}

void RunTable::showEvent(QShowEvent* event) {
    QPlainTextEdit::showEvent(event);
    if (stale_) Fill();
}

void RunTable::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) SetTabStops(toPlainText());
}

void RunTable::Fill() {
    stale_ = false;
    QString text = ToQt(field_.Text());
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    const int caret = textCursor().position();
    const int line = verticalScrollBar()->value();
    SetTabStops(text);
    setPlainText(text);
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::min(caret, static_cast<int>(text.size())));
    setTextCursor(cursor);
    verticalScrollBar()->setValue(line);
}

void RunTable::SetTabStops(const QString& text) {
    QList<QTextOption::Tab> stops;
    double position = 0;
    for (const Column& column : ColumnsOf(text)) {
        const int width = std::max(fontMetrics().horizontalAdvance(column.title.toString()),
                                   fontMetrics().horizontalAdvance(column.longest.toString()));
        position += width;
        // The first column stands left; the others end under the end of their title.
        if (position > width) stops.append(QTextOption::Tab(position, QTextOption::RightTab));
        position += kColumnGap;
    }
    QTextOption option = document()->defaultTextOption();
    option.setTabs(stops);
    document()->setDefaultTextOption(option);
}

}  // namespace zolv
