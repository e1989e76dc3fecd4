#include "desktop/text_table.h"

#include <QHeaderView>
#include <algorithm>

#include "desktop/texts_of_qt.h"
#include "fields/kinds.h"

namespace zolv {

void TextTableModel::SetRows(std::vector<QStringList> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int TextTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : std::max(0, static_cast<int>(rows_.size()) - 1);
}

int TextTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() || rows_.empty() ? 0 : static_cast<int>(rows_.front().size());
}

QVariant TextTableModel::data(const QModelIndex& index, int role) const {
    const QStringList& row = rows_[static_cast<std::size_t>(index.row()) + 1];
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole: return row.value(index.column());
        case Qt::TextAlignmentRole:
            return QVariant((index.column() == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        default: return {};
    }
}

QVariant TextTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || rows_.empty()) return {};
    if (role == Qt::DisplayRole) return rows_.front().value(section);
    if (role == Qt::TextAlignmentRole)
        return QVariant((section == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags TextTableModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return OnEdit ? usual | Qt::ItemIsEditable : usual;
}

bool TextTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!OnEdit || !index.isValid() || role != Qt::EditRole) return false;
    OnEdit(index.row(), index.column(), value.toString());
    return true;
}

TextTable::TextTable(QWidget* parent) : CopiedTable(parent) {
    setModel(&model_);
    setSelectionBehavior(SelectItems);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setMinimumSectionSize(40);
    setFocusPolicy(Qt::NoFocus);
}

QSize TextTable::sizeHint() const { return {500, 170}; }

void TextTable::KeepRoomFor(int rows) {
    setMinimumHeight((rows + 2) * verticalHeader()->defaultSectionSize() + 2 * frameWidth());
}

void TextTable::Show(const TextBox& field) {
    field_ = &field;
    stale_ = true;
    if (isVisible()) Fill();
}

/// The reader stays at the cell where he was.
void TextTable::Fill() {
    stale_ = false;
    const QModelIndex at = currentIndex();
    const int row = at.row();
    const int column = at.column();
    model_.SetRows(RowsOf(*field_));
    resizeColumnsToContents();
    setFocusPolicy(model_.rowCount() > 0 ? Qt::StrongFocus : Qt::NoFocus);  // an empty one has nothing to move to
    if (row >= 0 && row < model_.rowCount()) setCurrentIndex(model_.index(row, column));
}

std::vector<QStringList> TextTable::RowsOf(const TextBox& field) const {
    std::vector<QStringList> rows;
    for (const QString& line : ToQt(field.Text()).split(QLatin1String("\r\n"), Qt::SkipEmptyParts)) {
        rows.push_back(line.split(QLatin1Char('\t')));
    }
    return rows;
}

void TextTable::showEvent(QShowEvent* event) {
    CopiedTable::showEvent(event);
    if (stale_) Fill();
}

}  // namespace zolv
