#include "batch/field_access.h"

#include <algorithm>
#include <vector>

#include "batch/output.h"
#include "batch/script_error.h"
#include "desk/held.h"
#include "model/whole_number.h"
#include "text/nearest_name.h"
#include "text/number_text.h"

namespace zolv {
namespace {

std::string OnOff(bool on) { return on ? "on" : "off"; }

std::string ColourText(Rgb colour) {
    return NumberText(colour.red) + ' ' + NumberText(colour.green) + ' ' + NumberText(colour.blue);
}

std::string FullName(const Field& field) {
    return field.Kind() == FieldKind::Window ? field.Name() : field.Owner().Name() + '.' + field.Name();
}

/// A value in a message, so that its blanks can be seen.
std::string Quoted(std::string_view value) { return '"' + std::string(value) + '"'; }

void ExpectUsable(const Field& field) {
    if (!field.Enabled()) throw ScriptError(field.Name() + " is disabled");
    if (field.Locked()) throw ScriptError(field.Name() + " is locked");
}

/// What OneLine makes of a text, back again: "\\n" is a line break, "\\t" a tab, "\\\\" a backslash.
std::string SeveralLines(std::string_view text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = text[i] == '\\' && i + 1 < text.size() ? text[i + 1] : '\0';
        const char meant = next == 'n' ? '\n' : next == 't' ? '\t' : next == '\\' ? '\\' : '\0';
        lines += meant != '\0' ? meant : text[i];
        if (meant != '\0') ++i;
    }
    return lines;
}

void EnterText(TextBox& box, std::string_view value) {
    if (box.MultiLine()) {
        box.Enter(SeveralLines(value));
    } else {
        box.Enter(value);
    }
}

/// Whether the whole text is one number, so that a mistyped one is told and not taken for 0.
bool IsNumber(std::string_view text) {
    const auto skip = [&](std::string_view characters) {
        const std::size_t count = std::min(text.find_first_not_of(characters), text.size());
        text.remove_prefix(count);
        return count;
    };
    constexpr std::string_view kDigits = "0123456789";
    skip(" \t");
    if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
    std::size_t digits = skip(kDigits);
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        digits += skip(kDigits);
    }
    skip(" \t");
    return digits > 0 && text.empty();
}

void DragSlider(Slider& slider, std::string_view value) {
    if (!IsNumber(value)) throw ScriptError(slider.Name() + " takes a whole number, not " + Quoted(value));
    slider.Drag(ToInt32(Val(value)));
}

void PickRow(PickList& list, std::string_view text) {
    const int row = list.Find(text);
    if (row >= 0) return list.Pick(row);
    std::string message = list.Name() + " has no row " + Quoted(text);
    if (!list.Rows().empty()) message += "; did you mean " + Quoted(NearestName(text, list.Rows())) + '?';
    throw ScriptError(message);
}

void Check(CheckBox& box, std::string_view value) {
    if (value != "on" && value != "off") throw ScriptError(box.Name() + " takes on or off, not " + Quoted(value));
    box.SetChecked(value == "on");
}

struct Property {
    const char* name;
    std::string (*text)(const Field& field);
};

const Slider& SliderOf(const Field& field) {
    if (field.Kind() != FieldKind::Slider) throw ScriptError(field.Name() + " is no slider and has no min and max");
    return static_cast<const Slider&>(field);
}

const Label& LabelOf(const Field& field) {
    if (field.Kind() != FieldKind::Label) throw ScriptError(field.Name() + " is no label and has no held and change");
    return static_cast<const Label&>(field);
}

std::string RowsOf(const Field& field) {
    if (field.Kind() != FieldKind::PickList && field.Kind() != FieldKind::TabStrip) {
        throw ScriptError(field.Name() + " is no list and has no rows");
    }
    std::string rows;
    for (const std::string& row : static_cast<const PickList&>(field).Rows()) {
        if (&row != &static_cast<const PickList&>(field).Rows().front()) rows += '\t';
        rows += row;
    }
    return rows;
}

constexpr Property kProperties[] = {
    {"visible", [](const Field& field) { return OnOff(field.Visible()); }},
    {"enabled", [](const Field& field) { return OnOff(field.Enabled()); }},
    {"locked", [](const Field& field) { return OnOff(field.Locked()); }},
    {"colour", [](const Field& field) { return field.Colour() ? ColourText(*field.Colour()) : "default"; }},
    {"tooltip", [](const Field& field) { return field.ToolTip(); }},
    {"caption", [](const Field& field) { return field.Caption(); }},
    {"min", [](const Field& field) { return NumberText(SliderOf(field).Min()); }},
    {"max", [](const Field& field) { return NumberText(SliderOf(field).Max()); }},
    {"rows", RowsOf},
    {"held", [](const Field& field) { return LabelOf(field).Held(); }},
    {"change", [](const Field& field) { return ChangeOf(LabelOf(field)); }},
};

