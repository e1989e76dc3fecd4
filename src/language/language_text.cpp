#include "language/language_text.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "text/lines.h"

namespace zolv {
namespace {

/// What whoever wrote the file needs to know to mend it.
std::string Found(std::string_view text, const std::vector<std::string_view>& lines) {
    const auto lineFeeds = static_cast<std::size_t>(std::ranges::count(text, '\n'));
    if (lines.size() == 1 && lineFeeds > 0) return "Its lines end in LF alone; they must end in CR LF.";
    const std::string found =
        "It has " + std::to_string(lines.size()) + " in place of " + std::to_string(kCaptionLines);
    if (lineFeeds + 1 > lines.size()) return found + ", as some end in LF alone and not in CR LF.";
    if (lines.size() == 1 || !lines.back().empty()) return found + '.';
    return found + ", the last one empty: behind the last line stands no line end.";
}

}  // namespace

Parsed<LanguageLines> ParseLanguage(std::string_view text) {
    const std::vector<std::string_view> found = SplitLines(text);
    if (found.size() != kCaptionLines) {
        return Refusal{std::string(kWrongLineCount).append(" ").append(Found(text, found))};
    }
    LanguageLines lines;
    std::ranges::copy(found, lines.begin());
    return lines;
}

}  // namespace zolv
