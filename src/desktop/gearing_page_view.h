#pragma once

#include <QWidget>
#include <vector>

#include "desktop/binding.h"
#include "drawing/canvas.h"

class QGridLayout;

namespace zolv {

class CanvasView;
class LogTable;

/// The gearing page: the rows of the gears in the direction chosen on the left, with the figures and a small plot of
/// the run below them; the plots, or the table of the run, on the right.
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
    void AddGearName(QGridLayout& grid, int row, Label& name, int gear);
    void AddReverse(QGridLayout& grid, int mode);
    QWidget* MakeAcceleration();
    QWidget* MakeStrip(QWidget* parent);
    QWidget* MakeViews();
    QWidget* MakeAdvice();
    QWidget* MakeChoices();
    QWidget* MakeExport(QWidget* parent);
    QWidget* MakePlots();

    void ShowOrder();
    void ShowOrderOf(int mode, int gear, bool older);

    /// What is seen of a gear in one direction.
    struct GearRow {
        QLineEdit* box = nullptr;
        std::vector<ValueLabel*> figures;
        QLabel* sentence = nullptr;  // in place of the figures while the gear is in the wrong order
    };
    void AddSentence(QGridLayout& grid, int row, const Label& name, GearRow& shown);

    Binding& binding_;
    Canvas strip_{4000, 1000};
    GearRow rows_[2][7];               // by direction and gear
    std::vector<ValueLabel*> others_;  // figures that follow from all gears
    std::vector<CanvasView*> plots_;
    RunTable* table_ = nullptr;
    LogTable* log_ = nullptr;
};

}  // namespace zolv
