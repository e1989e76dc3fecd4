#pragma once

#include <string>
#include <string_view>

namespace zolv {

/// A text as XML and HTML hold it, in an attribute, too. Control characters have no place there, not even escaped: they
/// go, but for those of `kept`.
[[nodiscard]] std::string XmlText(std::string_view text, std::string_view kept = {});

}  // namespace zolv
