#include "desktop/options_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <array>
#include <cstdint>

#include "desktop/fading_note.h"
#include "desktop/page_parts.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/value_label.h"
#include "files/options_file.h"
#include "text/number_text.h"
#include "text/words.h"
#include "units/unit_systems.h"

namespace zolv {
namespace {

constexpr int kSliderWidth = 130;  // the same in each group, so that the columns of the groups line up
constexpr int kScaleUnitsWidth = 64;
constexpr int kScaleRowHeight = 22;  // that of a line with a check box

/// The options of one plot.
struct PlotOptions {
    int group;  // its OptionsGroup
    ScaleChoice &x, &y;
    std::vector<CheckBox*> boxes;
};

const std::array<PlotOptions, 4>& Plots() {
    auto& form = OptionsPanel;
    static const std::array<PlotOptions, 4> plots{
        PlotOptions{3,
                    form.SpeedPlotX,
                    form.SpeedPlotY,
                    {&form.EnablePowerLine, &form.EnableTorqueLine, &form.EnableRedline, &form.EnableAltGraph}},
        PlotOptions{4, form.TorquePlotX, form.TorquePlotY, {&form.EnableEngineTorque}},
        PlotOptions{5, form.TEPlotX, form.TEPlotY, {&form.EnableVLoads}},
        PlotOptions{6, form.SpeedTimeGraphX, form.SpeedTimeGraphY, {}},
    };
    return plots;
}

/// What a step counts. A unit's suffix brings its own blank, which would stand out from the column.
QLabel* MakeScaleUnits(Binding& binding, Label& field, QWidget* group) {
    QLabel* const units = MakeWords(binding, field, group);
    units->setMinimumWidth(kScaleUnitsWidth);
    binding.OnChanged(field, [units] { units->setText(units->text().trimmed()); });
    return units;
}

/// Two columns of groups.
QGridLayout* MakeGroupGrid(QWidget* page) {
    auto* const grid = new QGridLayout(page);
    grid->setContentsMargins(0, kMargin, 0, 0);
    grid->setSpacing(kSection);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    return grid;
}

}  // namespace

OptionsWindow::OptionsWindow(Binding& binding, QWidget* parent) : SecondaryWindow(binding, OptionsPanel, parent) {
    auto& form = OptionsPanel;
    auto* const layout = new QVBoxLayout(Body());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kMargin);
    layout->addWidget(MakeTitle(binding, form.Title_Options, Body()));
    auto* const tabs = Make<QTabBar>(form.Select_Options, Body());
    tabs->setExpanding(false);
    layout->addWidget(tabs);
    for (const auto& [key, step] :
         {std::pair("Ctrl+Tab", 1), {"Ctrl+PgDown", 1}, {"Ctrl+Shift+Tab", -1}, {"Ctrl+PgUp", -1}}) {
        connect(new QShortcut(QKeySequence(QLatin1String(key)), this), &QShortcut::activated, this,
                [this, step] { Turn(step); });
    }

    auto* const stack = new QStackedWidget(Body());
    std::vector<Panel*> pages;
    for (QWidget* page : {MakeUnitsPage(), MakeGraphsPage(), MakeMiscPage()}) {
        Panel& field = form.OptionsPage[static_cast<int>(pages.size())];
        stack->addWidget(page);
        binding.Bind(field, *page);
        pages.push_back(&field);
    }
    binding.BindStack(*stack, pages);
    layout->addWidget(stack, 1);
    AddButtons({&form.OptionsLoad, &form.OptionsSave}, {&form.CloseOptions});
    auto* const saved = new FadingNote(this);
    AddNote(saved);
    // Where they could not be saved, a message has said why.
    connect(findChild<QPushButton*>(ToQt(form.OptionsSave.Name())), &QPushButton::clicked, saved, [saved] {
        if (!OptionsChanged()) saved->Say(ToQt(words["OptionsSaved"]));
    });
    Complete();
}

/// The page beside the one in front, as on the main window.
void OptionsWindow::Turn(int step) {
    TabStrip& pages = OptionsPanel.Select_Options;
    const int count = static_cast<int>(pages.Rows().size());
    Fields().Input(pages, [&] { pages.Pick((pages.Picked() + step + count) % count); });
}

QWidget* OptionsWindow::MakeUnitsPage() {
    auto* const page = new QWidget(Body());
    auto* const grid = new QGridLayout(page);
    grid->setContentsMargins(0, kMargin, 0, 0);
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(kGap);
    grid->addLayout(MakeSystems(page), 0, 0, 1, 3);
    int line = 1;
    for (UnitChoice& unit : OptionsPanel.Units) {
        Label& caption = OptionsPanel.OptionsLabel[line - 1];
        grid->addWidget(MakeWords(Fields(), caption, page), line, 0);
        grid->addWidget(MakeList(unit.Select, page, caption), line, 1);
        grid->addWidget(MakeWords(Fields(), unit.Caption, page), line, 2);
        ++line;
    }
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(line, 1);
    return page;
}

