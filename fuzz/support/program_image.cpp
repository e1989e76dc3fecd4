#include "support/program_image.h"

#include <algorithm>
#include <tuple>

#include "fields/guards.h"
#include "shell/wiring.h"

namespace zolv {
namespace {

/// Changed fields are asked for more than once in an execution, but a window tells each change once.
std::vector<Field*>& Changed() {
    static std::vector<Field*> changed;
    return changed;
}

void ForgetChanged() {
    for (Window* window : AllWindows()) window->TakeChanged();
    Changed().clear();
}

auto PlaceOf(const DrawingOperation& one) {
    return std::tuple(one.kind, one.colour.red, one.colour.green, one.colour.blue, one.width, one.x1, one.y1, one.x2,
                      one.y2);
}

bool SameDrawing(const Canvas& a, const Canvas& b) {
    return std::ranges::equal(a.Operations(), b.Operations(),
                              [&](const DrawingOperation& one, const DrawingOperation& other) {
                                  if (PlaceOf(one) != PlaceOf(other)) return false;
                                  return one.kind != DrawingOperation::Kind::Text || a.TextOf(one) == b.TextOf(other);
                              });
}

bool SameLook(const Look& a, const Look& b) {
    return std::tie(a.caption, a.toolTip, a.visible, a.enabled, a.colour) ==
           std::tie(b.caption, b.toolTip, b.visible, b.enabled, b.colour);
}

void PutBackList(PickList& list, const SavedField& saved) {
    list.OnClick = {};
    list.Clear();
    for (const std::string& row : saved.rows) list.Add(row);
    list.Pick(saved.picked);
    list.SetLocked(saved.locked);
}

void PutBackSlider(Slider& slider, const SavedField& saved) {
    slider.OnScroll = {};
    slider.OnChange = {};
    slider.SetRange(saved.min, saved.max);
    slider.SetValue(saved.value);
}

}  // namespace

SavedField::SavedField(const Field& field)
    : look{field.Caption(), field.ToolTip(), field.Visible(), field.Enabled(), field.Colour()} {
    switch (field.Kind()) {
        case FieldKind::TextBox: text = static_cast<const TextBox&>(field).Text(); break;
        case FieldKind::Picture: text = static_cast<const Picture&>(field).Path(); break;
        case FieldKind::Slider: {
            const auto& slider = static_cast<const Slider&>(field);
            std::tie(min, max, value) = std::tuple(slider.Min(), slider.Max(), slider.Value());
            break;
        }
        case FieldKind::PickList:
        case FieldKind::TabStrip: {
            const auto& list = static_cast<const PickList&>(field);
            std::tie(rows, picked, locked) = std::tuple(list.Rows(), list.Picked(), list.Locked());
            break;
        }
        case FieldKind::CheckBox: on = static_cast<const CheckBox&>(field).Checked(); break;
        case FieldKind::OptionButton: on = static_cast<const OptionButton&>(field).Checked(); break;
        case FieldKind::Panel: on = static_cast<const Panel&>(field).InFront(); break;
        case FieldKind::Canvas: drawing = static_cast<const CanvasField&>(field).Drawing(); break;
        default: break;
    }
}

void SavedField::PutBack(Field& field) const {
    switch (field.Kind()) {
        case FieldKind::TextBox: {
            auto& box = static_cast<TextBox&>(field);
            box.OnChange = {};
            box.SetText(text);
            box.SetCaret(0);
            break;
        }
        case FieldKind::Picture: static_cast<Picture&>(field).SetPath(text); break;
        case FieldKind::Slider: PutBackSlider(static_cast<Slider&>(field), *this); break;
        case FieldKind::PickList:
        case FieldKind::TabStrip: PutBackList(static_cast<PickList&>(field), *this); break;
        case FieldKind::CheckBox:
            static_cast<CheckBox&>(field).OnClick = {};
            static_cast<CheckBox&>(field).SetChecked(on);
            break;
        case FieldKind::OptionButton:
            static_cast<OptionButton&>(field).OnClick = {};
            if (on) static_cast<OptionButton&>(field).Choose();
            break;
        case FieldKind::Panel:
            if (on) static_cast<Panel&>(field).BringToFront();
            break;
        case FieldKind::Canvas: static_cast<CanvasField&>(field).Draw() = *drawing; break;
        default: break;
    }
    field.SetCaption(look.caption);
    field.SetToolTip(look.toolTip);
    field.SetVisible(look.visible);
    field.SetEnabled(look.enabled);
    field.SetColour(look.colour);
}

bool SavedField::operator==(const SavedField& other) const {
    if (drawing.has_value() && !SameDrawing(*drawing, *other.drawing)) return false;
    return SameLook(look, other.look) && std::tie(text, rows, picked, locked, min, max, value, on) ==
                                             std::tie(other.text, other.rows, other.picked, other.locked, other.min,
                                                      other.max, other.value, other.on);
}

std::vector<Field*> ChangedFields() {
    for (Window* window : AllWindows()) {
        const std::vector<Field*> more = window->TakeChanged();
        Changed().insert(Changed().end(), more.begin(), more.end());
    }
    std::ranges::sort(Changed());
    Changed().erase(std::unique(Changed().begin(), Changed().end()), Changed().end());
    return Changed();
}

ProgramImage::ProgramImage() {
    for (const Window* window : AllWindows()) {
        fields_.emplace(window, SavedField(*window));
        for (const Field* field : window->Fields()) fields_.emplace(field, SavedField(*field));
    }
    ForgetChanged();
}

void ProgramImage::PutBack() const {
    for (Field* field : ChangedFields()) fields_.at(field).PutBack(*field);
    ForgetChanged();
    guards = {};
    AllState() = state_;
    WireEvents();
}

std::vector<std::string> ProgramImage::Differences() const {
    std::vector<std::string> names;
    for (const Field* field : ChangedFields()) {
        if (SavedField(*field) != fields_.at(field)) names.push_back(field->Owner().Name() + '.' + field->Name());
    }
    return names;
}

}  // namespace zolv
