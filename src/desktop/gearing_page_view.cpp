#include "desktop/gearing_page_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/canvas_painting.h"
#include "desktop/canvas_view.h"
#include "desktop/fault_mark.h"
#include "desktop/log_table.h"
#include "desktop/order_fault.h"
#include "desktop/page_parts.h"
#include "desktop/run_table.h"
#include "desktop/spare_room.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/value_label.h"
#include "drawing/palette.h"
#include "fields/label_names.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "gearing/mark_reasons.h"
#include "gearing/run_columns.h"
#include "plots/run_strip.h"
#include "plots/run_view.h"
#include "text/messages.h"
#include "text/texts.h"
#include "text/words.h"

namespace zolv {
namespace {

/// Columns of a panel, from left to right: what the driver sets, then what follows from it.
enum Column { kName, kInput, kUnit, kSlider, kResult, kBefore, kAfter, kTorque };

/// A ratio has no unit: its slider begins where that would stand.
Column SliderFrom(int mode) { return mode == 0 ? kUnit : kSlider; }

/// The labels of the ratios panel are GearingLabel(0) to (14), those of the speeds panel the same 15 further on.
Label& PanelLabel(int mode, int number) { return Zolv.GearingLabel[number + kGearingOfSpeeds * mode]; }

constexpr int kShortestSlider[] = {90, 60};  // of a ratio; of a speed, beside which its unit stands
const QString kWidestTime = QStringLiteral("88.88s");
constexpr double kWidestSpeed = 188.8;   // [m/s]
constexpr double kWidestTorque = 28888;  // [Nm]

/// Width of a box; a figure in the same column is as wide, so that it ends where the numbers in the boxes do. A speed
/// has room for the mark that stands in front of one that the car does not reach.
int BoxWidth(const QWidget& widget, int mode) {
    constexpr int kMark = 22;
    const int text =
        widget.fontMetrics().horizontalAdvance(mode == 0 ? QStringLiteral("88.888") : QStringLiteral("888.88"));
    return text + 2 * kGap + (mode == 0 ? 0 : kMark);
}

QLineEdit* MakeBox(Binding& binding, TextBox& field, const Field& caption, QWidget* parent, int mode) {
    auto* const box = new QLineEdit(parent);
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(BoxWidth(*box, mode));
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

QSlider* MakeSlider(Binding& binding, Slider& field, const Field& caption, QWidget* parent, int mode) {
    auto* const slider = new QSlider(Qt::Horizontal, parent);
    slider->setMinimumWidth(kShortestSlider[mode]);
    binding.Bind(field, *slider, &caption);
    return slider;
}

/// The colour of a gear, as a small square; on a dark ground with a rim as white as the plots.
class GearChip : public QWidget {
public:
    GearChip(int gear, QWidget* parent) : QWidget(parent), gear_(gear) { setFixedSize(11, 11); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        QRectF chip(rect());
        if (IsDark(palette())) {
            painter.setBrush(Qt::white);
            painter.drawRoundedRect(chip, 2.5, 2.5);
            chip.adjust(1.25, 1.25, -1.25, -1.25);
        }
        painter.setBrush(ToQt(GearColour(gear_)));
        painter.drawRoundedRect(chip, 2, 2);
    }

private:
    int gear_;
};

/// An engine speed, with room for five digits. Its unit, which is long in some languages, stands in the column's title.
ValueLabel* MakeRevs(Binding& binding, Label& field, QWidget* parent) {
    ValueLabel* const revs = MakeFigure(binding, field, parent, {QStringLiteral("24226")}, ChangePlace::Below);
    binding.OnChanged(field, [revs] {
        const QString suffix = ToQt(texts.RpmSuffix);
        if (revs->text().endsWith(suffix)) revs->setText(revs->text().chopped(suffix.size()));
    });
    return revs;
}

/// "Engine Speed..." as the title of columns whose figures have no unit: "Engine Speed [rpm]".
void AddUnitOfRevs(Binding& binding, const Label& field, QLabel& title) {
    const auto add = [&field, &title] {
        QString caption = PlainCaption(field.Caption());
        while (caption.endsWith(u'.') || caption.endsWith(u'\u2026')) caption.chop(1);
        title.setText(caption + QStringLiteral(" [") + ToQt(texts.RpmSuffix).trimmed() + u']');
        title.setAccessibleName(title.text());
    };
    binding.OnChanged(field, add);
    binding.OnChanged(OptionsPanel.SpeedPlotY.Units, add);  // the same line of a language
}

}  // namespace

GearingPageView::GearingPageView(Binding& binding, QWidget* parent) : QWidget(parent), binding_(binding) {
    auto* const columns = new QHBoxLayout(this);
    columns->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    columns->setSpacing(kSection);

    auto* const left = new QVBoxLayout;
    left->setSpacing(kSection);
    // The sliders move by less a pixel the longer they are; the plots have more than half all the same.
    columns->addLayout(left, 47);
    left->addWidget(MakeDirections());
    left->addWidget(MakePanels());
    left->addWidget(MakeAdvice());
    left->addWidget(MakeAcceleration(), 1);

    auto* const right = new QVBoxLayout;
    right->setSpacing(kGap);
    columns->addLayout(right, 53);
    right->addWidget(MakeViews());
    right->addWidget(MakeChoices());
    right->addWidget(MakePlots(), 1);
    OnOrderChanged(binding_, [this] { ShowOrder(); });
}

QWidget* GearingPageView::MakeDirections() {
    auto* const directions = new QWidget(this);
    auto* const row = new QHBoxLayout(directions);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kMargin);
    binding_.Bind(Zolv.GearingDirection, *directions);
    for (OptionButton* field : {&Zolv.Direction1, &Zolv.Direction2}) {
        auto* const button = new QRadioButton(directions);
        row->addWidget(button);
        binding_.Bind(*field, *button);
    }
    row->addStretch(1);
    row->addWidget(MakeWords(binding_, Zolv.GearingLabel[kGearingTyreType], directions));
    row->addWidget(MakeList(binding_, Zolv.Select_Tyres2, Zolv.GearingLabel[kGearingTyreType], directions));
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
    SetGroupMargins(*grid);
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(1);  // the rows have room for the changes below the figures
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
    const auto add = [&](int number, int row, int column, int columns, Qt::Alignment alignment) -> QLabel& {
        Label& caption = PanelLabel(mode, number);
        QLabel* const title =
            columns == 1 ? MakeColumnTitle(binding_, caption, parent) : MakeTitle(binding_, caption, parent);
        title->setAlignment(alignment);
        grid.addWidget(title, row, column, 1, columns);
        return *title;
    };
    const Qt::Alignment right = Qt::AlignRight | Qt::AlignBottom;
    const int input = mode == 0 ? 2 : 3;  // "Ratio" and "Speed" change places
    const int result = mode == 0 ? 3 : 2;
    AddUnitOfRevs(binding_, PanelLabel(mode, kGearingEngineSpeed), add(4, 0, kResult, 3, right));
    add(1, 1, kName, 1, Qt::AlignLeft | Qt::AlignBottom);
    // "Ratio", a long word in some languages, reaches over the sliders.
    add(input, 1, kInput, mode == 0 ? 3 : 2, Qt::AlignLeft | Qt::AlignBottom);
    add(result, 1, mode == 0 ? kResult : kSlider, mode == 0 ? 1 : 2, right);
    add(6, 1, kBefore, 1, right);
    add(5, 1, kAfter, 1, right);
    add(7, 1, kTorque, 1, right);
}

/// A gear's name with its colour in front, the same as in the plots and the table. They stand in a widget of their own
/// that goes with them: a layout within the grid would keep its height on a panel that is not in view.
void GearingPageView::AddGearName(QGridLayout& grid, int row, Label& name, int gear) {
    auto* const cell = new QWidget(grid.parentWidget());
    auto* const parts = new QHBoxLayout(cell);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(kGap / 2 + 2);
    parts->addWidget(new GearChip(gear, cell), 0, Qt::AlignVCenter);
    parts->addWidget(MakeWords(binding_, name, cell), 1);
    binding_.OnChanged(name, [&name, cell] { cell->setVisible(name.Visible()); });
    grid.addWidget(cell, row, kName);
}

void GearingPageView::AddGear(QGridLayout& grid, int mode, int gear) {
    QWidget* const parent = grid.parentWidget();
    GearingPanel& panel = Zolv.GearingOf(mode);
    Label& name = PanelLabel(mode, 7 + gear);
    const int row = NextRow(grid);
    GearRow& shown = rows_[mode][gear];
    const auto addFigure = [&](ValueLabel* figure, int column) {
        shown.figures.push_back(figure);
        grid.addWidget(figure, row, column);
        return figure;
    };
    AddGearName(grid, row, name, gear);
    shown.box = MakeBox(binding_, panel.Input[gear], name, parent, mode);
    grid.addWidget(shown.box, row, kInput);
    if (mode == 1) grid.addWidget(MakeWords(binding_, Zolv.Label_SPD[gear], parent), row, kUnit);
    grid.addWidget(MakeSlider(binding_, panel.InputSlider[gear], name, parent, mode), row, SliderFrom(mode), 1,
                   kResult - SliderFrom(mode));

    const WidestOf widest =
        mode == 0 ? WidestTexts(&UnitState::Speed, kWidestSpeed) : WidestOf{QStringLiteral("88.888")};
    ValueLabel* const result =
        addFigure(MakeFigure(binding_, panel.Result[gear], parent, widest, ChangePlace::Below), kResult);
    ValueLabel* const before = addFigure(MakeRevs(binding_, panel.RPM[gear], parent), kBefore);
    // The engine speed after the change out of this gear; the car's top gear has none.
    if (gear < 6) {
        ValueLabel* const after = addFigure(MakeRevs(binding_, panel.RAC[gear], parent), kAfter);
        ExplainMark(binding_, panel.RAC[gear], *after, WhyBelowPeakTorque);
    }
    const WidestOf torque = WidestTexts(&UnitState::Torque, kWidestTorque);
    addFigure(MakeFigure(binding_, panel.Torque[gear], parent, torque, ChangePlace::Below), kTorque)
        ->SetMarkRoom(false);

    ExplainMark(binding_, panel.RPM[gear], *before, WhyAboveRevLimit);
    if (mode == 0) {
        ExplainMark(binding_, panel.Result[gear], *result, WhyAboveTopSpeed);
    } else {
        ExplainMark(binding_, panel.Result[gear], *result, [gear] { return WhyRatioIsMarked(gear); });
        ExplainMark(binding_, panel.Input[gear], *shown.box, WhyAboveTopSpeed);
    }
    AddSentence(grid, row, name, shown);
}

/// Where the figures of a gear in the wrong order stand, the sentence that says so. The row has room for its two lines
/// at all times, so that nothing moves when it comes and goes.
void GearingPageView::AddSentence(QGridLayout& grid, int row, const Label& name, GearRow& shown) {
    QLabel* const sentence = MakeFaultSentence(grid.parentWidget());
    sentence->setObjectName(QStringLiteral("OrderSentence"));
    sentence->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    binding_.OnChanged(name, [&grid, &name, row, sentence] {
        const int height = HeightOfFaultSentence(*sentence, ToQt(name.Caption()));
        grid.setRowMinimumHeight(row, name.Visible() ? height : 0);
    });
    grid.addWidget(sentence, row, kResult, 1, kTorque - kResult + 1);
    shown.sentence = sentence;
}

void GearingPageView::AddReverse(QGridLayout& grid, int mode) {
    QWidget* const parent = grid.parentWidget();
    GearingPanel& panel = Zolv.GearingOf(mode);
    const int row = NextRow(grid);
    // Reverse reads like the gears above it: the ratio under the ratios, the speed under the speeds.
    const int ratio = mode == 0 ? kInput : kResult;
    const int speed = mode == 0 ? kResult : kInput;
    grid.setRowMinimumHeight(row, fontMetrics().height() + kGap);
    grid.addWidget(MakeWords(binding_, PanelLabel(mode, kGearingReverse), parent), row, kName);
    ValueLabel* const reverseRatio = MakeFigure(binding_, panel.GearR, parent, {}, ChangePlace::None);
    if (ratio == kInput) reverseRatio->setFixedWidth(BoxWidth(*reverseRatio, mode));
    grid.addWidget(reverseRatio, row, ratio);
    ValueLabel* const reverseSpeed = MakeFigure(binding_, panel.SpeedR, parent, {}, ChangePlace::Below);
    ExplainMark(binding_, panel.SpeedR, *reverseSpeed, WhyAboveTopSpeed);
    grid.addWidget(reverseSpeed, row, speed, 1, speed == kInput ? 2 : 1);
    ValueLabel* const revs = MakeRevs(binding_, panel.RPMR, parent);
    grid.addWidget(revs, row, kBefore);
    ValueLabel* const torque = MakeFigure(binding_, panel.TorqueR, parent, {}, ChangePlace::Below);
    torque->SetMarkRoom(false);
    grid.addWidget(torque, row, kTorque);
    for (ValueLabel* figure : {reverseSpeed, revs, torque}) others_.push_back(figure);
}

void GearingPageView::AddFinalDrive(QGridLayout& grid, int mode) {
    QWidget* const parent = grid.parentWidget();
    GearingPanel& panel = Zolv.GearingOf(mode);
    Label& name = PanelLabel(mode, kGearingFinalDrive);
    const int row = NextRow(grid);
    QLabel* const label = MakeWords(binding_, name, parent);
    BreakBetweenWords(binding_, name, *label);
    // The names of the gears are short, and the sliders above have what the column leaves.
    binding_.OnChanged(name, [label] { label->setMaximumWidth(label->minimumWidth()); });
    grid.addWidget(label, row, kName);
    grid.addWidget(MakeBox(binding_, panel.FinalDrive, name, parent, mode), row, kInput);
    grid.addWidget(MakeSlider(binding_, panel.FinalDriveSlider, name, parent, mode), row, SliderFrom(mode), 1,
                   kAfter - SliderFrom(mode));
}

QWidget* GearingPageView::MakeAcceleration() {
    QGroupBox* const group = MakeGroup(binding_, Zolv.ShowAcc, this);
    auto* const grid = new QGridLayout(group);
    SetGroupMargins(*grid);
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kGap / 2);
    const WidestOf speed = WidestTexts(&UnitState::Speed, kWidestSpeed);
    WidestOf speedAt;
    for (const QString& text : speed) speedAt.push_back(QStringLiteral("@ ") + text);

