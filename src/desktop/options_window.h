#pragma once

#include "desktop/secondary_window.h"

class QGridLayout;
class QGroupBox;

namespace zolv {

/// The window of the user's options: a title and tabs above the pages units, graphs and misc.
class OptionsWindow : public SecondaryWindow {
public:
    explicit OptionsWindow(Binding& binding, QWidget* parent = nullptr);

private:
    QWidget* MakeUnitsPage();
    QWidget* MakeGraphsPage();
    QWidget* MakeMiscPage();
    QGroupBox* MakePlotGroup(int plot);
    QGroupBox* MakeFixedRevsGroup();
    void AddScaleRow(QGridLayout& grid, Label& words, ScaleChoice& scale);
};

}  // namespace zolv
