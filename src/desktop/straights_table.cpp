#include "desktop/straights_table.h"

#include <QKeyEvent>
#include <algorithm>
#include <set>

#include "desktop/binding.h"
#include "desktop/texts_of_qt.h"
#include "studies/straights_cells.h"
#include "text/words.h"

namespace zolv {

StraightsTable::StraightsTable(Binding& binding, TextBox& field, const Field& caption, QWidget* parent)
    : TextTable(parent), binding_(binding), field_(field) {
    Model().OnEdit = [this](int row, int column, const QString& text) { Edit(row, column, text); };
    binding.Bind(field, *this, &caption);
}

std::vector<QStringList> StraightsTable::RowsOf(const TextBox& field) const {
    const StraightsCells cells = CellsOfStraights(field.Text());
    const auto head = [](const std::string& title, const std::string& unit) {
        return ToQt(unit.empty() ? title : title + " [" + unit + ']');
    };
    std::vector<QStringList> rows{{ToQt(words["ColumnStraight"]), head(words["ColumnEntry"], cells.SpeedUnit),
                                   head(words["ColumnLength"], cells.LengthUnit)}};
    for (const auto& line : cells.Lines) rows.push_back({ToQt(line[0]), ToQt(line[1]), ToQt(line[2])});
    return rows;
}

void StraightsTable::Edit(int row, int column, const QString& text) {
    StraightsCells cells = CellsOfStraights(field_.Text());
    QString number = text.trimmed();
    if (column > 0) number.replace(QLatin1Char(','), QLatin1Char('.'));
    cells.Lines[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = FromQt(number);
    // The rows are made anew, once the box in which they were edited is closed.
    QMetaObject::invokeMethod(
        this, [this, cells] { binding_.Act([&] { field_.Enter(TextOfCells(cells)); }); }, Qt::QueuedConnection);
}

void StraightsTable::AddStraight() {
    StraightsCells cells = CellsOfStraights(field_.Text());
    cells.Lines.push_back({std::to_string(cells.Lines.size() + 1), "0", "500"});
    binding_.Act([&] { field_.Enter(TextOfCells(cells)); });
    const QModelIndex added = model()->index(model()->rowCount() - 1, 0);
    setCurrentIndex(added);
    edit(added);
}

void StraightsTable::RemoveStraights() {
    std::set<int> rows;
    for (const QModelIndex& cell : selectionModel()->selectedIndexes()) rows.insert(cell.row());
    if (rows.empty()) return;
    StraightsCells cells = CellsOfStraights(field_.Text());
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) cells.Lines.erase(cells.Lines.begin() + *row);
    binding_.Act([&] { field_.Enter(cells.Lines.empty() ? std::string() : TextOfCells(cells)); });
}

void StraightsTable::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete) {
        RemoveStraights();
    } else {
        TextTable::keyPressEvent(event);
    }
}

}  // namespace zolv
