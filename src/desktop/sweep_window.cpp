#include "desktop/sweep_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "desktop/canvas_view.h"
#include "desktop/note_lines.h"
#include "desktop/page_parts.h"
#include "desktop/text_table.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/work_row.h"
#include "studies/sweep_page.h"
#include "studies/sweep_state.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr int kNumberCharacters = 7;
constexpr int kStepCharacters = 5;
constexpr int kTableWidth = 250;

/// A plot that a sweep of two inputs fills well.
class LargePlot : public CanvasView {
public:
    using CanvasView::CanvasView;

    QSize sizeHint() const override { return {620, 440}; }
    QSize minimumSizeHint() const override { return {360, 260}; }
};

}  // namespace

SweepView::SweepView(Binding& binding, QWidget* parent) : SecondaryWindow(binding, SweepPanel, parent) {
    auto* const column = new QVBoxLayout(Body());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kMargin);
    column->addLayout(MakeInputs());
    column->addLayout(MakeWork());
    column->addWidget(MakeNoteLines(binding, SweepPanel.Status, Body(), 2));

    auto* const shown = new QSplitter(Body());
    auto* const plot = new LargePlot(SweepPanel.Plot, CanvasShape::Stretched, shown);
    binding.Bind(SweepPanel.Plot, *plot);
    binding.OnChanged(SweepPanel, [plot] { plot->setAccessibleName(ToQt(SweepPanel.Title())); });
    plot->SetClick([this](double x, double y) { Fields().Input(SweepPanel.TakeOver, [&] { ClickSweepPoint(x, y); }); });
    auto* const table = new TextTable(shown);
    binding.Bind(SweepPanel.Table, *table, &SweepPanel.ResultCaption);
    shown->addWidget(plot);
    shown->addWidget(table);
    shown->setStretchFactor(0, 3);
    shown->setStretchFactor(1, 1);
    shown->setChildrenCollapsible(false);
    table->setMinimumWidth(kTableWidth);
    column->addWidget(shown, 1);
    column->addLayout(MakePoint());
    AddButtons({&SweepPanel.SaveCsv, &SweepPanel.SaveSvg}, {&SweepPanel.CloseSweep});
    AddSavePng(*plot);
    Complete();
}

QLayout* SweepView::MakeInputs() {
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kGap);
    int line = 0;
    for (SweepAxisFields* axis : {&SweepPanel.First, &SweepPanel.Second}) {
        grid->addWidget(MakeWords(Fields(), axis->Caption, Body()), line, 0);
        grid->addWidget(MakeList(axis->Input, Body(), axis->Caption), line, 1);
        grid->addWidget(MakeWords(Fields(), axis->FromCaption, Body()), line, 2);
        grid->addWidget(MakeNumberBox(axis->From, Body(), axis->FromCaption, kNumberCharacters), line, 3);
        grid->addWidget(MakeWords(Fields(), axis->ToCaption, Body()), line, 4);
        grid->addWidget(MakeNumberBox(axis->To, Body(), axis->ToCaption, kNumberCharacters), line, 5);
        grid->addWidget(MakeWords(Fields(), axis->Unit, Body()), line, 6);
        grid->addWidget(MakeWords(Fields(), axis->StepsCaption, Body()), line, 7);
        grid->addWidget(MakeNumberBox(axis->Steps, Body(), axis->StepsCaption, kStepCharacters), line, 8);
        ++line;
    }
    grid->addWidget(MakeWords(Fields(), SweepPanel.ResultCaption, Body()), line, 0);
    grid->addWidget(MakeList(SweepPanel.Result, Body(), SweepPanel.ResultCaption), line, 1);
    grid->setColumnStretch(9, 1);
    return grid;
}

QLayout* SweepView::MakeWork() {
    auto* const holder = new QWidget(Body());
    auto* const row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    FillWorkRow(Fields(), *row,
                {.start = *MakeButton(SweepPanel.Start, holder),
                 .stop = *MakeButton(SweepPanel.Stop, holder),
                 .progress = SweepPanel.Progress,
                 .running = [] { return sweepWork.Running(); },
                 .done = [] { return sweep.Done; }});
    auto* const line = new QVBoxLayout;
    line->addWidget(holder);
    return line;
}

QLayout* SweepView::MakePoint() {
    auto* const row = new QHBoxLayout;
    row->setSpacing(kGap);
    const auto add = [&](Label& caption, TextBox& box, Label& unit, const Field& name) {
        row->addWidget(MakeWords(Fields(), caption, Body()));
        row->addWidget(MakeNumberBox(box, Body(), name, kNumberCharacters));
        row->addWidget(MakeWords(Fields(), unit, Body()));
    };
    add(SweepPanel.PointCaption, SweepPanel.Point, SweepPanel.PointUnit, SweepPanel.First.Caption);
    add(SweepPanel.PointCaption2, SweepPanel.Point2, SweepPanel.PointUnit2, SweepPanel.Second.Caption);
    row->addSpacing(kSection);
    row->addWidget(MakeWords(Fields(), SweepPanel.PointResult, Body()), 1);
    QPushButton* const takeOver = MakeButton(SweepPanel.TakeOver, Body());
    Fields().OnChanged(SweepPanel.Table, [takeOver] { takeOver->setEnabled(sweep.Run.has_value()); });
    row->addWidget(takeOver);
    return row;
}

void SweepView::AddSavePng(CanvasView& plot) {
    auto* const button = new QPushButton(this);
    button->setObjectName(QStringLiteral("SavePng"));
    connect(button, &QPushButton::clicked, &plot, [this, &plot] {
        Fields().Act([&] {
            if (sweep.Run) plot.SavePng();
        });
    });
    Fields().OnChanged(SweepPanel.SaveSvg, [button] {  // its words come with the language
        button->setText(ToQt(words["SavePng"]));
        button->setAccessibleName(button->text());
        button->setMinimumWidth(button->sizeHint().width() + 2 * kGap);  // as the buttons beside it
    });
    AddNote(button);
}

}  // namespace zolv
