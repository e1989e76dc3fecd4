// An options file of any content, read and written without a program behind.

#include "files/options_text.h"

#include <cstdint>

#include "support/parsing.h"

namespace zolv {
namespace {

/// The reader takes the last five characters: fewer digits bring part of the key along, more are cut.
bool FixedRevsFitTheirLine(const OptionState& options) {
    return options.CustomRevs == 0 || (options.CustomRevs >= 1000 && options.CustomRevs <= 99999);
}

void Read(std::string_view content) {
    const Parsed<OptionsFile> read = ParseOptions(content);
    Expect(static_cast<bool>(read) == read.Reason().empty(), "a value or a reason");
    if (!read) return;
    for (std::size_t i = 0; i < read->Units.size(); ++i) {
        Expect(read->Units[i] >= 0 && read->Units[i] < static_cast<int>(UnitCatalogue()[i].rows.size()), "a unit");
    }
    if (!FixedRevsFitTheirLine(read->Options) || !IsWrittenToo(content)) return;
    const std::string text = OptionsText(*read);
    const Parsed<OptionsFile> again = ParseOptions(text);
    Expect(again && *again == *read, "written options read as they were", text);
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Read({reinterpret_cast<const char*>(data), size});
    return 0;
}
