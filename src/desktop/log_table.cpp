#include "desktop/log_table.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <algorithm>

#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "gearing/run_log_page.h"
#include "text/messages.h"

namespace zolv {
namespace {

constexpr int kEventColumn = 3;
constexpr int kBeforeColumn = 4;
constexpr int kRemarkColumn = 6;

bool IsWords(int column) { return column == kEventColumn || column == kRemarkColumn; }

/// An event's name; a target's, which is English on the pages, in the words in force.
QString EventName(const QString& cell) {
    const std::string caption = FromQt(cell) + ':';
    const std::string said = InWords(caption);
    return said == caption ? cell : ToQt(said).chopped(said.ends_with(':') ? 1 : 0);
}

QStringList Titles() {
    QStringList titles;
    for (const std::string& title : LogTitles()) titles << ToQt(title);
    return titles;
}

}  // namespace

void LogModel::Show(const QString& text, const QStringList& titles) {
    beginResetModel();
    titles_ = titles;
    lines_.clear();
    for (const QString& line : text.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts)) {
        lines_.push_back(line.split(QLatin1Char('\t')));
        lines_.back()[kEventColumn] = EventName(lines_.back()[kEventColumn]);
    }
    endResetModel();
}

int LogModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

int LogModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kLogCells);
}

QVariant LogModel::data(const QModelIndex& index, int role) const {
    const QStringList& line = lines_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DisplayRole: return line[index.column()];
        case Qt::TextAlignmentRole:
            return QVariant((IsWords(index.column()) ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        case Qt::BackgroundRole:
            if (!line[kBeforeColumn].isEmpty()) return QGuiApplication::palette().alternateBase();
            return {};
        default: return {};
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= titles_.size()) return {};
    if (role == Qt::DisplayRole) return titles_[section];
    if (role == Qt::TextAlignmentRole)
        return QVariant((IsWords(section) ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignBottom);
    return {};
}

LogTable::LogTable(QWidget* parent) : CopiedTable(parent) {
    setModel(&model_);
    setSelectionBehavior(SelectRows);
    setWordWrap(true);
    horizontalHeader()->setStretchLastSection(true);
}

void LogTable::Show(const QString& text) {
    model_.Show(text, Titles());
    resizeColumnsToContents();
    SpreadRows();
}

void LogTable::resizeEvent(QResizeEvent* event) {
    CopiedTable::resizeEvent(event);
    SpreadRows();
}

/// The remark has what the other columns leave, and wraps; what happens leaves it a third of the width.
void LogTable::SpreadRows() {
    const int event = sizeHintForColumn(kEventColumn);
    setColumnWidth(kEventColumn, std::min(event, std::max(event / 2 + kGap, viewport()->width() / 4)));
    resizeRowsToContents();
}

}  // namespace zolv
