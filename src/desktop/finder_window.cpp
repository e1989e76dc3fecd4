#include "desktop/finder_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/note_lines.h"
#include "desktop/page_parts.h"
#include "desktop/straights_table.h"
#include "desktop/text_table.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/value_label.h"
#include "desktop/work_row.h"
#include "studies/finder_page.h"
#include "studies/finder_state.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr int kNumberCharacters = 7;
constexpr int kBoundCharacters = 6;

/// @param rows  for which there is always room
QTableView* MakeTable(Binding& binding, TextBox& field, QWidget* parent, const Field& caption, int rows) {
    auto* const table = new TextTable(parent);
    table->KeepRoomFor(rows);
    binding.Bind(field, *table, &caption);
    return table;
}

}  // namespace

FinderView::FinderView(Binding& binding, QWidget* parent) : SecondaryWindow(binding, Finder, parent) {
    auto* const columns = new QHBoxLayout(Body());
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(kSection);
    auto* const asked = new QVBoxLayout;
    asked->setSpacing(kSection);
    for (QGroupBox* group : {MakeGoal(), MakeBounds(), MakeWishes()}) asked->addWidget(group);
    asked->addStretch(1);
    columns->addLayout(asked);
    auto* const given = new QVBoxLayout;
    given->setSpacing(kSection);
    given->addWidget(MakeResult(), 2);
    given->addWidget(MakeStraights(), 3);
    columns->addLayout(given, 1);
    AddButtons({}, {&Finder.CloseFinder});
    Complete();
}

/// Whoever opens the window for the first time finds ticked what is sought most.
void FinderView::setVisible(bool visible) {
    const bool untouched = !Finder.FreeRatios.Checked() && !Finder.FreeFinalDrive.Checked() &&
                           !Finder.FreeFrontWing.Checked() && !Finder.FreeRearWing.Checked();
    if (visible && !isVisible() && untouched) {
        Finder.FreeRatios.SetChecked(true);
        Finder.FreeFinalDrive.SetChecked(true);
        Fields().PaintChanged();
    }
    SecondaryWindow::setVisible(visible);
}

QGroupBox* FinderView::MakeGoal() {
    QGroupBox* const group = MakeGroup(Fields(), Finder.GoalFrame, Body());
    QGridLayout* const grid = MakeRows(group);
    grid->addWidget(MakeWords(Fields(), Finder.GoalCaption, group), 0, 0);
    grid->addWidget(MakeList(Finder.Goal, group, Finder.GoalCaption), 0, 1, 1, 3);
    int line = 1;
    const auto add = [&](Label& caption, TextBox& box, Label& unit) {
        grid->addWidget(MakeWords(Fields(), caption, group), line, 0);
        grid->addWidget(MakeNumberBox(box, group, caption, kNumberCharacters), line, 1);
        grid->addWidget(MakeWords(Fields(), unit, group), line, 2);
        ++line;
    };
    add(Finder.FromSpeedCaption, Finder.FromSpeed, Finder.FromSpeedUnit);
    add(Finder.ToSpeedCaption, Finder.ToSpeed, Finder.ToSpeedUnit);
    add(Finder.DistanceCaption, Finder.Distance, Finder.DistanceUnit);
    grid->setColumnStretch(3, 1);
    return group;
}

void FinderView::AddBounds(QGridLayout& grid, QWidget* name, TextBox& low, TextBox& high, const Field& caption) {
    QWidget* const group = grid.parentWidget();
    const int line = NextRow(grid);
    grid.addWidget(name, line, 0);
    grid.addWidget(MakeNumberBox(low, group, caption, kBoundCharacters), line, 1, Qt::AlignRight);
    grid.addWidget(MakeNumberBox(high, group, caption, kBoundCharacters), line, 2, Qt::AlignRight);
}

QGroupBox* FinderView::MakeBounds() {
    QGroupBox* const group = MakeGroup(Fields(), Finder.FreeFrame, Body());
    QGridLayout* const grid = MakeRows(group);
    grid->addWidget(Make<QCheckBox>(Finder.FreeRatios, group), 0, 0);
    grid->addWidget(MakeWords(Fields(), Finder.LowCaption, group), 0, 1, Qt::AlignRight);
    grid->addWidget(MakeWords(Fields(), Finder.HighCaption, group), 0, 2, Qt::AlignRight);
    for (int gear = 1; gear <= 6; ++gear) {
        Label& caption = Finder.RatioCaption[gear];
        QLabel* const name = MakeWords(Fields(), caption, group);
        name->setContentsMargins(kSection + kGap, 0, 0, 0);
        AddBounds(*grid, name, Finder.LowRatio[gear], Finder.HighRatio[gear], caption);
    }
    const auto add = [&](CheckBox& free, TextBox& low, TextBox& high) {
        AddBounds(*grid, Make<QCheckBox>(free, group), low, high, free);
    };
    add(Finder.FreeFinalDrive, Finder.LowFinalDrive, Finder.HighFinalDrive);
    add(Finder.FreeFrontWing, Finder.LowFrontWing, Finder.HighFrontWing);
    add(Finder.FreeRearWing, Finder.LowRearWing, Finder.HighRearWing);
    grid->setColumnStretch(0, 1);
    return group;
}

