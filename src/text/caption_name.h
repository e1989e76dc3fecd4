#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zolv {

/// A caption in front of a figure as a name: "Power:" is "Power". The blank that French has in front of its colons goes
/// as well.
[[nodiscard]] inline std::string CaptionName(std::string_view caption) {
    if (caption.ends_with(':')) {
        caption.remove_suffix(1);
        for (const std::string_view blank : {" ", "\u00A0", "\u202F"}) {
            if (caption.ends_with(blank)) caption.remove_suffix(blank.size());
        }
    }
    return std::string(caption);
}

/// A caption as it reads on the screen: "&&" is one ampersand, a single "&" marks a key and is not shown.
[[nodiscard]] inline std::string WithoutKeyMark(std::string_view caption) {
    std::string shown;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size()) break;
        shown += caption[i];
    }
    return shown;
}

}  // namespace zolv
