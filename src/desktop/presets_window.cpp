#include "desktop/presets_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <variant>

#include "desktop/fading_note.h"
#include "desktop/fault_mark.h"
#include "desktop/page_parts.h"
#include "desktop/preset_list.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "fields/label_names.h"
#include "vehicle/custom_presets.h"
#include "vehicle/preset_state.h"

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
    grid->addWidget(MakeWords(binding, CustomPresets.CUPLabel[kCupAbout], Body()), 0, 0, 1, 2);
    list_ = new PresetList(binding, Body());
    grid->addWidget(list_, 1, 0);
    grid->addWidget(MakeForm(), 1, 1);
    grid->setColumnStretch(1, 1);
    AddButtons({&CustomPresets.LoadUnitConv}, {&CustomPresets.CloseCustom});
    note_ = new FadingNote(this);
    AddNote(note_);
    presetFollowUps.Stored = [this](const std::string& sentence) {
        const Side side = list_->IsOnNewOne() ? kAdd : kEdit;
        faults_[side].followed = false;
        ShowFaults(side);
        note_->Say(ToQt(sentence));
    };
    presetFollowUps.Refused = [this](const std::string&) {
        const Side side = list_->IsOnNewOne() ? kAdd : kEdit;
        faults_[side].followed = true;
        ShowFaults(side);
        ControlOf(*PresetFaults(side == kAdd).front().Where)->setFocus(Qt::OtherFocusReason);
    };
    Complete();
}

PresetsWindow::~PresetsWindow() { presetFollowUps = {}; }

/// The panel of the row picked in the list.
QStackedWidget* PresetsWindow::MakeForm() {
    auto* const form = new QStackedWidget(Body());
    for (QGroupBox* panel : {MakeAddPanel(), MakeEditPanel()}) {
        auto* const page = new QWidget(form);  // a panel shows and hides with its field
        auto* const room = new QVBoxLayout(page);
        room->setContentsMargins(0, 0, 0, 0);
        room->addWidget(panel);
        form->addWidget(page);
    }
    connect(list_, &QListWidget::currentRowChanged, form, [this, form] {
        form->setCurrentIndex(list_->IsOnNewOne() ? kAdd : kEdit);
        faults_[kEdit].followed = false;  // of another preset
        ShowFaults(kEdit);
    });
    for (const Side side : {kAdd, kEdit}) FollowFaults(side);
    return form;
}

QGroupBox* PresetsWindow::MakeAddPanel() {
    auto& form = CustomPresets;
    QGroupBox* const group = MakeGroup(Fields(), form.Frame_Add, Body());
    QGridLayout* const grid = MakeRows(group);
    grid->addWidget(MakeWords(Fields(), form.CUPLabel[kCupNewName], group), kNameRow, 0);
    grid->addWidget(Make<QLineEdit>(form.NewName, group, &form.CUPLabel[kCupNewName]), kNameRow, 1);
    AddSentence(*grid, kNameRow, kAdd, {&form.NewName});
    grid->addWidget(MakeWords(Fields(), form.CUPLabel[kCupBasedOn], group), kSecondRow, 0);
    grid->addWidget(MakeList(form.NewCar, group, form.CUPLabel[kCupBasedOn]), kSecondRow, 1);
    AddSentence(*grid, kSecondRow, kAdd, {&form.NewCar});
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
    grid->addWidget(MakeWords(Fields(), form.CUPLabel[kCupEditName], group), kNameRow, 0);
    auto* const name = new QLabel(group);
    name->setTextFormat(Qt::PlainText);
    grid->addWidget(name, kNameRow, 1);
    Fields().OnChanged(form.EditName, [name] { name->setText(ToQt(CustomPresets.EditName.Text())); });
    grid->addWidget(MakeWords(Fields(), form.CUPLabel[kCupPresetsUsed], group), kSecondRow, 0);
    grid->addWidget(MakeWords(Fields(), form.PresetsUsed, group), kSecondRow, 1);
    AddLines(*grid, form.Edit, kEdit);
    FinishPanel(*grid, form.EditUpdate, form.CP_Save);
    // Without a preset there is nothing to edit.
    Fields().OnChanged(form.EditName, [group] { group->setEnabled(!CustomPresets.EditName.Rows().empty()); });
    return group;
}

