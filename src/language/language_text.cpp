#include "language/language_text.h"

#include <cstddef>

#include "text/lines.h"

namespace zolv {

Parsed<LanguageLines> ParseLanguage(std::string_view text) {
    const Refusal refusal{"Language file does not have the correct number of lines. Loading failed."};
    LanguageLines lines;
    for (std::size_t i = 0; i < kCaptionLines; ++i) {
        const std::size_t end = text.find(kLineEnd);
        const bool isLast = i + 1 == kCaptionLines;
        if ((end == std::string_view::npos) != isLast) return refusal;
        lines[i] = text.substr(0, end);
        if (!isLast) text.remove_prefix(end + kLineEnd.size());
    }
    return lines;
}

}  // namespace zolv
