#include "support/language_input.h"

#include "language/caption_table.h"
#include "text/lines.h"

namespace zolv {
namespace {

constexpr char kLaidOver = '@';

}  // namespace

std::string LanguageFileFrom(std::string_view input) {
    if (input.size() < 3 || input[0] != kLaidOver) return std::string(input);
    static const std::string english = BuiltInLanguage();
    static const std::vector<std::string_view> lines = SplitLines(english);
    const auto byte = [&](std::size_t at) { return static_cast<std::size_t>(static_cast<unsigned char>(input[at])); };
    const std::size_t first = (byte(1) * 256 + byte(2)) % lines.size();
    const std::string_view over = input.substr(3);
    const std::size_t behind = first + SplitLines(over).size();
    std::string file;
    file.reserve(english.size() + input.size());
    file.append(english.data(), lines[first].data());
    file.append(over);
    if (behind < lines.size()) file.append(lines[behind].data() - kLineEnd.size(), english.data() + english.size());
    return file;
}

}  // namespace zolv
