#pragma once

#include "fields/field_row.h"
#include "fields/kinds.h"

namespace zolv {

/// The window that finds a gearbox, as a form. Words come from the table of words.
class FinderWindow : public Window {
public:
    FinderWindow() : Window("Finder", "", false) {}

    // What is to be made best
    Panel GoalFrame{*this, "GoalFrame"};
    Label GoalCaption{*this, "GoalCaption"};
    PickList Goal{*this, "Goal"};
    Label FromSpeedCaption{*this, "FromSpeedCaption"};
    TextBox FromSpeed{*this, "FromSpeed", {.maxLength = 8}};  // in the unit of speed in force, as all speeds here
    Label FromSpeedUnit{*this, "FromSpeedUnit"};
    Label ToSpeedCaption{*this, "ToSpeedCaption"};
    TextBox ToSpeed{*this, "ToSpeed", {.maxLength = 8}};
    Label ToSpeedUnit{*this, "ToSpeedUnit"};
    Label DistanceCaption{*this, "DistanceCaption"};
    TextBox Distance{*this, "Distance", {.text = "1000", .maxLength = 8}};  // [m]
    Label DistanceUnit{*this, "DistanceUnit", {.caption = "m"}};

    // What may be changed, and how far
    Panel FreeFrame{*this, "FreeFrame"};
    CheckBox FreeRatios{*this, "FreeRatios"};
    CheckBox FreeFinalDrive{*this, "FreeFinalDrive"};
    CheckBox FreeFrontWing{*this, "FreeFrontWing"};
    CheckBox FreeRearWing{*this, "FreeRearWing"};
    Label LowCaption{*this, "LowCaption"};
    Label HighCaption{*this, "HighCaption"};
    FieldRow<Label, 1, 6> RatioCaption{*this, "RatioCaption"};
    FieldRow<TextBox, 1, 6> LowRatio{*this, "LowRatio", [](int) { return Bound("0.5"); }};
    FieldRow<TextBox, 1, 6> HighRatio{*this, "HighRatio", [](int) { return Bound("7.5"); }};
    TextBox LowFinalDrive{*this, "LowFinalDrive", Bound("0.5")};
    TextBox HighFinalDrive{*this, "HighFinalDrive", Bound("7.5")};
    TextBox LowFrontWing{*this, "LowFrontWing", Bound("0")};
    TextBox HighFrontWing{*this, "HighFrontWing", Bound("15")};
    TextBox LowRearWing{*this, "LowRearWing", Bound("0")};
    TextBox HighRearWing{*this, "HighRearWing", Bound("30")};

    // What the set-up must come up to
    Panel WishFrame{*this, "WishFrame"};
    CheckBox WishTopSpeed{*this, "WishTopSpeed"};
    TextBox TopSpeed{*this, "TopSpeed", {.maxLength = 8}};
    Label TopSpeedUnit{*this, "TopSpeedUnit"};
    CheckBox WishDownforce{*this, "WishDownforce"};
    TextBox Downforce{*this, "Downforce", {.maxLength = 8}};  // in the unit of force in force
    Label DownforceUnit{*this, "DownforceUnit"};
    Label DownforceAt{*this, "DownforceAt"};
    TextBox DownforceSpeed{*this, "DownforceSpeed", {.maxLength = 8}};
    Label DownforceSpeedUnit{*this, "DownforceSpeedUnit"};
    CheckBox WishBalance{*this, "WishBalance"};
    Label Note{*this, "Note"};

    // The search and what it finds
    Panel ResultFrame{*this, "ResultFrame"};
    Button Start{*this, "Start"};
    Button Stop{*this, "Stop"};  // without a search it does nothing
    Label Progress{*this, "Progress"};
    Label Status{*this, "Status"};
    Label PresentCaption{*this, "PresentCaption"};
    Label Present{*this, "Present"};
    Label FoundCaption{*this, "FoundCaption"};
    Label Found{*this, "Found"};
    TextBox Table{*this, "Table", {.locked = true, .multiLine = true}};
    Button HoldOld{*this, "HoldOld"};
    Button TakeOver{*this, "TakeOver"};

    // A track
    Panel StraightsFrame{*this, "StraightsFrame"};
    Button StraightsOpen{*this, "StraightsOpen"};
    Button StraightsSave{*this, "StraightsSave"};
    TextBox Straights{*this, "Straights", {.multiLine = true}};  // the text of a `.straights` file
    Label StraightsNote{*this, "StraightsNote"};                 // how many there are, or what is wrong
    TextBox StraightTimes{*this, "StraightTimes", {.locked = true, .multiLine = true}};

    Button CloseFinder{*this, "CloseFinder"};

private:
    static TextBoxState Bound(const char* text) { return {.text = text, .maxLength = 5}; }
};
extern FinderWindow Finder;

}  // namespace zolv
