#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <vector>

#include "desktop/copied_table.h"

namespace zolv {

/// Lines of cells with tabs between them, as a table.
class LogModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// @param text  lines ended by CR LF
    void Show(const QString& text, const QStringList& titles);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList titles_;
    std::vector<QStringList> lines_;
};

/// Shows the log of the run: an event a row, figures at the right, words at the left, the changes of gear tinted.
class LogTable : public CopiedTable {
public:
    explicit LogTable(QWidget* parent = nullptr);

    /// There is another log, or its words have changed.
    void Show(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void SpreadRows();

    LogModel model_;
};

}  // namespace zolv
