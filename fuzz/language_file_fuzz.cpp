// A language file of any content, read without a program behind.

#include "language/language_text.h"

#include <cstdint>

#include "support/expect.h"
#include "support/language_input.h"
#include "text/lines.h"

namespace zolv {
namespace {

void Read(std::string_view input) {
    const std::string content = LanguageFileFrom(input);
    const Parsed<LanguageLines> lines = ParseLanguage(content);
    Expect(static_cast<bool>(lines) == lines.Reason().empty(), "a value or a reason");
    if (!lines) return;
    const char* at = content.data();
    for (const std::string_view line : *lines) {
        Expect(line.data() == at, "the lines are the text, without its line ends");
        Expect(line.find(kLineEnd) == std::string_view::npos, "one line", line);
        at += line.size() + kLineEnd.size();
    }
    Expect(at == content.data() + content.size() + kLineEnd.size(), "the whole text");
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Read({reinterpret_cast<const char*>(data), size});
    return 0;
}
