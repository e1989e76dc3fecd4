#pragma once

#include "desktop/secondary_window.h"

class QGridLayout;
class QGroupBox;

namespace zolv {

/// Finds a gearbox. A search runs beside the window, which stays usable.
class FinderView : public SecondaryWindow {
public:
    explicit FinderView(Binding& binding, QWidget* parent = nullptr);

    void setVisible(bool visible) override;

private:
    QGroupBox* MakeGoal();
    QGroupBox* MakeBounds();
    QGroupBox* MakeWishes();
    QGroupBox* MakeResult();
    QGroupBox* MakeStraights();
    void AddBounds(QGridLayout& grid, QWidget* name, TextBox& low, TextBox& high, const Field& caption);
};

}  // namespace zolv
