#include "desktop/aero_page_view.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/balance_bar.h"
#include "desktop/canvas_view.h"
#include "desktop/page_parts.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "plots/air_plot.h"
#include "plots/plot_frame.h"
#include "text/words.h"

namespace zolv {
namespace {

/// On a wide screen names and figures stay near each other.
constexpr int kWidestColumn = 460;

QWidget* MakeSpeedChoice(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.AeroPanel[kAeroSpeedSelection], parent);
    QGridLayout& grid = *MakeRows(box);
    for (OptionButton* field : {&Zolv.UseSliderSpeed, &Zolv.UseFixedSpeed}) {
        auto* const button = new QRadioButton(box);
        grid.addWidget(button, NextRow(grid), 0);
        binding.Bind(*field, *button);
    }
    return box;
}

void FillSliders(Binding& binding, QGridLayout& grid) {
    const WidestOf angle{QStringLiteral("28 degrees")};
    AddAirSpeedRow(binding, grid, NextRow(grid), 0,
                   {Zolv.AeroLabel[kAeroCarSpeed], Zolv.Select_AeroSpeed, Zolv.AeroSpeed});
    AddSliderRow(binding, grid,
                 {Zolv.AeroLabel[kAeroFrontWingAngle], Zolv.Select_FrontWingAngle, Zolv.WingAngleFront, angle});
    AddSliderRow(binding, grid,
                 {Zolv.AeroLabel[kAeroRearWingAngle], Zolv.Select_RearWingAngle, Zolv.WingAngleRear, angle});
}

QLayout* MakeInputs(Binding& binding, QWidget* parent) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(2 * kSection);
    auto* const sliders = new QGridLayout;
    sliders->setHorizontalSpacing(kMargin);
    sliders->setVerticalSpacing(kGap);
    row->addWidget(MakeSpeedChoice(binding, parent));
    row->addLayout(sliders, 1);
    FillSliders(binding, *sliders);
    return row;
}

QWidget* MakeFigures(Binding& binding, int panel, const std::vector<FigureRow>& rows, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.AeroPanel[panel], parent);
    AddFigureRows(binding, *MakeRows(box), rows);
    return box;
}

WidestOf WidestForce() { return WidestTexts(&UnitState::Force, -18888); }
WidestOf WidestSplit() { return {QStringLiteral("-88.8% / 188.8%")}; }

QWidget* MakeTotals(Binding& binding, QWidget* parent) {
    auto& labels = Zolv.AeroLabel;
    return MakeFigures(binding, 1,
                       {{labels[3], Zolv.Aero_TotalDrag, WidestForce()},
                        {labels[4], Zolv.Aero_TotalLift},
                        {labels[5], Zolv.Aero_TotalLDR},
                        {labels[6], Zolv.Aero_RR},
                        {labels[7], Zolv.Aero_DragSplit, {QStringLiteral("88% / 100%")}},
                        {labels[8], Zolv.Aero_TotalFriction}},
                       parent);
}

QWidget* MakeMisc(Binding& binding, QWidget* parent) {
    auto& labels = Zolv.AeroLabel;
    return MakeFigures(binding, 2,
                       {{labels[9], Zolv.Aero_TopSpeed, WidestTexts(&UnitState::Speed, 188.8)},
                        {labels[10], Zolv.Aero_AirTemp},
                        {labels[11], Zolv.Aero_AirDensity}},
                       parent);
}

QWidget* MakeBody(Binding& binding, QWidget* parent) {
    auto& labels = Zolv.AeroLabel;
    return MakeFigures(binding, 3,
                       {{labels[12], Zolv.Aero_BodyCd},
                        {labels[13], Zolv.Aero_BodyCl},
                        {labels[14], Zolv.Aero_FrontalArea, WidestTexts(&UnitState::Area, 2.888)},
                        {labels[15], Zolv.Aero_BodyCdA},
                        {labels[16], Zolv.Aero_BodyAirDrag, WidestForce()},
                        {labels[17], Zolv.Aero_BodyLift},
                        {labels[18], Zolv.Aero_BodyLDR}},
                       parent);
}