QGroupBox* FinderView::MakeWishes() {
    QGroupBox* const group = MakeGroup(Fields(), Finder.WishFrame, Body());
    QGridLayout* const grid = MakeRows(group);
    const auto number = [&](TextBox& box, Label& unit, const Field& caption, int line) {
        grid->addWidget(MakeNumberBox(box, group, caption, kNumberCharacters), line, 1);
        grid->addWidget(MakeWords(Fields(), unit, group), line, 2);
    };
    grid->addWidget(Make<QCheckBox>(Finder.WishTopSpeed, group), 0, 0);
    number(Finder.TopSpeed, Finder.TopSpeedUnit, Finder.WishTopSpeed, 0);
    grid->addWidget(Make<QCheckBox>(Finder.WishDownforce, group), 1, 0);
    number(Finder.Downforce, Finder.DownforceUnit, Finder.WishDownforce, 1);
    grid->addWidget(MakeWords(Fields(), Finder.DownforceAt, group), 2, 0, Qt::AlignRight);
    number(Finder.DownforceSpeed, Finder.DownforceSpeedUnit, Finder.WishDownforce, 2);
    grid->addWidget(Make<QCheckBox>(Finder.WishBalance, group), 3, 0, 1, 3);
    grid->addWidget(MakeNoteLines(Fields(), Finder.Note, group, 3), 4, 0, 1, 3);
    grid->setColumnStretch(0, 1);
    return group;
}

QGroupBox* FinderView::MakeResult() {
    QGroupBox* const group = MakeGroup(Fields(), Finder.ResultFrame, Body());
    auto* const column = new QVBoxLayout(group);
    SetGroupMargins(*column);
    column->setSpacing(kGap);
    auto* const work = new QHBoxLayout;
    work->setSpacing(kGap);
    column->addLayout(work);
    FillWorkRow(Fields(), *work,
                {.start = *MakeButton(Finder.Start, group),
                 .stop = *MakeButton(Finder.Stop, group),
                 .progress = Finder.Progress,
                 .running = [] { return finderWork.Running(); },
                 .done = [] { return finder.Done; }});
    column->addWidget(MakeNoteLines(Fields(), Finder.Status, group, 2));

    auto* const figures = new QHBoxLayout;
    figures->setSpacing(kGap);
    const WidestOf widest{QStringLiteral("888.888 km/h"), QStringLiteral("8888.888 s")};
    figures->addWidget(MakeWords(Fields(), Finder.PresentCaption, group));
    figures->addWidget(MakeFigure(Fields(), Finder.Present, group, widest));
    figures->addSpacing(kSection);
    figures->addWidget(MakeWords(Fields(), Finder.FoundCaption, group));
    figures->addWidget(MakeFigure(Fields(), Finder.Found, group, widest));
    figures->addStretch();
    for (Button* button : {&Finder.HoldOld, &Finder.TakeOver}) {
        QPushButton* const ofFind = MakeButton(*button, group);
        for (const Field* field : {static_cast<Field*>(button), static_cast<Field*>(&Finder.Table)}) {
            Fields().OnChanged(*field, [ofFind] { ofFind->setEnabled(finder.Find.has_value()); });
        }
        figures->addWidget(ofFind);
    }
    column->addLayout(figures);
    column->addWidget(MakeTable(Fields(), Finder.Table, group, Finder.ResultFrame, 8), 1);
    return group;
}

QGroupBox* FinderView::MakeStraights() {
    QGroupBox* const group = MakeGroup(Fields(), Finder.StraightsFrame, Body());
    auto* const column = new QVBoxLayout(group);
    SetGroupMargins(*column);
    column->setSpacing(kGap);
    auto* const table = new StraightsTable(Fields(), Finder.Straights, Finder.StraightsFrame, group);
    table->KeepRoomFor(5);
    auto* const row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(MakeButton(Finder.StraightsOpen, group));
    row->addWidget(MakeButton(Finder.StraightsSave, group));
    const auto add = [&](const char* name, const std::string& (*word)(), void (StraightsTable::*work)()) {
        auto* const button = new QPushButton(group);
        button->setObjectName(QLatin1String(name));
        connect(button, &QPushButton::clicked, table, work);
        Fields().OnChanged(Finder.StraightsOpen, [button, word] {  // its words come with the language
            button->setText(ToQt(word()));
            button->setAccessibleName(button->text());
        });
        row->addWidget(button);
    };
    row->addStretch();
    add(
        "AddStraight", []() -> const std::string& { return words["AddStraight"]; }, &StraightsTable::AddStraight);
    add(
        "RemoveStraight", []() -> const std::string& { return words["RemoveStraight"]; },
        &StraightsTable::RemoveStraights);
    column->addLayout(row);
    column->addWidget(table, 1);
    column->addWidget(MakeNoteLines(Fields(), Finder.StraightsNote, group, 2));
    column->addWidget(MakeTable(Fields(), Finder.StraightTimes, group, Finder.StraightsFrame, 6), 1);
    return group;
}

}  // namespace zolv
