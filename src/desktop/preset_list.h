#pragma once

#include <QListWidget>

namespace zolv {

class Binding;

/// The presets there are, with a row above them for a new one. To pick a preset's row is to pick it in EditName.
class PresetList : public QListWidget {
public:
    PresetList(Binding& binding, QWidget* parent);

    /// Whether the row for a new preset is the one picked.
    bool IsOnNewOne() const { return currentRow() <= 0; }

private:
    void Refresh();
    void FitRows();
    void Pick(int row);

    Binding& binding_;
};

}  // namespace zolv
