#pragma once

#include <cassert>
#include <deque>
#include <string>

#include "fields/kinds.h"

namespace zolv {

/// Fields that differ by a number in their name, as one row.
///     FieldRow<TextBox, 1, 6> Gear   are Gear1 to Gear6
/// The elements are reached by that number: Gear[3].
template <class Kind, int First, int Last>
class FieldRow {
public:
    /// `design(i)` gives the design-time state of element i; without it each has the kind's own.
    template <class Design>
    FieldRow(Window& owner, const std::string& name, Design design) {
        for (int i = First; i <= Last; ++i) fields_.emplace_back(owner, name + std::to_string(i), design(i));
    }
    FieldRow(Window& owner, const std::string& name) {
        for (int i = First; i <= Last; ++i) fields_.emplace_back(owner, name + std::to_string(i));
    }

    Kind& operator[](int i) {
        assert(i >= First && i <= Last);
        return fields_[static_cast<std::size_t>(i - First)];
    }

    auto begin() { return fields_.begin(); }
    auto end() { return fields_.end(); }

private:
    std::deque<Kind> fields_;  // fields never move
};

/// A control array: fields that share a name and differ by an index, GearingLabel(0) to GearingLabel(39).
template <class Kind, int Count>
class FieldArray {
public:
    template <class Design>
    FieldArray(Window& owner, const std::string& name, Design design) {
        for (int i = 0; i < Count; ++i) fields_.emplace_back(owner, NameOf(name, i), design(i));
    }
    FieldArray(Window& owner, const std::string& name) {
        for (int i = 0; i < Count; ++i) fields_.emplace_back(owner, NameOf(name, i));
    }

    int Size() const { return Count; }

    Kind& operator[](int i) {
        assert(i >= 0 && i < Count);
        return fields_[static_cast<std::size_t>(i)];
    }

    auto begin() { return fields_.begin(); }
    auto end() { return fields_.end(); }

private:
    static std::string NameOf(const std::string& name, int i) { return name + '(' + std::to_string(i) + ')'; }

    std::deque<Kind> fields_;
};

}  // namespace zolv
