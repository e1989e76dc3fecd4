#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "fields/all_windows.h"
#include "shell/all_state.h"

namespace zolv {

/// What one field holds, whatever its kind.
struct SavedField {
    explicit SavedField(const Field& field);

    /// Puts it back, without an event: the field's hooks come loose.
    void PutBack(Field& field) const;
    bool operator==(const SavedField& other) const;

    Look look;
    std::string text;  // of a box; the path of a picture
    std::vector<std::string> rows;
    int picked = -1;
    bool locked = false;
    int min = 0, max = 0, value = 0;  // of a slider
    bool on = false;                  // checked, or on top of its stack
    std::optional<Canvas> drawing;
};

/// The whole program at one moment. A fresh start takes a hundred times as long as putting this back.
class ProgramImage {
public:
    /// Takes the image of the program as it stands.
    ProgramImage();

    /// Puts back the fields that changed since, and all state.
    void PutBack() const;

    /// The fields that differ from the image, as "Window.Field".
    [[nodiscard]] std::vector<std::string> Differences() const;

private:
    std::unordered_map<const Field*, SavedField> fields_;
    decltype(CopyOfAllState()) state_ = CopyOfAllState();
};

/// The fields of all windows that changed since the last image was taken or put back, which this does not forget.
std::vector<Field*> ChangedFields();

}  // namespace zolv
