#pragma once

#include <QString>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/binding.h"
#include "desktop/value_label.h"
#include "units/unit_state.h"

class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QWidget;

/// What the pages are put together from. Each part is made, bound and placed in one call; its parent is the widget that
/// its layout belongs to, so that a layout must have been set on its widget before parts are added to it. (A widget
/// without a parent would show up as a window of its own as soon as it is bound.)
namespace zolv {

/// Texts of one column: a figure, and the widest texts that it can hold in any unit. See ValueLabel::ReserveFor.
using WidestOf = std::vector<QString>;

/// The text of a base value in each unit of a quantity: `WidestTexts(&UnitState::Speed, 188.8)`.
/// @param base  one as wide as the field ever gets, sign included; kW/kg for power to weight
WidestOf WidestTexts(Quantity UnitState::*kind, double base);

/// Two values of a quantity in one text, `between` in the middle, in each of its units.
WidestOf WidestTexts(Quantity UnitState::*kind, double first, const QString& between, double second);

/// Words, bound to their field.
QLabel* MakeWords(Binding& binding, Label& field, QWidget* parent);

/// Words in bold, for the title of a column or a drawing.
QLabel* MakeTitle(Binding& binding, Label& field, QWidget* parent);

/// Lets a label in a narrow column break between its words.
/// @param field  the one that it is bound to
void BreakBetweenWords(Binding& binding, const Label& field, QLabel& label);

/// The title of a narrow column, in bold.
QLabel* MakeColumnTitle(Binding& binding, Label& field, QWidget* parent);

/// A figure, right-aligned, with room for `widest` and for its change.
ValueLabel* MakeFigure(Binding& binding, Label& field, QWidget* parent, const WidestOf& widest = {},
                       ChangePlace change = ChangePlace::Beside);

/// Shows in `label` by how much one text of a figure differs from the held one.
void ShowChange(ValueLabel& label, const Label& field, std::string_view present, std::string_view held);

/// While `field` has the colour of a state, tells why: in the widget's tool tip and to a screen reader.
/// @param widget  the one that the field is bound to
void ExplainMark(Binding& binding, const Field& field, QWidget& widget, std::function<std::string()> reason);

/// A bold caption over a thin rule, and below it the fields of a panel.
QGroupBox* MakeGroup(Binding& binding, Panel& field, QWidget* parent);

/// Sets a group's margins on its layout.
void SetGroupMargins(QLayout& layout);

/// A group's grid of rows, to be filled with the calls below. Rows are close together, as in a table, and stay at the
/// top of a group that is higher than they are.
QGridLayout* MakeRows(QWidget* owner);

/// A name and its figure.
struct FigureRow {
    Label& words;
    Label& figure;
    WidestOf widest = {};
};

/// Adds lines of name and figure below what `grid` holds: names in column 0, which takes the room, figures in column 1
/// at the right edge.
void AddFigureRows(Binding& binding, QGridLayout& grid, const std::vector<FigureRow>& rows);

/// A name, a slider and the value that it stands for.
struct SliderRow {
    Label& words;
    Slider& slider;
    Label& value;
    WidestOf widest = {};
};

/// Adds a line of name, slider and value below what `grid` holds, in columns 0 to 2; the slider takes the room.
void AddSliderRow(Binding& binding, QGridLayout& grid, const SliderRow& row);

/// The same at a place of the caller's choice: name, slider and value in row `line` from `column` on.
QSlider* PlaceSliderRow(Binding& binding, QGridLayout& grid, int line, int column, const SliderRow& row);

/// The same for a slider of the air's speed. While the forces are those at the top speed, it shows that one.
void AddAirSpeedRow(Binding& binding, QGridLayout& grid, int line, int column, const SliderRow& row);

/// The row below the last one that `grid` uses; 0 in an empty grid, which Qt counts as one row.
int NextRow(const QGridLayout& grid);

}  // namespace zolv
