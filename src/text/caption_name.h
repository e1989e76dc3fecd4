#pragma once

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

}  // namespace zolv
