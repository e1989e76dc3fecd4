#include "fields/kinds.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "text/difference.h"

namespace zolv {
namespace {

/// The bytes that the first `characters` characters of a UTF-8 text take.
std::size_t BytesOf(std::string_view text, std::size_t characters) {
    std::size_t at = 0;
    while (at < text.size()) {
        const bool startsCharacter = (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U;
        if (startsCharacter && characters-- == 0) break;
        ++at;
    }
    return at;
}

}  // namespace

Label::Label(Window& owner, std::string name, Look design)
    : FieldWith(owner, std::move(name), FieldKind::Label, {.look = std::move(design)}) {}

void Label::Write(Showing which, std::string_view text) {
    if (which == Showing::Present) {
        SetCaption(text);
    } else if (state_.held != text) {
        state_.held = text;
        MarkChanged();
    }
}

std::string Label::Change() const { return DifferenceText(Caption(), state_.held); }

Panel::Panel(Window& owner, std::string name, PanelState design)
    : FieldWith(owner, std::move(name), FieldKind::Panel, std::move(design)) {}

void Panel::BringToFront() {
    for (Field* field : Owner().Fields()) {
        if (field->Kind() != FieldKind::Panel) continue;
        auto& panel = static_cast<Panel&>(*field);
        if (panel.Stack() == Stack()) panel.SetFront(&panel == this);
    }
}

void Panel::SetFront(bool front) {
    if (std::exchange(state_.front, front) != front) MarkChanged();
}

Button::Button(Window& owner, std::string name, Look design)
    : Field(owner, std::move(name), FieldKind::Button, std::move(design)) {}

MenuEntry::MenuEntry(Window& owner, std::string name, std::string parent, std::string shortcut, Look design)
    : Field(owner, std::move(name), FieldKind::MenuEntry, std::move(design)),
      parent_(std::move(parent)),
      shortcut_(std::move(shortcut)) {}

TextBox::TextBox(Window& owner, std::string name, TextBoxState design)
    : FieldWith(owner, std::move(name), FieldKind::TextBox, std::move(design)) {}

void TextBox::Enter(std::string_view text) {
    std::string typed(text);
    if (OnKeyPress) std::transform(typed.begin(), typed.end(), typed.begin(), OnKeyPress);
    if (MaxLength() > 0) typed.resize(BytesOf(typed, MaxLength()));
    SetText(std::move(typed));
}

void TextBox::SetText(std::string text) {
    if (text == state_.text) return;
    state_.text = std::move(text);
    state_.caret = 0;
    MarkChanged();
    OnChange();
}

void TextBox::SetCaret(std::size_t caret) {
    caret = std::min(caret, state_.text.size());
    if (std::exchange(state_.caret, caret) != caret) MarkChanged();
}

Slider::Slider(Window& owner, std::string name, SliderState design)
    : FieldWith(owner, std::move(name), FieldKind::Slider, std::move(design)) {}

bool Slider::Move(int value) {
    value = std::clamp(value, state_.min, state_.max);
    if (std::exchange(state_.value, value) == value) return false;
    MarkChanged();
    return true;
}

void Slider::Drag(int value) {
    if (!Move(value)) return;
    OnScroll();
    OnChange();
}

void Slider::SetValue(int value) {
    if (Move(value)) OnChange();
}

void Slider::SetRange(int min, int max) {
    assert(min <= max);
    if (min == state_.min && max == state_.max) return;
    state_.min = min;
    state_.max = max;
    MarkChanged();
    SetValue(state_.value);
}

PickList::PickList(Window& owner, std::string name, PickListState design)
    : PickList(owner, std::move(name), FieldKind::PickList, std::move(design)) {}

PickList::PickList(Window& owner, std::string name, FieldKind kind, PickListState design)
    : FieldWith(owner, std::move(name), kind, std::move(design)) {}

const std::string& PickList::Text() const {
    static const std::string kNone;
    return state_.picked >= 0 ? state_.rows[static_cast<std::size_t>(state_.picked)] : kNone;
}

int PickList::Find(std::string_view text) const {
    const auto row = std::find(state_.rows.begin(), state_.rows.end(), text);
    return row == state_.rows.end() ? -1 : static_cast<int>(row - state_.rows.begin());
}

void PickList::SetLocked(bool locked) {
    if (std::exchange(state_.locked, locked) != locked) MarkChanged();
}

void PickList::Pick(int row) {
    if (row < 0 || row >= static_cast<int>(state_.rows.size())) return;
    if (std::exchange(state_.picked, row) != row) MarkChanged();
    OnClick();
}

void PickList::Add(std::string row) {
    state_.rows.push_back(std::move(row));
    MarkChanged();
}

void PickList::SetRow(int row, std::string_view text) {
    state_.rows[static_cast<std::size_t>(row)] = text;
    MarkChanged();
}

void PickList::Clear() {
    state_.rows.clear();
    state_.picked = -1;
    MarkChanged();
}

TabStrip::TabStrip(Window& owner, std::string name, std::size_t tabs)
    : PickList(owner, std::move(name), FieldKind::TabStrip, {.rows = std::vector<std::string>(tabs), .picked = 0}),
      toolTips_(tabs) {}

void TabStrip::SetToolTipOf(int tab, std::string_view toolTip) {
    toolTips_[static_cast<std::size_t>(tab)] = toolTip;
    MarkChanged();
}

void TabStrip::Reset() {
    PickList::Reset();
    toolTips_.assign(toolTips_.size(), "");
}

CheckBox::CheckBox(Window& owner, std::string name, CheckState design)
    : FieldWith(owner, std::move(name), FieldKind::CheckBox, std::move(design)) {}

void CheckBox::SetChecked(bool checked) {
    if (std::exchange(state_.checked, checked) == checked) return;
    MarkChanged();
    OnClick();
}

OptionButton::OptionButton(Window& owner, std::string name, CheckState design)
    : FieldWith(owner, std::move(name), FieldKind::OptionButton, std::move(design)) {}

void OptionButton::Choose() {
    if (state_.checked) return;
    for (Field* field : Owner().Fields()) {
        if (field->Kind() != FieldKind::OptionButton) continue;
        auto& button = static_cast<OptionButton&>(*field);
        if (button.Group() != Group() || !button.state_.checked) continue;
        button.state_.checked = false;
        button.MarkChanged();
    }
    state_.checked = true;
    MarkChanged();
    OnClick();
}

Picture::Picture(Window& owner, std::string name, Look design)
    : FieldWith(owner, std::move(name), FieldKind::Picture, {.look = std::move(design)}) {}

void Picture::SetPath(std::string path) {
    if (path == state_.path) return;
    state_.path = std::move(path);
    MarkChanged();
}

CanvasField::CanvasField(Window& owner, std::string name, double width, double height, Look design)
    : FieldWith(owner, std::move(name), FieldKind::Canvas, {Canvas(width, height), std::move(design)}) {}

Canvas& CanvasField::Draw() {
    MarkChanged();
    return state_.canvas;
}

}  // namespace zolv
