#pragma once

#include <string>

#include "fields/field_row.h"
#include "fields/kinds.h"

namespace zolv {

/// The figures of one preset as they are typed; the add and the edit panel have the same ones under other names.
struct PresetPanel {
    /// @param prefix  "New" or "Edit"
    /// @param typed   whether tracks and unsprung mass can be typed into
    PresetPanel(Window& owner, const std::string& prefix, bool typed)
        : Power(owner, prefix + "Power", Box(5)),
          PowerRPM(owner, prefix + "PowerRPM", Box(5)),
          Torque(owner, prefix + "Torque", Box(5)),
          TorqueRPM(owner, prefix + "TorqueRPM", Box(5)),
          IdleRPM(owner, prefix + "IdleRPM", Box(5)),
          Drivetrain(owner, prefix + "Drivetrain"),
          Gears(owner, prefix + "Gears", {.rows = {"2", "3", "4", "5", "6"}}),
          Mass(owner, prefix + "Mass", Box(6)),
          UnsprungMass(owner, prefix + "UnsprungMass", Box(3, typed)),
          Dist(owner, prefix + "Dist", Box(4)),
          Cx(owner, prefix + "Cx", Box(5)),
          FTyreWidth(owner, prefix + "FTyreWidth", Box(4)),
          FTyreProfile(owner, prefix + "FTyreProfile", Box(3)),
          FWheelSize(owner, prefix + "FWheelSize", Box(2)),
          RTyreWidth(owner, prefix + "RTyreWidth", Box(4)),
          RTyreProfile(owner, prefix + "RTyreProfile", Box(3)),
          RWheelSize(owner, prefix + "RWheelSize", Box(2)),
          FTrack(owner, prefix + "FTrack", Box(5, typed)),
          RTrack(owner, prefix + "RTrack", Box(5, typed)),
          Wheelbase(owner, prefix + "Wheelbase", Box(6)) {}

    TextBox Power, PowerRPM, Torque, TorqueRPM, IdleRPM;
    PickList Drivetrain, Gears;
    TextBox Mass, UnsprungMass;
    TextBox Dist;  // per cent, as are the two profiles
    TextBox Cx;
    TextBox FTyreWidth, FTyreProfile, FWheelSize;
    TextBox RTyreWidth, RTyreProfile, RWheelSize;
    TextBox FTrack, RTrack, Wheelbase;

private:
    static TextBoxState Box(std::size_t maxLength, bool enabled = true) {
        return {.maxLength = maxLength, .look = {.enabled = enabled}};
    }
};

/// The window that adds and edits cars of the user's own, as a form.
class CustomPresetsWindow : public Window {
public:
    CustomPresetsWindow() : Window("CustomPresets", "", false) {}

    // CUPLabel(12) and CUPLabel(29) name the drag coefficient, which no language file translates.
    FieldArray<Label, 37> CUPLabel{*this, "CUPLabel",
                                   [](int i) { return Look{.caption = i == 12 || i == 29 ? "Cd:" : ""}; }};
    FieldRow<Label, 1, 6> Label_rpm{*this, "Label_rpm"};
    FieldRow<Label, 1, 2> Label_Perc{*this, "Label_Perc"};
    Label PresetsUsed{*this, "PresetsUsed"};

    Panel Frame_Add{*this, "Frame_Add"};
    TextBox NewName{*this, "NewName", {.maxLength = 32}};
    PickList NewCar{*this, "NewCar"};
    PresetPanel New{*this, "New", false};
    TextBox NewDrivetrainEff{*this, "NewDrivetrainEff", {.maxLength = 5, .look = {.visible = false}}};  // per cent
    TextBox NewFrontalArea{*this, "NewFrontalArea", {.maxLength = 5, .look = {.visible = false}}};
    Button AddCar{*this, "AddCar"};
    Button CP_Load{*this, "CP_Load"};

    Panel Frame_Edit{*this, "Frame_Edit"};
    PickList EditName{*this, "EditName"};
    PresetPanel Edit{*this, "Edit", true};
    Button EditUpdate{*this, "EditUpdate"};
    Button CP_Save{*this, "CP_Save"};

    Button LoadUnitConv{*this, "LoadUnitConv"};
    Button CloseCustom{*this, "CloseCustom"};
};
extern CustomPresetsWindow CustomPresets;

}  // namespace zolv
