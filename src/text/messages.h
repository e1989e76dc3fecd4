#pragma once

#include <string>
#include <string_view>

namespace zolv {

/// A message or a caption that the procedures put together in English, in the words in force: "Cannot read x.zolv: Not
/// a regular file" has its words from two rows. What no row says stays as it is. Scripts are told the English.
[[nodiscard]] std::string InWords(std::string_view english);

}  // namespace zolv
