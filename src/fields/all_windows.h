#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "fields/custom_presets_window.h"
#include "fields/finder_window.h"
#include "fields/language_selection_window.h"
#include "fields/options_panel_window.h"
#include "fields/sweep_window.h"
#include "fields/unit_conv_window.h"
#include "fields/zolv_window.h"

namespace zolv {

/// The seven windows.
const std::array<Window*, 7>& AllWindows();

/// All fields of a name: "Gear3", "GearingLabel(30)", "OptionsPanel", or with its window "UnitConv.Select_MassUnits".
/// Empty for an unknown name, more than one for a name that windows share.
std::vector<Field*> FindFields(std::string_view name);

/// The existing name that differs least from `name`, for a message about a mistyped one.
std::string NearestFieldName(std::string_view name);

/// Every field of every window back to its design-time state.
void ResetWindows();

}  // namespace zolv
