#pragma once

#include "desktop/text_table.h"

namespace zolv {

class Binding;
class Field;

/// The straights of a track as a table that can be edited: each change goes into the text of its field.
class StraightsTable : public TextTable {
public:
    StraightsTable(Binding& binding, TextBox& field, const Field& caption, QWidget* parent);

    /// A straight behind the others, ready to be named; and none where the selected ones are.
    void AddStraight();
    void RemoveStraights();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] std::vector<QStringList> RowsOf(const TextBox& field) const override;

private:
    void Edit(int row, int column, const QString& text);

    Binding& binding_;
    TextBox& field_;
};

}  // namespace zolv