void PresetsWindow::AddLines(QGridLayout& grid, PresetPanel& panel, Side side) {
    QWidget* const group = grid.parentWidget();
    for (const Line& line : kLines) {
        const int row = NextRow(grid);
        grid.addWidget(MakeWords(Fields(), CustomPresets.CUPLabel[line.label[side]], group), row, 0);
        grid.addWidget(MakeControl(line, group, panel, side), row, 1);
        if (const auto* const tyre = std::get_if<Tyre>(&line.control)) {
            AddSentence(grid, row, side, {&(panel.*tyre->width), &(panel.*tyre->profile), &(panel.*tyre->rim)});
        } else if (const auto* const list = std::get_if<PickList PresetPanel::*>(&line.control)) {
            AddSentence(grid, row, side, {&(panel.*(*list))});
        } else {
            AddSentence(grid, row, side, {&(panel.*std::get<TextBox PresetPanel::*>(line.control))});
        }
    }
    constexpr int kSentenceWidth = 250;
    grid.setColumnMinimumWidth(2, kSentenceWidth);
    grid.setColumnStretch(2, 1);
}

/// A place behind the controls of a line for the sentence that says what is wrong with one of them.
void PresetsWindow::AddSentence(QGridLayout& grid, int row, Side side, std::initializer_list<const Field*> fields) {
    QLabel* const sentence = MakeFaultSentence(grid.parentWidget());
    sentence->setObjectName(ToQt((*fields.begin())->Name() + "Fault"));
    sentence->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    grid.addWidget(sentence, row, 2);
    for (const Field* field : fields) faults_[side].sentences[field] = sentence;
}

/// A fault goes when it is mended, and one that comes meanwhile is shown as well.
void PresetsWindow::FollowFaults(Side side) {
    for (const auto& [field, sentence] : faults_[side].sentences) {
        Fields().OnChanged(*field, [this, side] {
            if (faults_[side].followed) ShowFaults(side);
        });
    }
}

/// What nobody can type into comes from the base car: a fault there is one of the car that is not picked yet.
bool PresetsWindow::CanBeMended(const Field& field) const {
    const QWidget* const control = ControlOf(field);
    const auto* const box = qobject_cast<const QLineEdit*>(control);
    return field.Visible() && control->isEnabled() && (box == nullptr || !box->isReadOnly());
}

/// Marks what is to be mended, each control with the first thing that is wrong with it.
void PresetsWindow::ShowFaults(Side side) {
    Faults& shown = faults_[side];
    std::map<const Field*, QString> said;
    if (shown.followed) {
        for (const PresetFault& fault : PresetFaults(side == kAdd)) {
            if (CanBeMended(*fault.Where)) said.try_emplace(fault.Where, ToQt(fault.Sentence));
        }
        shown.followed = !said.empty();
    }
    for (const auto& [field, sentence] : shown.sentences) sentence->hide();
    for (const auto& [field, sentence] : shown.sentences) {
        const auto fault = said.find(field);
        MarkFault(*ControlOf(*field), fault == said.end() ? QString() : fault->second);
        if (fault == said.end() || sentence->isVisibleTo(this)) continue;
        sentence->setText(fault->second);
        sentence->show();
    }
}

QWidget* PresetsWindow::ControlOf(const Field& field) const { return findChild<QWidget*>(ToQt(field.Name())); }

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
    Fields().OnChanged(CustomPresets.CUPLabel[kCupAbout], [&grid, lines, lineHeight,
                                                           sentence = faults_[kAdd].sentences.begin()->second] {
        const int height = HeightOfFaultSentence(*sentence, ToQt(CustomPresets.CUPLabel[kCupAbout].Caption()));
        for (int line = 0; line < lines; ++line) grid.setRowMinimumHeight(line, std::max(lineHeight, height));
    });
    grid.setVerticalSpacing(2);
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(0, kGap, 0, 0);
    row->setSpacing(kGap);
    row->addStretch();
    row->addWidget(MakeButton(first, group));
    row->addWidget(MakeButton(second, group));
    grid.addLayout(row, lines, 0, 1, 3);
    grid.setRowStretch(lines + 1, 1);
}

}  // namespace zolv
