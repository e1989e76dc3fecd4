#pragma once

#include "desktop/secondary_window.h"

class QGridLayout;
class QGroupBox;
class QLayout;

namespace zolv {

/// The window of the user's options: a title and tabs above the pages units, graphs and misc.
class OptionsWindow : public SecondaryWindow {
public:
    explicit OptionsWindow(Binding& binding, QWidget* parent = nullptr);

private:
    void Turn(int step);
    QWidget* MakeUnitsPage();
    QLayout* MakeSystems(QWidget* page);
    QWidget* MakeGraphsPage();
    QWidget* MakeMiscPage();
    QGroupBox* MakePlotGroup(int plot);
    QGroupBox* MakeFixedRevsGroup();
    void AddScaleRow(QGridLayout& grid, Label& caption, ScaleChoice& scale);
};

}  // namespace zolv
