#include "fields/field.h"

#include <cassert>
#include <utility>

namespace zolv {

Field::Field(Window& owner, std::string name, FieldKind kind, Look design)
    : owner_(&owner), name_(std::move(name)), kind_(kind), design_(design), look_(std::move(design)) {
    if (kind != FieldKind::Window) owner.Register(*this);
}

void Field::MarkChanged() {
    if (changed_) return;
    changed_ = true;
    owner_->NoteChanged(*this);
}

void Field::SetCaption(std::string_view caption) {
    if (look_.caption == caption) return;
    look_.caption = caption;
    MarkChanged();
}

void Field::SetToolTip(std::string_view toolTip) {
    if (look_.toolTip == toolTip) return;
    look_.toolTip = toolTip;
    MarkChanged();
}

void Field::SetVisible(bool visible) {
    if (std::exchange(look_.visible, visible) != visible) MarkChanged();
}

void Field::SetEnabled(bool enabled) {
    if (std::exchange(look_.enabled, enabled) != enabled) MarkChanged();
}

void Field::SetColour(std::optional<Rgb> colour) {
    if (std::exchange(look_.colour, colour) != colour) MarkChanged();
}

void Field::Reset() {
    look_ = design_;
    MarkChanged();
}

Window::Window(std::string name, std::string title, bool visible)
    : Field(*this, std::move(name), FieldKind::Window, {.caption = std::move(title), .visible = visible}) {}

void Window::Register(Field& field) {
    fields_.push_back(&field);
    [[maybe_unused]] const bool isNew = byName_.emplace(field.Name(), &field).second;
    assert(isNew && "two fields of one window have the same name");
}

Field* Window::Find(std::string_view name) const {
    const auto found = byName_.find(name);
    return found != byName_.end() ? found->second : nullptr;
}

std::vector<Field*> Window::ForgetChanged() {
    for (Field* field : changedFields_) field->changed_ = false;
    return {};
}

void Window::Reset() {
    Field::Reset();
    toFront_ = false;
    for (Field* field : fields_) field->Reset();
}

}  // namespace zolv
