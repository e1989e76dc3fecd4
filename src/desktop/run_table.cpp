#include "desktop/run_table.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <algorithm>

#include "desk/held.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "gearing/run_columns.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr int kGear = 3;        // of the run's columns
constexpr int kTimeLost = -1;   // none of the run's
constexpr int kTimeLostAt = 2;  // behind the speed
constexpr int kCellRoom = 10;   // beside the text of a cell

QString HeadOf(const RunColumn& column) {
    return ToQt(column.Unit.empty() ? column.Title : column.Title + "\n[" + column.Unit + ']');
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

/// The widest word of a title: it breaks between words.
int WidestWord(const QFontMetrics& metrics, const QString& title) {
    int width = 0;
    for (const QString& word : title.split(QLatin1Char(' '))) width = std::max(width, metrics.horizontalAdvance(word));
    return width;
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
    narrowest_.clear();
    for (const RunColumn& column : ShownColumns()) {
        const bool isGear = ContentOf(static_cast<int>(narrowest_.size())) == kGear;
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
    const std::vector<RunColumn> titles = ShownColumns();
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
