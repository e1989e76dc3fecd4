#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>
#include <vector>

#include "desktop/copied_table.h"

namespace zolv {

class TextBox;

/// The rows of a text with tabs between its cells, the first row as the head.
class TextTableModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetRows(std::vector<QStringList> rows);
    [[nodiscard]] const std::vector<QStringList>& Rows() const { return rows_; }

    /// With it cells may be edited: the new text of one, which the model itself does not take.
    std::function<void(int row, int column, const QString& text)> OnEdit;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    std::vector<QStringList> rows_;  // the head is the first
};

/// Shows a text with tabs between its cells as a table. A text is taken apart only while the table is in view.
class TextTable : public CopiedTable {
public:
    explicit TextTable(QWidget* parent = nullptr);

    /// The text has changed.
    void Show(const TextBox& field);

    /// Is never lower than its head, so many rows and a scroll bar.
    void KeepRoomFor(int rows);

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;

    /// The rows of a text, the head first.
    [[nodiscard]] virtual std::vector<QStringList> RowsOf(const TextBox& field) const;

    TextTableModel& Model() { return model_; }

private:
    void Fill();

    TextTableModel model_;
    const TextBox* field_ = nullptr;
    bool stale_ = false;
};

}  // namespace zolv
