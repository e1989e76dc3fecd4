#include "desktop/run_table.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>

#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "gearing/run_columns.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr int kGearColumn = 3;
constexpr int kRowHeight = 18;
constexpr int kCellRoom = 10;  // beside the text of a cell

QString HeadOf(const RunColumn& column) {
    return ToQt(column.Unit.empty() ? column.Title : column.Title + "\n[" + column.Unit + ']');
}

/// The widest word of a title: it breaks between words.
int WidestWord(const QFontMetrics& metrics, const QString& title) {
    int width = 0;
    for (const QString& word : title.split(QLatin1Char(' '))) width = std::max(width, metrics.horizontalAdvance(word));
    return width;
}

}  // namespace

void RunModel::Refresh() {
    const int rows = RowsOfRun();
    if (rows < rows_) {
        beginRemoveRows({}, rows, rows_ - 1);
        rows_ = rows;
        endRemoveRows();
    } else if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    }
    if (rows_ > 0) Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int RunModel::columnCount(const QModelIndex& parent) const {
    static const int columns = static_cast<int>(RunColumns().size());
    return parent.isValid() ? 0 : columns;
}

QVariant RunModel::data(const QModelIndex& index, int role) const {
    if (index.row() >= RowsOfRun()) return {};
    switch (role) {
        case Qt::DisplayRole: return ToQt(RunNumber(index.row(), index.column()));
        case Qt::TextAlignmentRole: return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        case Qt::BackgroundRole:
            if (IsGearChange(index.row())) return GearTint(GearOfRow(index.row()), 0.3, QGuiApplication::palette());
            if (index.column() == kGearColumn)
                return GearTint(GearOfRow(index.row()), 0.14, QGuiApplication::palette());
            return {};
        default: return {};
    }
}

QVariant RunModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return HeadOf(RunColumns()[static_cast<std::size_t>(section)]);
}

RunTable::RunTable(QWidget* parent) : QTableView(parent) {
    setModel(&model_);
    setWordWrap(false);
    setShowGrid(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setSelectionBehavior(SelectItems);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(std::max(kRowHeight, fontMetrics().height() + 2));
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignBottom | Qt::Alignment(Qt::TextWordWrap));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
}

void RunTable::SetStale() {
    stale_ = true;
    if (isVisible()) Fill();
}

void RunTable::SetGreyed(bool greyed) {
    QPalette colours;
    if (greyed) colours.setColor(QPalette::Text, palette().color(QPalette::Disabled, QPalette::Text));
    setPalette(colours);
}

void RunTable::Copy() const {
    QModelIndexList cells = selectionModel()->selectedIndexes();
    std::sort(cells.begin(), cells.end());  // by row, then by column
    QString text;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (i > 0) text += QLatin1Char(cells[i].row() == cells[i - 1].row() ? '\t' : '\n');
        text += cells[i].data().toString();
    }
    if (!cells.isEmpty()) QGuiApplication::clipboard()->setText(text);
}

void RunTable::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    if (stale_) Fill();
}

void RunTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    SpreadColumns();
}

void RunTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) MeasureColumns();
}

void RunTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        Copy();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void RunTable::contextMenuEvent(QContextMenuEvent* event) {
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

void RunTable::Fill() {
    stale_ = false;
    model_.Refresh();
    MeasureColumns();
}

void RunTable::MeasureColumns() {
    const QFontMetrics head = horizontalHeader()->fontMetrics();
    narrowest_.clear();
    for (const RunColumn& column : RunColumns()) {
        const bool isGear = static_cast<int>(narrowest_.size()) == kGearColumn;
        const int number = fontMetrics().horizontalAdvance(isGear ? QStringLiteral("8") : QStringLiteral("88888"));
        const int title = WidestWord(head, ToQt(column.Title));
        const int unit = head.horizontalAdvance(QLatin1Char('[') + ToQt(column.Unit) + QLatin1Char(']'));
        narrowest_.push_back(std::max({number, title, unit}) + kCellRoom);
    }
    SpreadColumns();
}

/// What the columns leave of the width goes to all of them. The head is as high as its titles need.
void RunTable::SpreadColumns() {
    constexpr int kAnyHeight = 1000;
    const QFontMetrics head = horizontalHeader()->fontMetrics();
    const std::vector<RunColumn> titles = RunColumns();
    int left = viewport()->width();
    for (const int width : narrowest_) left -= width;
    int height = 0;
    for (std::size_t column = 0; column < narrowest_.size(); ++column) {
        const int share = std::max(0, left / static_cast<int>(narrowest_.size() - column));
        left -= share;
        const int width = narrowest_[column] + share;
        setColumnWidth(static_cast<int>(column), width);
        const QRect room(0, 0, width - kCellRoom, kAnyHeight);
        height = std::max(height, head.boundingRect(room, Qt::TextWordWrap, HeadOf(titles[column])).height());
    }
    horizontalHeader()->setFixedHeight(height + kGap);
}

}  // namespace zolv
