// A settings file of any content, read and written without a program behind.

#include "files/settings_text.h"

#include <cstdint>

#include "support/parsing.h"

namespace zolv {
namespace {

void Read(std::string_view content) {
    const Parsed<SettingsFile> settings = ParseSettings(content);
    Expect(static_cast<bool>(settings) == settings.Reason().empty(), "a value or a reason");
    if (!settings || !IsWrittenToo(content)) return;
    const SettingsFile again = ExpectReadsBack(*settings, ParseSettings, SettingsText);
    Expect(again.CarName == settings->CarName, "the name comes back", settings->CarName);
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Read({reinterpret_cast<const char*>(data), size});
    return 0;
}
