#include "desktop/run_table.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <algorithm>
#include <numeric>

#include "desk/held.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/word_breaks.h"
#include "gearing/run_columns.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr int kGear = 3;        // of the run's columns
constexpr int kTimeLost = -1;   // none of the run's
constexpr int kTimeLostAt = 2;  // behind the speed
constexpr int kCellRoom = 10;   // beside the text of a cell

QString HeadOf(const RunColumn& column) {
    const QString title = WithBreaks(ToQt(column.Title));
    return column.Unit.empty() ? title : title + QStringLiteral("\n[") + ToQt(column.Unit) + u']';
}

/// What a column shows: a column of the run, or where a set-up is held, how much later than in its run the speed is
/// reached.
int ContentOf(int column) {
    if (desk.Held == nullptr || column < kTimeLostAt) return column;
    return column == kTimeLostAt ? kTimeLost : column - 1;
}

std::vector<RunColumn> ShownColumns() {
    std::vector<RunColumn> columns = RunColumns();
    if (desk.Held != nullptr) columns.insert(columns.begin() + kTimeLostAt, {words["TimeLost"], "s"});
    return columns;
}

}  // namespace

void RunModel::Refresh() {
    if (const int columns = static_cast<int>(ShownColumns().size()); columns != columns_) {
        beginResetModel();
        columns_ = columns;
        endResetModel();
    }
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

int RunModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns_; }

QVariant RunModel::data(const QModelIndex& index, int role) const {
    if (index.row() >= RowsOfRun()) return {};
    const int content = ContentOf(index.column());
    switch (role) {
        case Qt::DisplayRole:
            return ToQt(content == kTimeLost ? TimeLostAtRow(index.row()) : RunNumber(index.row(), content));
        case Qt::TextAlignmentRole: return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        case Qt::BackgroundRole:
            if (IsGearChange(index.row())) return GearTint(GearOfRow(index.row()), 0.3, QGuiApplication::palette());
            if (content == kGear) return GearTint(GearOfRow(index.row()), 0.14, QGuiApplication::palette());
            return {};
        default: return {};
    }
}

QVariant RunModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return HeadOf(ShownColumns()[static_cast<std::size_t>(section)]);
}

RunTable::RunTable(QWidget* parent) : CopiedTable(parent) {
    setModel(&model_);
    setSelectionBehavior(SelectItems);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignBottom | Qt::Alignment(Qt::TextWordWrap));
}

void RunTable::SetStale() {
    stale_ = true;
    if (isVisible()) Fill();
}

void RunTable::showEvent(QShowEvent* event) {
    CopiedTable::showEvent(event);
    if (stale_) Fill();
}

void RunTable::resizeEvent(QResizeEvent* event) {
    CopiedTable::resizeEvent(event);
    SpreadColumns();
}

void RunTable::changeEvent(QEvent* event) {
    CopiedTable::changeEvent(event);
    if (event->type() == QEvent::FontChange) MeasureColumns();
}

void RunTable::Fill() {
    stale_ = false;
    model_.Refresh();
    MeasureColumns();
}

void RunTable::MeasureColumns() {
    const QFontMetrics head = horizontalHeader()->fontMetrics();
    whole_.clear();
    narrowest_.clear();
    for (const RunColumn& column : ShownColumns()) {
        const bool isGear = ContentOf(static_cast<int>(narrowest_.size())) == kGear;
        const int number = fontMetrics().horizontalAdvance(isGear ? QStringLiteral("8") : QStringLiteral("88888"));
        const int unit = head.horizontalAdvance(QLatin1Char('[') + ToQt(column.Unit) + QLatin1Char(']'));
        const QString title = ToQt(column.Title);
        whole_.push_back(std::max({number, unit, WidestPiece(head, title)}) + kCellRoom);
        narrowest_.push_back(std::max({number, unit, WidestPiece(head, WithBreaks(title))}) + kCellRoom);
    }
    SpreadColumns();
}

/// Words are broken where the columns need it. What they leave of the width goes to all of them. The head is as high as
/// its titles need.
void RunTable::SpreadColumns() {
    constexpr int kAnyHeight = 1000;
    const QFontMetrics head = horizontalHeader()->fontMetrics();
    const std::vector<RunColumn> titles = ShownColumns();
    const int room = viewport()->width();
    const bool fits = std::accumulate(whole_.begin(), whole_.end(), 0) <= room;
    const std::vector<int>& least = fits ? whole_ : narrowest_;
    int left = room - std::accumulate(least.begin(), least.end(), 0);
    int height = 0;
    for (std::size_t column = 0; column < least.size(); ++column) {
        const int share = std::max(0, left / static_cast<int>(least.size() - column));
        left -= share;
        const int width = least[column] + share;
        setColumnWidth(static_cast<int>(column), width);
        const QRect cell(0, 0, width - kCellRoom, kAnyHeight);
        height = std::max(height, head.boundingRect(cell, Qt::TextWordWrap, HeadOf(titles[column])).height());
    }
    horizontalHeader()->setFixedHeight(height + kGap);
}

}  // namespace zolv
