#include "desktop/gearing_page_view.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "desktop/canvas_view.h"
#include "desktop/page_parts.h"
#include "desktop/run_table.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/value_label.h"
#include "text/texts.h"

namespace zolv {
namespace {

/// Columns of a panel, from left to right: what the driver sets, then what follows from it.
enum Column { kName, kInput, kUnit, kSlider, kResult, kBefore, kAfter, kTorque };

/// The labels of the ratios panel are GearingLabel(0) to (14), those of the speeds panel the same 15 further on.
Label& PanelLabel(int mode, int number) { return Zolv.GearingLabel[number + 15 * mode]; }

const QString kWidestTime = QStringLiteral("88.88s");
constexpr double kWidestSpeed = 188.8;   // [m/s]
constexpr double kWidestTorque = 28888;  // [Nm]

/// Width of a box; a figure in the same column is as wide, so that it ends where the numbers in the boxes do.
int BoxWidth(const QWidget& widget) {
    return widget.fontMetrics().horizontalAdvance(QStringLiteral("888.888")) + 2 * kGap;
}

QLineEdit* MakeBox(Binding& binding, TextBox& field, const Field& caption, QWidget* parent) {
    auto* const box = new QLineEdit(parent);
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(BoxWidth(*box));
    binding.Bind(field, *box, &caption);
    return box;
}

/// As wide as its widest row in the language in force.
QComboBox* MakeList(Binding& binding, PickList& field, const Field& caption, QWidget* parent) {
    auto* const list = new QComboBox(parent);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    binding.Bind(field, *list, &caption);
    return list;
}

QSlider* MakeSlider(Binding& binding, Slider& field, const Field& caption, QWidget* parent) {
    auto* const slider = new QSlider(Qt::Horizontal, parent);
    slider->setMinimumWidth(90);
    binding.Bind(field, *slider, &caption);
    return slider;
}

/// An engine speed, with room for five digits and the word for rpm in any language.
ValueLabel* MakeRevs(Binding& binding, Label& field, QWidget* parent) {
    ValueLabel* const revs = MakeFigure(binding, field, parent);
    binding.OnChanged(OptionsPanel.SpeedPlotY.Units, [revs] {  // the same line of a language
        revs->ReserveFor({QStringLiteral("24226") + ToQt(texts.RpmSuffix)});
    });
    return revs;
}

}  // namespace

GearingPageView::GearingPageView(Binding& binding, QWidget* parent) : QWidget(parent), binding_(binding) {
    auto* const columns = new QHBoxLayout(this);
    columns->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    columns->setSpacing(kSection);

    auto* const left = new QVBoxLayout;
    left->setSpacing(kGap);
    columns->addLayout(left);
    left->addWidget(MakeDirections());
    left->addWidget(MakePanels());
    left->addWidget(MakeAcceleration());
    left->addStretch(1);

    auto* const right = new QVBoxLayout;
    right->setSpacing(kGap);
    columns->addLayout(right, 1);
    right->addWidget(MakeChoices());
    right->addWidget(MakePlots(), 1);
}

QWidget* GearingPageView::MakeDirections() {
    auto* const directions = new QWidget(this);
    auto* const row = new QHBoxLayout(directions);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSection);
    binding_.Bind(Zolv.GearingDirection, *directions);
    for (OptionButton* field : {&Zolv.Direction1, &Zolv.Direction2}) {
        auto* const button = new QRadioButton(directions);
        row->addWidget(button);
        binding_.Bind(*field, *button);
    }
    row->addStretch(1);
    row->addWidget(MakeWords(binding_, Zolv.GearingLabel[38], directions));
    row->addWidget(MakeList(binding_, Zolv.Select_Tyres2, Zolv.GearingLabel[38], directions));
    return directions;
}

QWidget* GearingPageView::MakePanels() {
    auto* const stack = new QStackedWidget(this);
    for (int mode = 0; mode < 2; ++mode) stack->addWidget(MakePanel(mode));
    binding_.BindStack(*stack, {&Zolv.Ratios.Frame, &Zolv.Speeds.Frame});
    return stack;
}

QWidget* GearingPageView::MakePanel(int mode) {
    QGroupBox* const panel = MakeGroup(binding_, Zolv.GearingOf(mode).Frame, this);
    auto* const grid = new QGridLayout(panel);
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(kGap);
    grid->setColumnStretch(kSlider, 1);
    AddTitles(*grid, mode);
    for (int gear = 1; gear <= 6; ++gear) AddGear(*grid, mode, gear);
    AddReverse(*grid, mode);
    AddFinalDrive(*grid, mode);
    grid->setRowStretch(grid->rowCount(), 1);
    return panel;
}

void GearingPageView::AddTitles(QGridLayout& grid, int mode) {
    QWidget* const parent = grid.parentWidget();
    const auto add = [&](int number, int row, int column, int columns, Qt::Alignment alignment) {
        grid.addWidget(MakeTitle(binding_, PanelLabel(mode, number), parent), row, column, 1, columns, alignment);
    };
    const Qt::Alignment right = Qt::AlignRight | Qt::AlignBottom;
    const int input = mode == 0 ? 2 : 3;  // "Ratio" and "Speed" change places
    const int result = mode == 0 ? 3 : 2;
    add(4, 0, kBefore, 2, Qt::AlignHCenter | Qt::AlignBottom);
    add(1, 1, kName, 1, Qt::AlignLeft | Qt::AlignBottom);
    add(input, 1, kInput, 1, Qt::AlignLeft | Qt::AlignBottom);
    add(result, 1, kResult, 1, right);
    add(6, 1, kBefore, 1, right);
    add(5, 1, kAfter, 1, right);
    add(7, 1, kTorque, 1, right);
}

