#pragma once

#include <string>
#include <vector>

#include "fields/field_row.h"
#include "fields/kinds.h"

namespace zolv {

/// One row of the converter: a number, its unit, and the same in the metric unit.
struct ConverterRow {
    ConverterRow(Window& owner, const std::string& quantity, std::vector<std::string> rows, const std::string& metric)
        : Caption(owner, "Label_" + quantity),
          Input(owner, quantity + "Input", {.maxLength = 5}),
          Select(owner, "Select_" + quantity + "Units", {.rows = std::move(rows)}),
          Output(owner, quantity + "Output", {.caption = "is ? " + metric}) {}

    Label Caption;
    TextBox Input;
    PickList Select;
    Label Output;
};

/// The unit converter, as a form.
class UnitConvWindow : public Window {
public:
    UnitConvWindow() : Window("UnitConv", "", false) {}

    Label UC_Title{*this, "UC_Title"};
    FieldArray<Panel, 2> ConvertFrame{*this, "ConvertFrame"};
    ConverterRow Distance{*this, "Distance", {"cm", "mm", "in", "ft"}, "m"};
    ConverterRow Mass{*this, "Mass", {"t", "lb", "Slug", "Tons (Short)", "Tons (Long)"}, "kg"};
    ConverterRow Power{*this, "Power", {"ps", "hp", "ft lbf/s"}, "kW"};
    ConverterRow Torque{*this, "Torque", {"kgfm", "lbf ft", "lbf in"}, "Nm"};
    TextBox TyreWidthInput{*this, "TyreWidthInput", {.text = "205", .maxLength = 4}};
    Label InputSlash{*this, "InputSlash", {.caption = "/"}};
    TextBox TyreHeightInput{*this, "TyreHeightInput", {.text = "585", .maxLength = 4}};
    Label InputR{*this, "InputR", {.caption = "R"}};
    TextBox RimSizeInput{*this, "RimSizeInput", {.text = "380", .maxLength = 4}};
    Label TyreOutput{*this, "TyreOutput"};
    Button CloseConv{*this, "CloseConv"};
};
extern UnitConvWindow UnitConv;

}  // namespace zolv
