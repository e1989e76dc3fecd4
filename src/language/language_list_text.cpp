#include "language/language_list_text.h"

#include <cstddef>

#include "model/whole_number.h"
#include "text/lines.h"
#include "text/number_text.h"

namespace zolv {
namespace {

constexpr std::string_view kNumberKey = "Language: ";
constexpr std::string_view kLineFeed = "\n";

/// An editor of today may have left a list whose lines end in a line feed alone, all of them: a name has none in it.
std::string_view LineEndIn(std::string_view text) {
    return text.find(kLineEnd) == std::string_view::npos ? kLineFeed : kLineEnd;
}

}  // namespace

Parsed<LanguageListFile> ParseLanguageList(std::string_view text) {
    const std::string_view lineEnd = LineEndIn(text);
    const std::vector<std::string_view> lines = EndedLines(text, lineEnd);
    LanguageListFile list;
    if (!lines.empty()) {
        list.Number = ToInt16(Val(LastOf(lines[0], 2)));
        list.Names.assign(lines.begin() + 1, lines.end());
    }
    list.LastLineEnds = text.ends_with(lineEnd);
    if (list.Number == 0 && list.Names.empty()) {
        return Refusal{"Not a language list, whose lines from the second on name a language each and end in CR LF"};
    }
    return list;
}

std::string NumberToStore(const LanguageListFile& list, std::string_view chosen) {
    if (chosen.empty() && list.LastLineEnds) return NumberText(static_cast<std::int32_t>(list.Names.size() + 1));
    for (std::size_t i = list.Names.size(); i > 0; --i) {
        if (list.Names[i - 1] == chosen) return NumberText(static_cast<std::int32_t>(i));
    }
    return "";
}

std::string LanguageListText(std::string_view number, const std::vector<std::string>& names) {
    std::string text;
    text.append(kNumberKey).append(number).append(kLineEnd);
    for (const std::string& name : names) text.append(name).append(kLineEnd);
    return text;
}

}  // namespace zolv
