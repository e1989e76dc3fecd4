#pragma once

#include <string>
#include <string_view>

#include "fields/all_windows.h"

/// What a script does with one field. What cannot be done throws ScriptError.
namespace zolv {

/// The field of that name, which must exist once.
[[nodiscard]] Field& FieldNamed(std::string_view name);

/// What a user does at the control, with the whole value at once.
void SetField(Field& field, std::string_view value);

/// Presses a button, an option button or a menu entry.
void ClickField(Field& field);

/// What the control shows.
[[nodiscard]] std::string TextOf(const Field& field);

/// One property: visible, enabled, locked, colour, tooltip, caption, min, max, rows.
[[nodiscard]] std::string PropertyOf(const Field& field, std::string_view property);

/// Prints the drawing on a canvas, a line for each operation.
void PrintCanvas(std::string_view name, const CanvasField& field);

}  // namespace zolv
