#include "text/lines.h"

#include <algorithm>

namespace zolv {

std::vector<std::string_view> SplitLines(std::string_view text, std::string_view lineEnd) {
    constexpr std::size_t kUsual = 40;  // what files of numbers have at most
    std::vector<std::string_view> lines;
    lines.reserve(kUsual);
    for (auto end = text.find(lineEnd); end != std::string_view::npos; end = text.find(lineEnd)) {
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end + lineEnd.size());
    }
    lines.push_back(text);
    return lines;
}

std::vector<std::string_view> EndedLines(std::string_view text, std::string_view lineEnd) {
    std::vector<std::string_view> lines = SplitLines(text, lineEnd);
    if (lines.back().empty()) lines.pop_back();
    return lines;
}

std::string_view From(std::string_view line, std::size_t first) { return line.substr(std::min(first, line.size())); }

std::string_view LastOf(std::string_view line, std::size_t characters) {
    return line.substr(line.size() - std::min(characters, line.size()));
}

}  // namespace zolv
