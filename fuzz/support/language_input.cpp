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
    static const std::vector<std::string_view> english_lines = SplitLines(english);
    const auto byte = [&](std::size_t at) { return static_cast<std::size_t>(static_cast<unsigned char>(input[at])); };
    const std::size_t first = (byte(1) * 256 + byte(2)) % english_lines.size();
    const std::vector<std::string_view> over = SplitLines(input.substr(3));
    std::string file;
    file.reserve(english.size() + input.size());
    for (std::size_t i = 0; i < english_lines.size(); ++i) {
        if (i > 0) file += kLineEnd;
        file += i >= first && i - first < over.size() ? over[i - first] : english_lines[i];
    }
    return file;
}

}  // namespace zolv
