#pragma once

namespace zolv {

/// Puts the rows of all quantities into the lists of the options panel, which are empty. Nothing is picked.
/// Reads:  UnitNames of all quantities
/// Writes: the rows of OptionsPanel.Units
void FillUnitLists();

/// The long names of a quantity are in another language now: its list gets the new rows and the unit in force is picked
/// again, which runs PickUnit.
/// @param quantity  place in UnitCatalogue()
void RebuildUnitList(int quantity);

/// A unit was picked in the list of a quantity, maybe the one in force. Ends with the quantity's follow-up in
/// unitFollowUps. The speed boxes hold input in the unit shown, so that a unit of speed also converts them, rounded to
/// one decimal. The speed sliders are widened before that and narrowed after the follow-up, so that no speed is cut on
/// its way. Does nothing during the load.
/// @param quantity  place in UnitCatalogue()
/// Reads:  OptionsPanel.Units[quantity].Select
/// Writes: the quantity in `units`, the caption beside its list; for speed also B_Speed1 to B_Speed6 and the ranges of
///         their sliders, Label_SPD1 to Label_SPD6, SpeedPlot_XUnits
void PickUnit(int quantity);

/// Pushes `units` and `options` into the options panel; each write runs the handler of its field. A check box or option
/// button is only ever moved away from its design-time state: it matches after the first time, but options that are
/// loaded later cannot move it back. The text of RC_FixedVal stays. Does nothing during the load.
void ApplyOptions();

}  // namespace zolv
