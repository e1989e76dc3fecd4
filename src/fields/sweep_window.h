#pragma once

#include <string>

#include "fields/kinds.h"

namespace zolv {

/// One input of a sweep: what it is, and from where to where it goes, in the unit in force.
struct SweepAxisFields {
    /// @param suffix  behind each name: "" or "2"
    SweepAxisFields(Window& owner, const std::string& suffix)
        : Caption(owner, "InputCaption" + suffix),
          Input(owner, "Input" + suffix),
          FromCaption(owner, "FromCaption" + suffix),
          From(owner, "From" + suffix, {.maxLength = 8}),
          ToCaption(owner, "ToCaption" + suffix),
          To(owner, "To" + suffix, {.maxLength = 8}),
          Unit(owner, "Unit" + suffix),
          StepsCaption(owner, "StepsCaption" + suffix),
          Steps(owner, "Steps" + suffix, {.text = "100", .maxLength = 4}) {}

    Label Caption;
    PickList Input;
    Label FromCaption;
    TextBox From;
    Label ToCaption;
    TextBox To;
    Label Unit;
    Label StepsCaption;
    TextBox Steps;  // points, both ends included
};

/// The window that shows a result over the range of one input or of two, as a form. Words come from the table of words.
class SweepWindow : public Window {
public:
    SweepWindow() : Window("Sweep", "", false) {}

    SweepAxisFields First{*this, ""};
    SweepAxisFields Second{*this, "2"};  // its list begins with a row for none
    Label ResultCaption{*this, "ResultCaption"};
    PickList Result{*this, "Result"};

    Button Start{*this, "Start"};
    Button Stop{*this, "Stop"};  // without a sweep it does nothing
    Label Progress{*this, "Progress"};
    Label Status{*this, "Status"};
    CanvasField Plot{*this, "Plot", 6000, 4500};
    TextBox Table{*this, "Table", {.locked = true, .multiLine = true}};

    // A point of the plot, in the units in force: a click there, or the best at the end of a sweep
    Label PointCaption{*this, "PointCaption"};
    TextBox Point{*this, "Point", {.maxLength = 8}};
    Label PointUnit{*this, "PointUnit"};
    Label PointCaption2{*this, "PointCaption2"};
    TextBox Point2{*this, "Point2", {.maxLength = 8}};
    Label PointUnit2{*this, "PointUnit2"};
    Label PointResult{*this, "PointResult"};
    Button TakeOver{*this, "TakeOver"};

    Button SaveCsv{*this, "SaveCsv"};
    Button SaveSvg{*this, "SaveSvg"};
    Button CloseSweep{*this, "CloseSweep"};
};
extern SweepWindow SweepPanel;

}  // namespace zolv
