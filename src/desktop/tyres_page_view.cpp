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
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "text/words.h"
#include "tyres/tyre_figures.h"

namespace zolv {
namespace {

/// Columns of the inputs, with a gap between the groups.
enum { kFitted, kFirstGap = kFitted + 2, kSliders, kSecondGap = kSliders + 3, kAnalysed };

/// Which tyre is fitted, and whether it has burst.
void PlaceFitted(Binding& binding, QGridLayout& grid) {
    auto* const types = new QComboBox(grid.parentWidget());
    types->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* const blow = new QCheckBox(grid.parentWidget());
    auto* const caption = new QLabel(grid.parentWidget());
    binding.OnChanged(Zolv.GearingLabel[kGearingTyreType],
                      [caption] { caption->setText(PlainCaption(Zolv.GearingLabel[kGearingTyreType].Caption())); });
    grid.addWidget(caption, 0, kFitted);
    grid.addWidget(types, 0, kFitted + 1);
    grid.addWidget(blow, 1, kFitted, 1, 2);
    binding.Bind(Zolv.Select_Tyres, *types, &Zolv.GearingLabel[kGearingTyreType]);
    binding.Bind(Zolv.BlowTyres, *blow);
}

/// The speed stands last: a car without downforce has none here. A tyre that has burst has no pressure to set.
void PlaceSliders(Binding& binding, QGridLayout& grid) {
    const WidestOf pressure = WidestTexts(&UnitState::Pressure, 388);
    int line = 0;
    for (const SliderRow& row :
         {SliderRow{Zolv.TyreLabel[kTyrePressureF], Zolv.Select_PressureF, Zolv.Label_PressureF, pressure},
          SliderRow{Zolv.TyreLabel[kTyrePressureR], Zolv.Select_PressureR, Zolv.Label_PressureR, pressure}}) {
        QSlider* const slider = PlaceSliderRow(binding, grid, line++, kSliders, row);
        const auto enable = [slider, &field = row.slider] {
            slider->setEnabled(field.Enabled() && !Zolv.BlowTyres.Checked());
        };
        binding.OnChanged(row.slider, enable);
        binding.OnChanged(Zolv.BlowTyres, enable);
    }
    AddAirSpeedRow(binding, grid, line, kSliders,
                   {Zolv.TyreLabel[kTyreCarSpeed], Zolv.Select_AeroSpeed_TyreTab, Zolv.AeroSpeed_TyreTab});
}

/// Which of the two tyres is analysed.
void PlaceAnalysed(Binding& binding, QGridLayout& grid) {
    int line = 0;
    for (OptionButton* field : {&Zolv.FrontTyreAnal, &Zolv.RearTyreAnal}) {
        auto* const button = new QRadioButton(grid.parentWidget());
        grid.addWidget(button, line++, kAnalysed);
        binding.Bind(*field, *button);
    }
}

void AddInputs(Binding& binding, QVBoxLayout& page) {
    auto* const grid = new QGridLayout;
    page.addLayout(grid);
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(kGap);
    for (const int gap : {kFirstGap, kSecondGap}) grid->setColumnMinimumWidth(gap, kGap);
    PlaceFitted(binding, *grid);
    PlaceSliders(binding, *grid);
    PlaceAnalysed(binding, *grid);
}

/// In metres the lengths of a tyre read 0.1 m or nothing at all; they are shown in millimetres then.
void ShowFiner(Binding& binding, const QWidget& box) {
    for (Label* field : {&Zolv.CPW, &Zolv.CPL, &Zolv.CPA, &Zolv.UTR, &Zolv.TD, &Zolv.TRRC, &Zolv.TWH}) {
        auto* const figure = static_cast<ValueLabel*>(box.findChild<QLabel*>(ToQt(field->Name())));
        const auto show = [field, figure] {
            const std::string finer = FinerTyreText(Showing::Present, *field);
            const bool isFiner = !finer.empty();
            figure->setText(ToQt(isFiner ? finer : field->Caption()));
            ShowChange(*figure, *field, isFiner ? finer : field->Caption(),
                       isFiner ? FinerTyreText(Showing::Held, *field) : field->Held());
        };
        binding.OnChanged(*field, show);
        binding.OnChanged(Zolv.CPS, show);  // drawn with each analysis, also where the caption stays
    }
}

QWidget* MakeFigures(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.TyreNumAnal, parent);
    auto& labels = Zolv.TyreLabel;
    QGridLayout& grid = *MakeRows(box);
    AddFigureRows(binding, grid,
                  {{labels[7], Zolv.CPW},
                   {labels[8], Zolv.CPL},
                   {labels[9], Zolv.CPA, WidestTexts(&UnitState::Area, 0.0888)},
                   {labels[10], Zolv.CPAR},
                   {labels[11], Zolv.FRCPR},
                   {labels[12], Zolv.MU},
                   {labels[13], Zolv.TS, WidestTexts(&UnitState::Stiffness, 888888)},
                   {labels[14], Zolv.TF},
                   {labels[15], Zolv.UTR, WidestTexts(&UnitState::Distance, 0.388)},
                   {labels[16], Zolv.TD},
                   {labels[17], Zolv.TRRC, WidestTexts(&UnitState::Distance, 0.388, QStringLiteral(" / "), 2.888)},
                   {labels[18], Zolv.TWH}});
    ShowFiner(binding, *box);
    ExplainMark(binding, Zolv.TWH, *box->findChild<QLabel*>(ToQt(Zolv.TWH.Name())), [] { return words["NoWallLeft"]; });
    return box;
}

/// A drawing of the tyre: what it shows, how near it is seen, and the drawing itself.
struct Drawing {
    Label& title;
    Label& zoomWords;
    Slider& zoom;
    CanvasField& canvas;
};

QLayout* MakeZoom(Binding& binding, const Drawing& drawing, QWidget* parent) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(kMargin);
    row->addWidget(MakeWords(binding, drawing.zoomWords, parent));
    auto* const slider = new QSlider(Qt::Horizontal, parent);
    row->addWidget(slider, 1);
    binding.Bind(drawing.zoom, *slider, &drawing.zoomWords);
    return row;
}

