// A language list of any content, with English and one file that is none beside it.

#include "language/language_list.h"

#include "platform/text_files.h"
#include "support/expect.h"
#include "support/fuzzed_program.h"
#include "text/lines.h"

namespace zolv {
namespace {

constexpr const char* kFile = "languages.lst";

std::map<std::string, std::string> Files() {
    std::map<std::string, std::string> contents = FilesOfStart();
    contents["language_A.txt"] = "no language\r\n";
    return contents;
}

/// The names behind line 0, which alone a saved choice changes.
std::vector<std::string> NamesIn(const std::string& list) {
    const std::vector<std::string_view> lines = EndedLines(list);
    return {lines.begin() + 1, lines.end()};
}

void Load(std::string_view content) {
    static FuzzedProgram program(Files());
    PutFile(kFile, content);
    LoadLanguageList();
    const bool refused = program.Said("Cannot read") || program.Said("The language list does not exist");
    if (refused) program.ExpectAsStarted({"LanguageSelection.LanguageSelection"});
    program.ExpectSound(content);
    SaveLanguageChoice();
    const std::string saved = FileContent(kFile);
    if (refused) {
        Expect(saved == content, "a refused list stays", saved);
    } else {
        const std::vector<std::string>& rows = LanguageSelection.LanguageList.Rows();
        Expect(NamesIn(saved) == rows, "a saved choice keeps the names", saved);
        LoadLanguageList();
        Expect(LanguageSelection.LanguageList.Rows() == NamesIn(saved), "the saved list loads", saved);
        program.ExpectSound(content);
    }
    program.PutBack();
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Load({reinterpret_cast<const char*>(data), size});
    return 0;
}
