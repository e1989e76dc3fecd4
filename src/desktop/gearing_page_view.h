#pragma once

#include <QWidget>

#include "desktop/binding.h"

class QGridLayout;

namespace zolv {

/// The gearing page: the rows of the gears in the direction chosen on the left, with the figures of the run below them;
/// the plots, or the table of the run, on the right.
class GearingPageView : public QWidget {
public:
    explicit GearingPageView(Binding& binding, QWidget* parent = nullptr);

private:
    QWidget* MakeDirections();
    QWidget* MakePanels();
    QWidget* MakePanel(int mode);
    void AddTitles(QGridLayout& grid, int mode);
    void AddFinalDrive(QGridLayout& grid, int mode);
    void AddGear(QGridLayout& grid, int mode, int gear);
    void AddReverse(QGridLayout& grid, int mode);
    QWidget* MakeAcceleration();
    QWidget* MakeChoices();
    QWidget* MakePlots();

    Binding& binding_;
};

}  // namespace zolv