void PlaceDrawing(Binding& binding, QGridLayout& grid, int column, const Drawing& drawing) {
    QWidget* const parent = grid.parentWidget();
    QLabel* const title = MakeTitle(binding, drawing.title, parent);
    title->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    title->setWordWrap(true);  // the longest of words may not take the room of the other drawing
    grid.addWidget(title, 0, column);
    grid.addLayout(MakeZoom(binding, drawing, parent), 1, column);

    auto* const view = new CanvasView(drawing.canvas, CanvasView::Shape::Proportional, parent);
    grid.addWidget(view, 2, column);
    binding.Bind(drawing.canvas, *view);
}

/// The footprint gets more of the width: its canvas is wider, and it has numbers along its axes.
QWidget* MakeDrawings(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.TyreGraphAnal, parent);
    auto* const grid = new QGridLayout(box);
    SetGroupMargins(*grid);
    grid->setHorizontalSpacing(kSection);
    grid->setVerticalSpacing(kGap);
    PlaceDrawing(binding, *grid, 0,
                 {Zolv.TyreLabel[kTyreFootprint], Zolv.TyreLabel[kTyreZoomFootprint], Zolv.ZoomCPS, Zolv.CPS});
    PlaceDrawing(binding, *grid, 1,
                 {Zolv.TyreLabel[kTyreSideView], Zolv.TyreLabel[kTyreZoomSideView], Zolv.ZoomSideOn, Zolv.SV});
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    grid->setRowStretch(2, 1);
    return box;
}

}  // namespace

TyresPageView::TyresPageView(Binding& binding, QWidget* parent) : QWidget(parent) {
    auto* const page = new QVBoxLayout(this);
    page->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    page->setSpacing(kSection);

    AddInputs(binding, *page);

    auto* const results = new QHBoxLayout;
    results->setSpacing(kSection);
    page->addLayout(results, 1);
    results->addWidget(MakeFigures(binding, this));
    results->addWidget(MakeDrawings(binding, this), 1);
}

}  // namespace zolv
