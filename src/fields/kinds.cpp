#include "fields/kinds.h"

#include <algorithm>
#include <cassert>
#include <utility>

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
    : Field(owner, std::move(name), FieldKind::Label, std::move(design)) {}

Panel::Panel(Window& owner, std::string name, PanelState design)
    : Field(owner, std::move(name), FieldKind::Panel, design.look), design_(std::move(design)), front_(design_.front) {}

void Panel::BringToFront() {
    for (Field* field : Owner().Fields()) {
        if (field->Kind() != FieldKind::Panel) continue;
        auto& panel = static_cast<Panel&>(*field);
        if (panel.Stack() == Stack()) panel.SetFront(&panel == this);
    }
}

void Panel::SetFront(bool front) {
    if (std::exchange(front_, front) != front) MarkChanged();
}

void Panel::Reset() {
    Field::Reset();
    front_ = design_.front;
}

Button::Button(Window& owner, std::string name, Look design)
    : Field(owner, std::move(name), FieldKind::Button, std::move(design)) {}

MenuEntry::MenuEntry(Window& owner, std::string name, std::string parent, std::string shortcut)
    : Field(owner, std::move(name), FieldKind::MenuEntry, {}),
      parent_(std::move(parent)),
      shortcut_(std::move(shortcut)) {}

TextBox::TextBox(Window& owner, std::string name, TextBoxState design)
    : Field(owner, std::move(name), FieldKind::TextBox, design.look), design_(std::move(design)), text_(design_.text) {}

void TextBox::Enter(std::string_view text) {
    std::string typed(text);
    if (OnKeyPress) std::transform(typed.begin(), typed.end(), typed.begin(), OnKeyPress);
    if (MaxLength() > 0) typed.resize(BytesOf(typed, MaxLength()));
    SetText(std::move(typed));
}

void TextBox::SetText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    caret_ = 0;
    MarkChanged();
    OnChange();
}

void TextBox::SetCaret(std::size_t caret) {
    caret = std::min(caret, text_.size());
    if (std::exchange(caret_, caret) != caret) MarkChanged();
}

void TextBox::Reset() {
    Field::Reset();
    text_ = design_.text;
    caret_ = 0;
}

Slider::Slider(Window& owner, std::string name, SliderState design)
    : Field(owner, std::move(name), FieldKind::Slider, design.look),
      design_(std::move(design)),
      min_(design_.min),
      max_(design_.max),
      value_(design_.value) {}

bool Slider::Move(int value) {
    value = std::clamp(value, min_, max_);
    if (std::exchange(value_, value) == value) return false;
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
    if (min == min_ && max == max_) return;
    min_ = min;
    max_ = max;
    MarkChanged();
    SetValue(value_);
}

void Slider::Reset() {
    Field::Reset();
    min_ = design_.min;
    max_ = design_.max;
    value_ = design_.value;
}

PickList::PickList(Window& owner, std::string name, PickListState design)
    : PickList(owner, std::move(name), FieldKind::PickList, std::move(design)) {}

PickList::PickList(Window& owner, std::string name, FieldKind kind, PickListState design)
    : Field(owner, std::move(name), kind, design.look),
      design_(std::move(design)),
      rows_(design_.rows),
      picked_(design_.picked),
      locked_(design_.locked) {}

const std::string& PickList::Text() const {
    static const std::string kNone;
    return picked_ >= 0 ? rows_[static_cast<std::size_t>(picked_)] : kNone;
}

int PickList::Find(std::string_view text) const {
    const auto row = std::find(rows_.begin(), rows_.end(), text);
    return row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
}

void PickList::SetLocked(bool locked) {
    if (std::exchange(locked_, locked) != locked) MarkChanged();
}

void PickList::Pick(int row) {
    if (row < 0 || row >= static_cast<int>(rows_.size())) return;
    if (std::exchange(picked_, row) != row) MarkChanged();
    OnClick();
}

void PickList::Add(std::string row) {
    rows_.push_back(std::move(row));
    MarkChanged();
}

void PickList::SetRow(int row, std::string_view text) {
    rows_[static_cast<std::size_t>(row)] = text;
    MarkChanged();
}

void PickList::Clear() {
    rows_.clear();
    picked_ = -1;
    MarkChanged();
}

void PickList::Reset() {
    Field::Reset();
    rows_ = design_.rows;
    picked_ = design_.picked;
    locked_ = design_.locked;
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
    : Field(owner, std::move(name), FieldKind::CheckBox, design.look),
      design_(std::move(design)),
      checked_(design_.checked) {}

void CheckBox::SetChecked(bool checked) {
    if (std::exchange(checked_, checked) == checked) return;
    MarkChanged();
    OnClick();
}

void CheckBox::Reset() {
    Field::Reset();
    checked_ = design_.checked;
}

OptionButton::OptionButton(Window& owner, std::string name, CheckState design)
    : Field(owner, std::move(name), FieldKind::OptionButton, design.look),
      design_(std::move(design)),
      checked_(design_.checked) {}

void OptionButton::Choose() {
    if (checked_) return;
    for (Field* field : Owner().Fields()) {
        if (field->Kind() != FieldKind::OptionButton) continue;
        auto& button = static_cast<OptionButton&>(*field);
        if (button.Group() != Group() || !button.checked_) continue;
        button.checked_ = false;
        button.MarkChanged();
    }
    checked_ = true;
    MarkChanged();
    OnClick();
}

void OptionButton::Reset() {
    Field::Reset();
    checked_ = design_.checked;
}

Picture::Picture(Window& owner, std::string name, Look design)
    : Field(owner, std::move(name), FieldKind::Picture, std::move(design)) {}

void Picture::SetPath(std::string path) {
    if (path == path_) return;
    path_ = std::move(path);
    MarkChanged();
}

void Picture::Reset() {
    Field::Reset();
    path_.clear();
}

CanvasField::CanvasField(Window& owner, std::string name, double width, double height, Look design)
    : Field(owner, std::move(name), FieldKind::Canvas, std::move(design)), canvas_(width, height) {}

Canvas& CanvasField::Draw() {
    MarkChanged();
    return canvas_;
}

void CanvasField::Reset() {
    Field::Reset();
    canvas_ = Canvas(canvas_.Width(), canvas_.Height());
}

}  // namespace zolv
