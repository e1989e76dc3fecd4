// A list of languages of any content, read and written without a program behind.

#include "language/language_list_text.h"

#include <algorithm>
#include <cstdint>

#include "support/expect.h"
#include "support/parsing.h"

namespace zolv {
namespace {

void SaveChoice(const LanguageListFile& list, const std::string& chosen) {
    const std::string number = NumberToStore(list, chosen);
    const std::string text = LanguageListText(number, list.Names);
    const Parsed<LanguageListFile> saved = ParseLanguageList(text);
    Expect(static_cast<bool>(saved), "a saved choice reads", text);
    Expect(saved->Names == list.Names && saved->LastLineEnds, "a saved choice keeps the names", text);
    if (number.size() <= 2 && !number.empty()) {
        Expect(saved->Number == std::stoi(number), "the number comes back", text);
        const auto place = static_cast<std::size_t>(saved->Number) - 1;
        Expect(place == list.Names.size() || list.Names[place] == chosen, "the number is that of the name", text);
    }
}

void Read(std::string_view content) {
    const Parsed<LanguageListFile> list = ParseLanguageList(content);
    Expect(static_cast<bool>(list) == list.Reason().empty(), "a value or a reason");
    if (!list) return;
    Expect(list->Number >= -9 && list->Number <= 99, "two characters");
    if (list->Names.empty() || !IsWrittenToo(content)) return;
    SaveChoice(*list, list->Names.front());
    SaveChoice(*list, "");
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Read({reinterpret_cast<const char*>(data), size});
    return 0;
}