    const auto addFigure = [&](int number, int row, int column, int columns, const WidestOf& widest) {
        ValueLabel* const figure = MakeFigure(binding_, Zolv.AccDataLabel[number], group, widest);
        grid->addWidget(figure, row, column, 1, columns);
        others_.push_back(figure);
        return figure;
    };

    // Times to speeds on the left, distances and the top speed on the right.
    for (int i = 0; i < 5; ++i) {
        grid->addWidget(MakeWords(binding_, Zolv.GearingLabel[30 + i], group), i, 0);
        addFigure(i, i, 1, 1, {kWidestTime});
    }
    for (int i = 0; i < 2; ++i) {
        Label& distance = Zolv.GearingLabel[36 + i];  // "Quarter mile ET:"
        QLabel* const named = MakeWords(binding_, distance, group);
        const auto show = [&distance, named] { named->setText(ToQt(InWords(distance.Caption()))); };
        binding_.OnChanged(distance, show);
        binding_.OnChanged(Zolv.ShowAcc, show);  // whose caption comes with a language
        grid->addWidget(named, i, 3);
        addFigure(6 + 2 * i, i, 4, 1, {kWidestTime});
        addFigure(7 + 2 * i, i, 5, 1, speedAt);
    }
    grid->addWidget(MakeWords(binding_, Zolv.GearingLabel[kGearingEndSpeed], group), 2, 3);
    ExplainMark(binding_, Zolv.AccDataLabel[kAccEndSpeed], *addFigure(5, 2, 4, 2, speed), WhyStillGaining);
    grid->setColumnMinimumWidth(2, kSection);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(3, 1);
    constexpr int kFigureRows = 5;
    grid->addWidget(MakeStrip(group), kFigureRows, 0, 1, 6);
    grid->setRowStretch(kFigureRows, 1);
    return group;
}

