#include "files/missing_lines.h"

#include <algorithm>
#include <cstdint>

#include "text/lines.h"
#include "text/number_text.h"

namespace zolv {

std::string MissingLines(std::string_view text, std::string_view kind, std::size_t wanted) {
    const std::size_t lines = EndedLines(text).size();
    const auto lineFeeds = static_cast<std::size_t>(std::ranges::count(text, '\n'));
    const std::size_t lineFeedsAlone = lineFeeds - (SplitLines(text).size() - 1);
    const bool isText = text.find('\0') == std::string_view::npos;
    if (isText && lines + lineFeedsAlone >= wanted) {
        return "An editor has changed its line ends. Open it there and save it with Windows line ends";
    }
    const auto count = [](std::size_t number) { return NumberText(static_cast<std::int32_t>(number)); };
    return "Not " + std::string(kind) + " saved by Zolv, or only a part of one: it has " + count(lines) + " of " +
           count(wanted) + " lines";
}

}  // namespace zolv
