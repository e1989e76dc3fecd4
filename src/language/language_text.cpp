#include "language/language_text.h"

#include <algorithm>
#include <vector>

#include "text/lines.h"

namespace zolv {

Parsed<LanguageLines> ParseLanguage(std::string_view text) {
    const std::vector<std::string_view> lines = SplitLines(text);
    if (lines.size() != kCaptionLines) {
        return Refusal{"Language file does not have the correct number of lines. Loading failed."};
    }
    LanguageLines parsed;
    std::ranges::copy(lines, parsed.begin());
    return parsed;
}

}  // namespace zolv