/// The run as a small plot, where the window is high enough.
QWidget* GearingPageView::MakeStrip(QWidget* parent) {
    constexpr int kLowest = 92;
    auto* const view = new CanvasView(strip_, CanvasView::Shape::Stretched);
    view->setObjectName(QStringLiteral("RunStrip"));
    const auto draw = [this, view] {
        DrawRunStrip(strip_);
        view->setAccessibleName(PlainCaption(Zolv.ShowAcc.Caption()));
        view->update();
    };
    binding_.OnChanged(Zolv.ShowAcc, draw);
    binding_.OnChanged(Zolv.TorquePlot, draw);  // which is drawn anew with each calculation
    plots_.push_back(view);
    auto* const room = new SpareRoom(view, kLowest, parent);
    room->setContentsMargins(0, kGap, 0, 0);
    return room;
}

/// What the shift points lose, under the gears. It keeps its two lines, so that nothing moves while a slider does.
QWidget* GearingPageView::MakeAdvice() {
    auto* const advice = new QLabel(this);
    binding_.Bind(Zolv.ShiftAdvice, *advice);
    advice->setWordWrap(true);
    advice->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    advice->setFixedHeight(2 * advice->fontMetrics().lineSpacing());
    advice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    advice->setForegroundRole(QPalette::PlaceholderText);
    return advice;
}

