#include "batch/text_table.h"

#include <algorithm>

namespace zolv {

std::size_t CharactersIn(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::vector<std::string> TextTable::Lines(std::size_t indent) const {
    constexpr std::size_t kGap = 3;
    std::vector<std::size_t> widths;
    for (const auto& row : rows_) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], CharactersIn(row[i]));
    }
    std::vector<std::string> lines;
    for (const auto& row : rows_) {
        std::string line(indent, ' ');
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string padding(widths[i] - CharactersIn(row[i]), ' ');
            if (i > 0) line.append(kGap, ' ');
            line += i == 0 || values_ == Values::Left ? row[i] + padding : padding + row[i];
        }
        line.erase(line.find_last_not_of(' ') + 1);
        lines.push_back(std::move(line));
    }
    return lines;
}

}  // namespace zolv
