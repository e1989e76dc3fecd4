#include "desktop/presets_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <variant>

#include "desktop/page_parts.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"

namespace zolv {
namespace {

/// Row 1 has the base car in the add panel; the edit panel, which has none, shows there how many presets are used.
constexpr int kNameRow = 0;
constexpr int kSecondRow = 1;

constexpr int kNumberCharacters = 7;  // of a single

template <int Number>
Label& Rpm(bool edit) {
    return CustomPresets.Label_rpm[edit ? Number + 3 : Number];
}

Label& Percent(bool edit) { return CustomPresets.Label_Perc[edit ? 2 : 1]; }

}  // namespace

/// A line of both panels.
struct PresetsWindow::Line {
    std::array<int, 2> label;  // its CUPLabel in the add and in the edit panel
    std::variant<TextBox PresetPanel::*, PickList PresetPanel::*, Tyre> control;
    std::variant<const char*, Label& (*)(bool)> unit = "";  // the same in every language, or a label
};

constexpr PresetsWindow::Line PresetsWindow::kLines[] = {
    {{3, 20}, &PresetPanel::Power, "kW"},
    {{4, 21}, &PresetPanel::PowerRPM, Rpm<1>},
    {{5, 22}, &PresetPanel::Torque, "Nm"},
    {{6, 23}, &PresetPanel::TorqueRPM, Rpm<2>},
    {{35, 36}, &PresetPanel::IdleRPM, Rpm<3>},
    {{7, 24}, &PresetPanel::Drivetrain},
    {{8, 25}, &PresetPanel::Gears},
    {{9, 26}, &PresetPanel::Mass, "kg"},
    {{10, 27}, &PresetPanel::UnsprungMass, "kg"},
    {{11, 28}, &PresetPanel::Dist, Percent},
    {{12, 29}, &PresetPanel::Cx},
    {{13, 30}, Tyre{&PresetPanel::FTyreWidth, &PresetPanel::FTyreProfile, &PresetPanel::FWheelSize}},
    {{14, 31}, &PresetPanel::FTrack, "m"},
    {{15, 32}, Tyre{&PresetPanel::RTyreWidth, &PresetPanel::RTyreProfile, &PresetPanel::RWheelSize}},
    {{16, 33}, &PresetPanel::RTrack, "m"},
    {{17, 34}, &PresetPanel::Wheelbase, "m"},
};

PresetsWindow::PresetsWindow(Binding& binding, QWidget* parent) : SecondaryWindow(binding, CustomPresets, parent) {
    auto* const grid = new QGridLayout(Body());
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(kSection);
    grid->addWidget(MakeWords(binding, CustomPresets.CUPLabel[0], Body()), 0, 0, 1, 2);
    grid->addWidget(MakeAddPanel(), 1, 0);
    grid->addWidget(MakeEditPanel(), 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    AddButtons({&CustomPresets.LoadUnitConv}, {&CustomPresets.CloseCustom});
    Complete();
}

QGroupBox* PresetsWindow::MakeAddPanel() {
    auto& form = CustomPresets;
    QGroupBox* const group = MakeGroup(Fields(), form.Frame_Add, Body());
    QGridLayout* const grid = MakeRows(group);
    grid->addWidget(MakeWords(Fields(), form.CUPLabel[1], group), kNameRow, 0);
    grid->addWidget(Make<QLineEdit>(form.NewName, group, &form.CUPLabel[1]), kNameRow, 1);
    grid->addWidget(MakeWords(Fields(), form.CUPLabel[2], group), kSecondRow, 0);
    grid->addWidget(MakeList(form.NewCar, group, form.CUPLabel[2]), kSecondRow, 1);
    AddLines(*grid, form.New, kAdd);
    FinishPanel(*grid, form.AddCar, form.CP_Load);
    // These come from the base car or a file and are never shown; they take no place.
    for (TextBox* hidden : {&form.NewDrivetrainEff, &form.NewFrontalArea}) Make<QLineEdit>(*hidden, group);
    return group;
}

QGroupBox* PresetsWindow::MakeEditPanel() {
    auto& form = CustomPresets;
    QGroupBox* const group = MakeGroup(Fields(), form.Frame_Edit, Body());
    QGridLayout* const grid = MakeRows(group);
    grid->addWidget(MakeWords(Fields(), form.CUPLabel[19], group), kNameRow, 0);
    grid->addWidget(MakeList(form.EditName, group, form.CUPLabel[19]), kNameRow, 1);
    grid->addWidget(MakeWords(Fields(), form.CUPLabel[18], group), kSecondRow, 0);
    grid->addWidget(MakeWords(Fields(), form.PresetsUsed, group), kSecondRow, 1);
    AddLines(*grid, form.Edit, kEdit);
    FinishPanel(*grid, form.EditUpdate, form.CP_Save);
    // Without a preset there is nothing to edit.
    Fields().OnChanged(form.EditName, [group] { group->setEnabled(!CustomPresets.EditName.Rows().empty()); });
    Fields().OnChanged(form.PresetsUsed, [group] { group->setEnabled(!CustomPresets.EditName.Rows().empty()); });
    return group;
}

void PresetsWindow::AddLines(QGridLayout& grid, PresetPanel& panel, Side side) {
    QWidget* const group = grid.parentWidget();
    for (const Line& line : kLines) {
        const int row = NextRow(grid);
        grid.addWidget(MakeWords(Fields(), CustomPresets.CUPLabel[line.label[side]], group), row, 0);
        grid.addWidget(MakeControl(line, group, panel, side), row, 1);
    }
    grid.setColumnStretch(1, 1);
}

QWidget* PresetsWindow::MakeControl(const Line& line, QWidget* group, PresetPanel& panel, Side side) {
    const Label& caption = CustomPresets.CUPLabel[line.label[side]];
    if (const auto* const tyre = std::get_if<Tyre>(&line.control)) return MakeTyre(*tyre, group, panel, caption);
    if (const auto* const list = std::get_if<PickList PresetPanel::*>(&line.control)) {
        return MakeList(panel.*(*list), group, caption);
    }
    return MakeNumber(line, group, panel.*std::get<TextBox PresetPanel::*>(line.control), side);
}

QWidget* PresetsWindow::MakeNumber(const Line& line, QWidget* group, TextBox& field, Side side) {
    auto* const box = new QWidget(group);
    auto* const row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(MakeNumberBox(field, box, CustomPresets.CUPLabel[line.label[side]], kNumberCharacters));
    if (const auto* const fixed = std::get_if<const char*>(&line.unit)) {
        row->addWidget(new QLabel(ToQt(*fixed), box));
    } else {
        row->addWidget(MakeWords(Fields(), std::get<Label& (*)(bool)>(line.unit)(side == kEdit), box));
    }
    row->addStretch();
    return box;
}

QWidget* PresetsWindow::MakeTyre(const Tyre& tyre, QWidget* group, PresetPanel& panel, const Label& caption) {
    auto* const boxes = new QWidget(group);
    auto* const row = new QHBoxLayout(boxes);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    const auto add = [&](TextBox PresetPanel::*field, int characters, const QString& unit) {
        row->addWidget(MakeNumberBox(panel.*field, boxes, caption, characters));
        row->addWidget(new QLabel(unit, boxes));
    };
    add(tyre.width, 4, QStringLiteral("mm /"));
    add(tyre.profile, 3, QStringLiteral("% R"));
    add(tyre.rim, 3, QStringLiteral("in"));
    row->addStretch();

    // Where a car has no rear tyres of its own, their units go with the boxes, and the lines below stay in their place.
    QSizePolicy policy = boxes->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    boxes->setSizePolicy(policy);
    const TextBox& width = panel.*tyre.width;
    Fields().OnChanged(width, [boxes, &width] { boxes->setVisible(width.Visible()); });
    return boxes;
}

void PresetsWindow::FinishPanel(QGridLayout& grid, Button& first, Button& second) {
    QWidget* const group = grid.parentWidget();
    const int lineHeight = QComboBox().sizeHint().height();  // whatever stands in the line, so that the panels align
    const int lines = NextRow(grid);
    for (int line = 0; line < lines; ++line) grid.setRowMinimumHeight(line, lineHeight);
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(0, kGap, 0, 0);
    row->setSpacing(kGap);
    row->addStretch();
    row->addWidget(MakeButton(first, group));
    row->addWidget(MakeButton(second, group));
    grid.addLayout(row, lines, 0, 1, 2);
}

}  // namespace zolv
