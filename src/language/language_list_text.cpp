#include "language/language_list_text.h"

#include <cstddef>

#include "model/whole_number.h"
#include "text/lines.h"
#include "text/number_text.h"

namespace zolv {
namespace {

constexpr std::string_view kNumberKey = "Language: ";

}  // namespace

Parsed<LanguageListFile> ParseLanguageList(std::string_view text) {
    const std::vector<std::string_view> lines = EndedLines(text);
    LanguageListFile list;
    if (!lines.empty()) {
        list.Number = ToInt16(Val(LastOf(lines[0], 2)));
        list.Names.assign(lines.begin() + 1, lines.end());
    }
    list.LastLineEnds = text.ends_with(kLineEnd);
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
