#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zolv {

/// The one of `names` that takes the fewest changed, added or dropped characters to become `name`; upper and lower case
/// count as half a change. The first of several; empty for no names.
std::string NearestName(std::string_view name, const std::vector<std::string>& names);

}  // namespace zolv
