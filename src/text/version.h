#pragma once

#include <string>
#include <string_view>

namespace zolv {

/// The version of the program, "1.2.3". CMakeLists.txt alone has it; scripts/check-version finds a second one.
[[nodiscard]] std::string_view Version();

/// The text with the version in place of each "{version}", as words write it.
[[nodiscard]] std::string WithVersion(std::string_view text);

}  // namespace zolv
