#pragma once

#include <string>
#include <string_view>

namespace zolv {

/// By how much the numbers of one figure's text differ from those of another: "32.9 m/s" from "31.5 m/s" is "+1.4". It
/// is the difference of what can be read, with as many decimals. Where a figure has several numbers, those that differ,
/// in their order: "+1.5 / -1.5". Empty where nothing differs, or where the two texts have not the same count of
/// numbers, as "N/A" has none.
[[nodiscard]] std::string DifferenceText(std::string_view text, std::string_view other);

}  // namespace zolv