/// The tabs above the plots.
QWidget* GearingPageView::MakeViews() {
    auto* const tabs = new QTabBar(this);
    tabs->setExpanding(false);
    tabs->setDrawBase(false);
    tabs->setUsesScrollButtons(false);
    tabs->setElideMode(Qt::ElideRight);  // on a small screen, before the page gets wider than that
    binding_.Bind(Zolv.Select_RunView, *tabs);
    return tabs;
}

QWidget* GearingPageView::MakeChoices() {
    auto* const choices = new QWidget(this);
    binding_.OnChanged(Zolv.Select_RunView, [choices] { choices->setVisible(PresentRunView() == RunView::Graphs); });
    auto* const row = new QHBoxLayout(choices);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(MakeWords(binding_, Zolv.GearingLabel[kGearingGraphs], choices));
    row->addWidget(MakeList(binding_, Zolv.Select_Graphs, Zolv.GearingLabel[kGearingGraphs], choices), 1);
    auto* const difference = new QCheckBox(choices);
    row->addWidget(difference);
    binding_.Bind(Zolv.TimeDifference, *difference);
    row->addWidget(MakeExport(choices));
    return choices;
}

/// The button is there while the table is.
QWidget* GearingPageView::MakeExport(QWidget* parent) {
    auto* const button = new QPushButton(parent);
    button->setObjectName(QStringLiteral("ExportRun"));
    connect(button, &QPushButton::clicked, this, [this] { binding_.Act([] { ExportRun(words["ExportRunTitle"]); }); });
    binding_.OnChanged(Zolv.GearingLabel[kGearingGraphs], [button] {
        button->setText(ToQt(words["ExportRun"]));
        button->setAccessibleName(button->text());
    });
    binding_.OnChanged(Zolv.AccelerationData, [button] { button->setVisible(Zolv.AccelerationData.Visible()); });
    return button;
}

