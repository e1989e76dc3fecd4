#include "text/words.h"

#include <algorithm>
#include <set>

namespace zolv {

Words words;

namespace {

constexpr bool NamesInOrder() {
    return std::is_sorted(kWordTable.begin(), kWordTable.end(),
                          [](const WordRow& a, const WordRow& b) { return a.name < b.name; });
}
static_assert(NamesInOrder(), "the rows of the table go by their names");

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r";
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

constexpr std::size_t kPlaceSize = 3;  // of "{0}"

/// The number of the value whose place the text begins with; -1 where it begins with none. Other braces are text.
int PlaceAt(std::string_view text) {
    if (text.size() < kPlaceSize || text[0] != '{' || text[2] != '}') return -1;
    return text[1] >= '0' && text[1] <= '9' ? text[1] - '0' : -1;
}

std::multiset<int> PlacesOf(std::string_view text) {
    std::multiset<int> places;
    for (; !text.empty(); text.remove_prefix(1)) {
        if (const int place = PlaceAt(text); place >= 0) places.insert(place);
    }
    return places;
}

/// Bytes that follow the first of a character; -1 for a byte that begins none.
int FollowersOf(unsigned char first) {
    if (first < 0x80) return 0;
    if (first >= 0xC2 && first < 0xE0) return 1;
    if (first >= 0xE0 && first < 0xF0) return 2;
    if (first >= 0xF0 && first < 0xF5) return 3;
    return -1;
}

bool IsUtf8(std::string_view text) {
    int wanted = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool follows = (byte & 0xC0) == 0x80;
        if (follows != (wanted > 0)) return false;
        wanted = follows ? wanted - 1 : FollowersOf(byte);
        if (wanted < 0) return false;
    }
    return wanted == 0;
}

const WordRow* FindRow(std::string_view name) {
    const auto row = std::lower_bound(kWordTable.begin(), kWordTable.end(), name,
                                      [](const WordRow& a, std::string_view b) { return a.name < b; });
    return row != kWordTable.end() && row->name == name ? &*row : nullptr;
}

}  // namespace

Words::Words() {
    for (std::size_t row = 0; row < kWordTable.size(); ++row) texts_[row] = kWordTable[row].english;
}

std::string Words::Sentence(WordName name, std::initializer_list<std::string_view> values) const {
    std::string sentence;
    std::string_view rest = (*this)[name];
    while (!rest.empty()) {
        const int place = PlaceAt(rest);
        const bool isValue = place >= 0 && place < static_cast<int>(values.size());
        sentence += isValue ? values.begin()[place] : rest.substr(0, 1);
        rest.remove_prefix(isValue ? kPlaceSize : 1);
    }
    return sentence;
}

Words Words::Read(std::string_view file) {
    Words read;
    while (!file.empty()) {
        const auto end = std::min(file.find('\n'), file.size());
        const std::string_view line = file.substr(0, end);
        file.remove_prefix(std::min(end + 1, file.size()));
        const auto equals = line.find('=');
        if (equals == std::string_view::npos || line.starts_with('#') || !IsUtf8(line)) continue;
        const WordRow* const row = FindRow(Trimmed(line.substr(0, equals)));
        const std::string_view text = Trimmed(line.substr(equals + 1));
        if (row == nullptr || text.empty() || PlacesOf(text) != PlacesOf(row->english)) continue;
        read.texts_[static_cast<std::size_t>(row - kWordTable.data())] = text;
    }
    return read;
}

std::string BuiltInWords() {
    std::string text;
    for (const WordRow& row : kWordTable) text.append(row.name).append(" = ").append(row.english).append("\n");
    return text;
}

}  // namespace zolv
