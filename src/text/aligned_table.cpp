#include "text/aligned_table.h"

#include <algorithm>
#include <utility>

namespace zolv {

namespace {

/// The next character of a UTF-8 text, taken from its front; a broken one counts as its first byte.
char32_t TakeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t size = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 1;
    char32_t character = size == 1 ? first : first & (0xFFU >> (size + 1));
    text.remove_prefix(1);
    for (std::size_t i = 1; i < size && !text.empty(); ++i) {
        character = character << 6U | (static_cast<unsigned char>(text.front()) & 0x3FU);
        text.remove_prefix(1);
    }
    return character;
}

/// Characters of the East Asian scripts take two columns of a terminal.
bool IsWide(char32_t character) {
    constexpr std::pair<char32_t, char32_t> kWide[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF},  {0xAC00, 0xD7A3},
                                                       {0xF900, 0xFAFF}, {0xFE30, 0xFE4F},  {0xFF00, 0xFF60},
                                                       {0xFFE0, 0xFFE6}, {0x20000, 0x3FFFD}};
    return std::any_of(std::begin(kWide), std::end(kWide),
                       [&](const auto& range) { return character >= range.first && character <= range.second; });
}

}  // namespace

std::string Flat(std::string_view text) {
    std::string flat;
    for (const char c : text) {
        if (c != '\r') flat += c == '\n' ? ' ' : c;
    }
    return flat;
}

std::size_t ColumnsOf(std::string_view text) {
    std::size_t columns = 0;
    while (!text.empty()) columns += std::size_t{IsWide(TakeCharacter(text)) ? 2U : 1U};
    return columns;
}

void AlignedTable::Add(std::vector<std::string> row) {
    for (std::string& cell : row) cell = Flat(cell);
    rows_.push_back(std::move(row));
}

std::vector<std::string> AlignedTable::Lines(std::size_t indent) const {
    constexpr std::size_t kGap = 3;
    std::vector<std::size_t> widths;
    for (const auto& row : rows_) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], ColumnsOf(row[i]));
    }
    std::vector<std::string> lines;
    for (const auto& row : rows_) {
        std::string line(indent, ' ');
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string padding(widths[i] - ColumnsOf(row[i]), ' ');
            if (i > 0) line.append(kGap, ' ');
            line += i == 0 || values_ == Values::Left ? row[i] + padding : padding + row[i];
        }
        line.erase(line.find_last_not_of(' ') + 1);
        lines.push_back(std::move(line));
    }
    return lines;
}

}  // namespace zolv