QWidget* MakeForces(Binding& binding, QWidget* parent) {
    auto& labels = Zolv.AeroLabel;
    QGroupBox* const box = MakeGroup(binding, Zolv.AeroPanel[kAeroForces], parent);
    QGridLayout& grid = *MakeRows(box);
    AddFigureRows(binding, grid,
                  {{labels[20], Zolv.Aero_ForceFrontWheels, WidestForce()},
                   {labels[21], Zolv.Aero_ForceRearWheels},
                   {labels[22], Zolv.Aero_ForceDistribution},
                   {labels[23], Zolv.Aero_AeroDistribution, WidestSplit()}});
    auto* const bar = new BalanceBar(box);
    grid.addWidget(bar, NextRow(grid), 0, 1, 2);
    for (const Field* field : {&Zolv.Aero_AeroDistribution, &Zolv.Aero_ForceDistribution, &labels[23]}) {
        binding.OnChanged(*field, [bar] { bar->Refresh(); });
    }
    AddFigureRows(binding, grid, {{labels[19], Zolv.Aero_WeightMultiple}});
    return box;
}

/// The undertray or a wing; `firstWords` is the first of its five labels.
QWidget* MakeFitting(Binding& binding, int panel, int firstWords, FittingLabels& figures, QWidget* parent) {
    auto& labels = Zolv.AeroLabel;
    return MakeFigures(binding, panel,
                       {{labels[firstWords], figures.CdA},
                        {labels[firstWords + 1], figures.ClA},
                        {labels[firstWords + 2], figures.Drag, WidestForce()},
                        {labels[firstWords + 3], figures.Lift},
                        {labels[firstWords + 4], figures.LDR}},
                       parent);
}

QLayout* MakeColumn(std::initializer_list<QWidget*> groups) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(kSection);
    for (QWidget* const group : groups) {
        group->setMaximumWidth(kWidestColumn);
        column->addWidget(group);
    }
    column->addStretch(1);
    auto* const room = new QHBoxLayout;
    room->addLayout(column, 1);
    room->addStretch();
    return room;
}

/// Drag and downforce over the speed. It is drawn anew with whatever it follows from: the speed in force, the wings,
/// the car, the units and the words.
QWidget* MakePlot(Binding& binding, Canvas& canvas, QWidget* parent) {
    constexpr int kLowest = 170;
    auto* const view = new CanvasView(canvas, CanvasView::Shape::Stretched, parent);
    view->setObjectName(QStringLiteral("AirPlot"));
    view->setMinimumHeight(kLowest);
    const auto draw = [&canvas, view] {
        DrawAirPlot(canvas);
        view->setAccessibleName(ToQt(CurveName(Zolv.AeroLabel[kAeroDrag]) + " / " + words["Downforce"]));
        view->update();
    };
    const std::initializer_list<const Field*> follows{
        &Zolv.AeroSpeed,     &Zolv.WingAngleFront, &Zolv.WingAngleRear, &Zolv.Select_Car,           &Zolv.UseFixedSpeed,
        &Zolv.Aero_TopSpeed, &Zolv.Aero_TotalDrag, &Zolv.Aero_BodyCdA,  &Zolv.AeroLabel[kAeroDrag], &Zolv.Label_Held};
    for (const Field* field : follows) binding.OnChanged(*field, draw);
    return view;
}

/// Fills the page: the inputs over the first two columns, the third beside them, the plot below.
void Fill(Binding& binding, Canvas& canvas, QWidget* page) {
    auto* const grid = new QGridLayout(page);
    grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    grid->setSpacing(kSection);
    grid->addLayout(MakeInputs(binding, page), 0, 0, 1, 2);
    grid->addLayout(MakeColumn({MakeTotals(binding, page), MakeMisc(binding, page)}), 1, 0);
    grid->addLayout(MakeColumn({MakeBody(binding, page), MakeFitting(binding, 5, 24, Zolv.Undertray, page)}), 1, 1);
    grid->addLayout(MakeColumn({MakeForces(binding, page), MakeFitting(binding, 6, 29, Zolv.FrontWing, page),
                                MakeFitting(binding, 7, 34, Zolv.RearWing, page)}),
                    0, 2, 2, 1);
    grid->addWidget(MakePlot(binding, canvas, page), 2, 0, 1, 3);
    grid->setRowStretch(1, 1);  // what the third column needs beyond the others stays below them
    grid->setRowStretch(2, 100);
    for (int column = 0; column < 3; ++column) grid->setColumnStretch(column, 1);
}

}  // namespace

AeroPageView::AeroPageView(Binding& binding, QWidget* parent) : QWidget(parent) { Fill(binding, plot_, this); }

}  // namespace zolv