std::string OperationText(const Canvas& canvas, const DrawingOperation& operation) {
    const std::string colour = " colour " + ColourText(operation.colour);
    const std::string start = ExactText(operation.x1) + ' ' + ExactText(operation.y1);
    const std::string end = ' ' + ExactText(operation.x2) + ' ' + ExactText(operation.y2);
    switch (operation.kind) {
        case DrawingOperation::Kind::Line:
            return "line " + start + end + " width " + NumberText(operation.width) + colour;
        case DrawingOperation::Kind::Rectangle: return "rect " + start + end + colour;
        case DrawingOperation::Kind::Circle: return "circle " + start + ' ' + ExactText(operation.x2) + colour;
        case DrawingOperation::Kind::Text: return "text " + OneLine(canvas.TextOf(operation)) + colour;
    }
    return {};
}

}  // namespace

Field& FieldNamed(std::string_view name) {
    const std::vector<Field*> found = FindFields(name);
    if (found.size() == 1) return *found.front();
    if (found.empty()) {
        throw ScriptError("unknown field " + std::string(name) + "; did you mean " + NearestFieldName(name) + '?');
    }
    std::string choice;
    for (const Field* field : found) choice += (choice.empty() ? "" : " or ") + FullName(*field);
    throw ScriptError("two windows have a field " + std::string(name) + "; write " + choice);
}

void SetField(Field& field, std::string_view value) {
    switch (field.Kind()) {
        case FieldKind::TextBox: ExpectUsable(field); return EnterText(static_cast<TextBox&>(field), value);
        case FieldKind::Slider: ExpectUsable(field); return DragSlider(static_cast<Slider&>(field), value);
        case FieldKind::PickList:
        case FieldKind::TabStrip: ExpectUsable(field); return PickRow(static_cast<PickList&>(field), value);
        case FieldKind::CheckBox: ExpectUsable(field); return Check(static_cast<CheckBox&>(field), value);
        default: throw ScriptError(field.Name() + " is nothing that a value can be set in");
    }
}

void ClickField(Field& field) {
    switch (field.Kind()) {
        case FieldKind::Button: ExpectUsable(field); return static_cast<Button&>(field).Click();
        case FieldKind::OptionButton: ExpectUsable(field); return static_cast<OptionButton&>(field).Choose();
        case FieldKind::MenuEntry: ExpectUsable(field); return static_cast<MenuEntry&>(field).Click();
        default: throw ScriptError(field.Name() + " is nothing that can be pressed");
    }
}

std::string TextOf(const Field& field) {
    switch (field.Kind()) {
        case FieldKind::TextBox: return static_cast<const TextBox&>(field).Text();
        case FieldKind::PickList:
        case FieldKind::TabStrip: return static_cast<const PickList&>(field).Text();
        case FieldKind::Slider: return NumberText(static_cast<const Slider&>(field).Value());
        case FieldKind::CheckBox: return OnOff(static_cast<const CheckBox&>(field).Checked());
        case FieldKind::OptionButton: return OnOff(static_cast<const OptionButton&>(field).Checked());
        case FieldKind::Picture: return static_cast<const Picture&>(field).Path();
        default: return field.Caption();
    }
}

std::string PropertyOf(const Field& field, std::string_view property) {
    std::vector<std::string> names;
    for (const Property& candidate : kProperties) {
        if (property == candidate.name) return candidate.text(field);
        names.emplace_back(candidate.name);
    }
    throw ScriptError("unknown property " + std::string(property) + "; did you mean " + NearestName(property, names) +
                      '?');
}

void PrintCanvas(std::string_view name, const CanvasField& field) {
    const Canvas& canvas = field.Drawing();
    PrintLine("canvas " + std::string(name) + ' ' + ExactText(canvas.Width()) + ' ' + ExactText(canvas.Height()) +
              (field.Visible() ? " shown" : " hidden"));
    for (const DrawingOperation& operation : canvas.Operations()) PrintLine(OperationText(canvas, operation));
    PrintLine("end");
}

}  // namespace zolv