void GearingPageView::AddGear(QGridLayout& grid, int mode, int gear) {
    QWidget* const parent = grid.parentWidget();
    GearingPanel& panel = Zolv.GearingOf(mode);
    Label& name = PanelLabel(mode, 7 + gear);
    const int row = NextRow(grid);
    const WidestOf speed = WidestTexts(&UnitState::Speed, kWidestSpeed);
    grid.addWidget(MakeWords(binding_, name, parent), row, kName);
    grid.addWidget(MakeBox(binding_, panel.Input[gear], name, parent), row, kInput);
    if (mode == 1) grid.addWidget(MakeWords(binding_, Zolv.Label_SPD[gear], parent), row, kUnit);
    grid.addWidget(MakeSlider(binding_, panel.InputSlider[gear], name, parent), row, kSlider);
    grid.addWidget(MakeFigure(binding_, panel.Result[gear], parent, speed), row, kResult);
    grid.addWidget(MakeRevs(binding_, panel.RPM[gear], parent), row, kBefore);
    // The engine speed after the change out of this gear; the car's top gear has none.
    if (gear < 6) grid.addWidget(MakeRevs(binding_, panel.RAC[gear], parent), row, kAfter);
    grid.addWidget(MakeFigure(binding_, panel.Torque[gear], parent, WidestTexts(&UnitState::Torque, kWidestTorque)),
                   row, kTorque);
}

void GearingPageView::AddReverse(QGridLayout& grid, int mode) {
    QWidget* const parent = grid.parentWidget();
    GearingPanel& panel = Zolv.GearingOf(mode);
    const int row = NextRow(grid);
    // Reverse reads like the gears above it: the ratio under the ratios, the speed under the speeds.
    const int ratio = mode == 0 ? kInput : kResult;
    const int speed = mode == 0 ? kResult : kInput;
    grid.addWidget(MakeWords(binding_, PanelLabel(mode, 14), parent), row, kName);
    ValueLabel* const reverseRatio = MakeFigure(binding_, panel.GearR, parent);
    if (ratio == kInput) reverseRatio->setFixedWidth(BoxWidth(*reverseRatio));
    grid.addWidget(reverseRatio, row, ratio);
    grid.addWidget(MakeFigure(binding_, panel.SpeedR, parent), row, speed, 1, speed == kInput ? 2 : 1);
    grid.addWidget(MakeRevs(binding_, panel.RPMR, parent), row, kBefore);
    grid.addWidget(MakeFigure(binding_, panel.TorqueR, parent), row, kTorque);
}

void GearingPageView::AddFinalDrive(QGridLayout& grid, int mode) {
    QWidget* const parent = grid.parentWidget();
    GearingPanel& panel = Zolv.GearingOf(mode);
    Label& name = PanelLabel(mode, 0);
    const int row = NextRow(grid);
    grid.addWidget(MakeWords(binding_, name, parent), row, kName);
    grid.addWidget(MakeBox(binding_, panel.FinalDrive, name, parent), row, kInput);
    grid.addWidget(MakeSlider(binding_, panel.FinalDriveSlider, name, parent), row, kSlider, 1, 3);
}

QWidget* GearingPageView::MakeAcceleration() {
    QGroupBox* const group = MakeGroup(binding_, Zolv.ShowAcc, this);
    auto* const grid = new QGridLayout(group);
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(kGap / 2);
    const WidestOf speed = WidestTexts(&UnitState::Speed, kWidestSpeed);
    WidestOf speedAt;
    for (const QString& text : speed) speedAt.push_back(QStringLiteral("@ ") + text);

    // Times to speeds on the left, distances and the top speed on the right.
    for (int i = 0; i < 5; ++i) {
        grid->addWidget(MakeWords(binding_, Zolv.GearingLabel[30 + i], group), i, 0);
        grid->addWidget(MakeFigure(binding_, Zolv.AccDataLabel[i], group, {kWidestTime}), i, 1);
    }
    for (int i = 0; i < 2; ++i) {
        grid->addWidget(MakeWords(binding_, Zolv.GearingLabel[36 + i], group), i, 3);
        grid->addWidget(MakeFigure(binding_, Zolv.AccDataLabel[6 + 2 * i], group, {kWidestTime}), i, 4);
        grid->addWidget(MakeFigure(binding_, Zolv.AccDataLabel[7 + 2 * i], group, speedAt), i, 5);
    }
    grid->addWidget(MakeWords(binding_, Zolv.GearingLabel[35], group), 2, 3);
    grid->addWidget(MakeFigure(binding_, Zolv.AccDataLabel[5], group, speed), 2, 4, 1, 2);
    grid->setColumnMinimumWidth(2, kSection);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(3, 1);
    return group;
}

QWidget* GearingPageView::MakeChoices() {
    auto* const choices = new QWidget(this);
    auto* const row = new QHBoxLayout(choices);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(MakeWords(binding_, Zolv.GearingLabel[39], choices));
    row->addWidget(MakeList(binding_, Zolv.Select_Graphs, Zolv.GearingLabel[39], choices), 1);
    return choices;
}

QWidget* GearingPageView::MakePlots() {
    auto* const plots = new QWidget(this);
    auto* const column = new QVBoxLayout(plots);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    for (CanvasField* field : {&Zolv.SpeedPlot, &Zolv.SpeedTimeGraph, &Zolv.TorquePlot, &Zolv.TractiveEffortPlot}) {
        auto* const view = new CanvasView(*field, CanvasView::Shape::Stretched, plots);
        column->addWidget(view, 1);
        binding_.Bind(*field, *view);
    }
    auto* const table = new RunTable(Zolv.AccelerationData, plots);
    column->addWidget(table, 1);
    binding_.Bind(Zolv.AccelerationData, *table, &Zolv.GearingLabel[39]);
    return plots;
}

}  // namespace zolv
