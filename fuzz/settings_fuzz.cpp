// A settings file of any content.

#include "files/settings_file.h"

#include "support/expect.h"
#include "support/fuzzed_program.h"

namespace zolv {
namespace {

std::string SavedAs(const std::string& name) {
    files.CurrentFileName = name;
    SaveSettingsFile();
    return FileContent(name);
}

void Open(std::string_view content) {
    static FuzzedProgram program(FilesOfStart());
    PutFile("input.zolv", content);
    OpenSettingsFile("input.zolv");
    if (program.Said("Cannot read")) {
        program.ExpectAsStarted();
    } else {
        program.ExpectSound(content);
        const bool known = !files.CurrentFileName.empty();
        if (known) {
            const std::string saved = SavedAs("saved.zolv");
            OpenSettingsFile("saved.zolv");
            Expect(SavedAs("again.zolv") == saved, "a saved file opens as it was saved", saved);
            program.ExpectSound(content);
        }
    }
    program.PutBack();
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Open({reinterpret_cast<const char*>(data), size});
    return 0;
}
