#include "desktop/tyres_page_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

#include "desktop/canvas_view.h"
#include "desktop/page_parts.h"
#include "desktop/theme.h"
#include "fields/windows.h"

namespace zolv {
namespace {

/// Which tyre is fitted, and whether it has burst.
QLayout* MakeChoice(Binding& binding, QWidget* parent) {
    auto* const column = new QVBoxLayout;
    auto* const types = new QComboBox(parent);
    auto* const blow = new QCheckBox(parent);
    column->addWidget(types);
    column->addWidget(blow);
    column->addStretch();
    binding.Bind(Zolv.Select_Tyres, *types, &Zolv.GearingLabel[38]);
    binding.Bind(Zolv.BlowTyres, *blow);
    return column;
}

void FillSliders(Binding& binding, QGridLayout& grid) {
    const WidestOf pressure = WidestTexts(&UnitState::Pressure, 388);
    AddSliderRow(binding, grid, {Zolv.TyreLabel[1], Zolv.Select_PressureF, Zolv.Label_PressureF, pressure});
    AddSliderRow(binding, grid, {Zolv.TyreLabel[2], Zolv.Select_PressureR, Zolv.Label_PressureR, pressure});
    AddSliderRow(binding, grid,
                 {Zolv.TyreLabel[0], Zolv.Select_AeroSpeed_TyreTab, Zolv.AeroSpeed_TyreTab,
                  WidestTexts(&UnitState::Speed, 188.8)});
}

/// Which of the two tyres is analysed.
QLayout* MakeAxleChoice(Binding& binding, QWidget* parent) {
    auto* const column = new QVBoxLayout;
    for (OptionButton* field : {&Zolv.FrontTyreAnal, &Zolv.RearTyreAnal}) {
        auto* const button = new QRadioButton(parent);
        column->addWidget(button);
        binding.Bind(*field, *button);
    }
    column->addStretch();
    return column;
}

QWidget* MakeFigures(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.TyreNumAnal, parent);
    auto& words = Zolv.TyreLabel;
    QGridLayout& grid = *MakeRows(box);
    AddFigureRows(binding, grid,
                  {{words[7], Zolv.CPW},
                   {words[8], Zolv.CPL},
                   {words[9], Zolv.CPA, WidestTexts(&UnitState::Area, 0.0888)},
                   {words[10], Zolv.CPAR},
                   {words[11], Zolv.FRCPR},
                   {words[12], Zolv.MU},
                   {words[13], Zolv.TS, WidestTexts(&UnitState::Stiffness, 888888)},
                   {words[14], Zolv.TF},
                   {words[15], Zolv.UTR, WidestTexts(&UnitState::Distance, 0.388)},
                   {words[16], Zolv.TD},
                   {words[17], Zolv.TRRC, WidestTexts(&UnitState::Distance, 0.388, QStringLiteral(" / "), 2.888)},
                   {words[18], Zolv.TWH}});
    grid.setRowStretch(NextRow(grid), 1);
    return box;
}

/// A drawing of the tyre: what it shows, the drawing, and how near it is seen.
struct Drawing {
    Label& title;
    CanvasField& canvas;
    Label& zoomWords;
    Slider& zoom;
};

QLayout* MakeDrawing(Binding& binding, const Drawing& drawing, QWidget* parent) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(MakeTitle(binding, drawing.title, parent));
    auto* const view = new CanvasView(drawing.canvas, CanvasView::Shape::Proportional, parent);
    column->addWidget(view, 1);
    binding.Bind(drawing.canvas, *view);

    auto* const row = new QHBoxLayout;
    row->setSpacing(kMargin);
    auto* const slider = new QSlider(Qt::Horizontal, parent);
    row->addWidget(MakeWords(binding, drawing.zoomWords, parent));
    row->addWidget(slider, 1);
    binding.Bind(drawing.zoom, *slider, &drawing.zoomWords);
    column->addLayout(row);
    return column;
}

/// The drawings share the width as their canvases are wide, so that both come out in one height.
QWidget* MakeDrawings(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.TyreGraphAnal, parent);
    auto* const row = new QHBoxLayout(box);
    row->setContentsMargins(kMargin, kGap, kMargin, kMargin);
    row->setSpacing(kSection);
    for (const Drawing& drawing : {Drawing{Zolv.TyreLabel[3], Zolv.CPS, Zolv.TyreLabel[5], Zolv.ZoomCPS},
                                   Drawing{Zolv.TyreLabel[4], Zolv.SV, Zolv.TyreLabel[6], Zolv.ZoomSideOn}}) {
        row->addLayout(MakeDrawing(binding, drawing, box), static_cast<int>(drawing.canvas.Drawing().Width() / 100));
    }
    return box;
}

}  // namespace

TyresPageView::TyresPageView(Binding& binding, QWidget* parent) : QWidget(parent) {
    auto* const page = new QVBoxLayout(this);
    page->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    page->setSpacing(kSection);

    auto* const inputs = new QHBoxLayout;
    auto* const sliders = new QGridLayout;
    inputs->setSpacing(2 * kSection);
    sliders->setHorizontalSpacing(kMargin);
    sliders->setVerticalSpacing(kGap);
    page->addLayout(inputs);
    inputs->addLayout(MakeChoice(binding, this));
    inputs->addLayout(sliders, 1);
    FillSliders(binding, *sliders);
    inputs->addLayout(MakeAxleChoice(binding, this));

    auto* const results = new QHBoxLayout;
    results->setSpacing(kSection);
    page->addLayout(results, 1);
    results->addWidget(MakeFigures(binding, this));
    results->addWidget(MakeDrawings(binding, this), 1);
}

}  // namespace zolv
