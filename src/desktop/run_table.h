#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "desktop/copied_table.h"

namespace zolv {

/// The rows of the present acceleration run. It holds none itself: a cell is asked for when it comes into view.
class RunModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// The run, its units or its words have changed.
    void Refresh();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int rows_ = 0;
    int columns_ = 0;
};

/// Shows the table of an acceleration run under a head that stays: units in the head, bare numbers below, the rows in
/// which the gear changes tinted. A run is taken over only while the table is in view, so that one that is hidden costs
/// nothing; selection and scroll position stay where the reader put them.
class RunTable : public CopiedTable {
public:
    explicit RunTable(QWidget* parent = nullptr);

    /// There is another run.
    void SetStale();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Fill();
    void MeasureColumns();
    void SpreadColumns();

    RunModel model_;
    std::vector<int> whole_, narrowest_;  // width of each column with its words whole and broken, in pixels
    bool stale_ = true;
};

}  // namespace zolv
