// An options file of any content.

#include "files/options_file.h"

#include "support/expect.h"
#include "support/fuzzed_program.h"
#include "text/texts.h"

namespace zolv {
namespace {

constexpr const char* kFile = "Options.ini";

std::string SavedOptions() {
    SaveOptions();
    return FileContent(kFile);
}

/// The reader takes the last five characters: fewer digits bring part of the key along, more are cut.
bool FixedRevsFitTheirLine() {
    return options.CustomRevs == 0 || (options.CustomRevs >= 1000 && options.CustomRevs <= 99999);
}

void Load(std::string_view content) {
    static FuzzedProgram program(FilesOfStart());
    static const std::string start = SavedOptions();
    PutFile(kFile, content);
    LoadOptions();
    program.ExpectSound(content);
    if (program.Said("Cannot read") || program.Said(texts.TextOptionsMissing)) {
        // The options in memory are applied anew, which draws the tyre under its present load.
        program.ExpectAsStarted({"Zolv.CPS", "Zolv.SV"});
        Expect(FileContent(kFile) == content, "a refused file stays");
        Expect(SavedOptions() == start, "a refused file changes no option");
    } else if (FixedRevsFitTheirLine()) {
        const std::string saved = SavedOptions();
        LoadOptions();
        program.ExpectSound(content);
        Expect(SavedOptions() == saved, "saved options load as they were saved", saved);
    }
    program.PutBack();
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Load({reinterpret_cast<const char*>(data), size});
    return 0;
}