QWidget* GearingPageView::MakePlots() {
    auto* const plots = new QWidget(this);
    auto* const column = new QVBoxLayout(plots);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    for (CanvasField* field :
         {&Zolv.SpeedPlot, &Zolv.SpeedTimeGraph, &Zolv.TorquePlot, &Zolv.TractiveEffortPlot, &Zolv.ForcePlot}) {
        auto* const view = new CanvasView(*field, CanvasView::Shape::Stretched, plots);
        column->addWidget(view, 1);
        binding_.Bind(*field, *view);
        if (field != &Zolv.TorquePlot) plots_.push_back(view);  // that one has the report
    }
    table_ = new RunTable(plots);
    column->addWidget(table_, 1);
    binding_.Bind(Zolv.AccelerationData, *table_, &Zolv.GearingLabel[kGearingGraphs]);
    log_ = new LogTable(plots);
    column->addWidget(log_, 1);
    binding_.Bind(Zolv.RunLog, *log_);
    binding_.OnChanged(Zolv.Label_Held, [this] { table_->SetStale(); });
    return plots;
}

/// While the gears are in the wrong order: the rows at fault are marked and say why, and what is older than the inputs
/// is greyed.
void GearingPageView::ShowOrder() {
    const bool older = !gearing.WrongOrder.empty();
    const int inForce = gearing.RatiosMode ? 0 : 1;
    for (int mode = 0; mode < 2; ++mode) {
        for (int gear = 1; gear <= kGears; ++gear) ShowOrderOf(mode, gear, older && mode == inForce);
    }
    for (ValueLabel* figure : others_) figure->SetStanding(older ? FigureStanding::Older : FigureStanding::Follows);
    for (CanvasView* plot : plots_) plot->SetFaded(older);
    table_->SetGreyed(older);
    log_->SetGreyed(older);
}

/// A fault is one of two gears. Both boxes are marked; the sentence stands beside the higher gear, which it begins
/// with.
void GearingPageView::ShowOrderOf(int mode, int gear, bool older) {
    const GearRow& row = rows_[mode][gear];
    const auto sentenceOf = [older](int lower) {
        const bool wrong = older && std::ranges::find(gearing.WrongOrder, lower) != gearing.WrongOrder.end();
        return wrong ? ToQt(OrderSentence(OrderWordsOf(gearing.From()), lower)) : QString();
    };
    const QString here = sentenceOf(gear - 1);
    const QString above = sentenceOf(gear);
    FigureStanding standing = FigureStanding::Follows;
    if (older) standing = here.isEmpty() ? FigureStanding::Older : FigureStanding::NotShown;
    for (ValueLabel* figure : row.figures) figure->SetStanding(standing);
    row.sentence->setVisible(!here.isEmpty());
    if (!here.isEmpty()) row.sentence->setText(here);
    MarkFault(*row.box, here.isEmpty() ? above : here);
}

}  // namespace zolv