/// All units of a system in one click.
QLayout* OptionsWindow::MakeSystems(QWidget* page) {
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, kGap);
    row->setSpacing(kGap);
    const auto add = [&](const char* name, UnitSystem system, const std::string& (*word)()) {
        auto* const button = new QPushButton(page);
        button->setObjectName(QLatin1String(name));
        connect(button, &QPushButton::clicked, this,
                [this, system] { Fields().Input(OptionsPanel, [system] { PickUnitSystem(system); }); });
        Fields().OnChanged(OptionsPanel.Title_Options, [button, word] {
            button->setText(ToQt(word()));
            button->setAccessibleName(button->text());
        });
        row->addWidget(button);
    };
    add("MetricUnits", UnitSystem::Metric, []() -> const std::string& { return words["MetricUnits"]; });
    add("ImperialUnits", UnitSystem::Imperial, []() -> const std::string& { return words["ImperialUnits"]; });
    row->addStretch(1);
    return row;
}

QWidget* OptionsWindow::MakeGraphsPage() {
    auto* const page = new QWidget(Body());
    QGridLayout* const grid = MakeGroupGrid(page);
    for (int plot = 0; plot < static_cast<int>(Plots().size()); ++plot) {
        QGroupBox* const group = MakePlotGroup(plot);
        grid->addWidget(group, plot / 2, plot % 2);
    }
    return page;
}

QGroupBox* OptionsWindow::MakePlotGroup(int plot) {
    const PlotOptions& options = Plots()[static_cast<std::size_t>(plot)];
    QGroupBox* const group = MakeGroup(Fields(), OptionsPanel.OptionsGroup[options.group], Body());
    QGridLayout* const grid = MakeRows(group);
    AddScaleRow(*grid, OptionsPanel.Label_XScale[plot], options.x);
    AddScaleRow(*grid, OptionsPanel.Label_YScale[plot], options.y);
    for (CheckBox* box : options.boxes) grid->addWidget(Make<QCheckBox>(*box, group), NextRow(*grid), 0, 1, 4);
    return group;
}

void OptionsWindow::AddScaleRow(QGridLayout& grid, Label& caption, ScaleChoice& scale) {
    QWidget* const group = grid.parentWidget();
    const int line = NextRow(grid);
    grid.addWidget(MakeWords(Fields(), caption, group), line, 0);
    auto* const slider = Make<QSlider>(scale.Select, group, &caption);
    slider->setFixedWidth(kSliderWidth);
    grid.addWidget(slider, line, 1);
    auto* const step = new ValueLabel(group);
    step->ReserveFor({QStringLiteral("5000")});
    Fields().OnChanged(scale.Select,
                       [step, &scale] { step->setText(ToQt(NumberText(std::int32_t{scale.Select.Value()}))); });
    grid.addWidget(step, line, 2);
    grid.addWidget(MakeScaleUnits(Fields(), scale.Units, group), line, 3);
    grid.setRowMinimumHeight(line, kScaleRowHeight);
    grid.setColumnStretch(3, 1);
}

QWidget* OptionsWindow::MakeMiscPage() {
    auto& form = OptionsPanel;
    auto* const page = new QWidget(Body());
    QGridLayout* const grid = MakeGroupGrid(page);
    QGroupBox* const maxRevs = MakeGroup(Fields(), form.OptionsGroup[0], page);
    QGridLayout* const maxRevsRows = MakeRows(maxRevs);
    maxRevsRows->addWidget(Make<QRadioButton>(form.RevsP, maxRevs), 0, 0);
    maxRevsRows->addWidget(Make<QRadioButton>(form.RevsR, maxRevs), 1, 0);
    QGroupBox* const limiter = MakeGroup(Fields(), form.OptionsGroup[1], page);
    MakeRows(limiter)->addWidget(Make<QCheckBox>(form.RevLimitEnable, limiter), 0, 0);
    grid->addWidget(maxRevs, 0, 0);
    grid->addWidget(limiter, 0, 1);
    grid->addWidget(MakeFixedRevsGroup(), 1, 0);
    QGroupBox* const performance = MakeGroup(Fields(), form.OptionsGroup[7], page);
    MakeRows(performance)->addWidget(Make<QCheckBox>(form.AccelerationTestingEnable, performance), 0, 0);
    grid->addWidget(performance, 1, 1);
    return page;
}

QGroupBox* OptionsWindow::MakeFixedRevsGroup() {
    auto& form = OptionsPanel;
    QGroupBox* const group = MakeGroup(Fields(), form.OptionsGroup[2], Body());
    QGridLayout* const grid = MakeRows(group);
    grid->addWidget(Make<QRadioButton>(form.RC_Auto, group), 0, 0);
    grid->addWidget(Make<QRadioButton>(form.RC_Fixed, group), 1, 0);
    grid->addWidget(MakeNumberBox(form.RC_FixedVal, group, form.RC_Fixed, 7), 1, 1);
    grid->setColumnStretch(2, 1);
    return group;
}

}  // namespace zolv
