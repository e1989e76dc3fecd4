// A language file of any content. Only a file with just as many lines as there are texts is accepted, which chance
// hardly finds; so the lines of an input can be laid over those of English as well.

#include "language/language_file.h"

#include <algorithm>

#include "language/caption_table.h"
#include "platform/text_files.h"
#include "support/fuzzed_program.h"
#include "text/lines.h"

namespace zolv {
namespace {

constexpr char kLaidOver = '@';

/// An input that begins with "@" holds lines that replace those of English; the two bytes behind tell from which on.
std::string FileFrom(std::string_view input) {
    if (input.size() < 3 || input[0] != kLaidOver) return std::string(input);
    const std::string english = BuiltInLanguage();
    std::vector<std::string_view> lines = SplitLines(english);
    const auto byte = [&](std::size_t at) { return static_cast<std::size_t>(static_cast<unsigned char>(input[at])); };
    std::size_t line = (byte(1) * 256 + byte(2)) % lines.size();
    for (const std::string_view replacement : SplitLines(input.substr(3))) {
        if (line == lines.size()) break;
        lines[line++] = replacement;
    }
    std::string file(lines[0]);
    for (std::size_t i = 1; i < lines.size(); ++i) file.append("\r\n").append(lines[i]);
    return file;
}

void Load(std::string_view input) {
    static FuzzedProgram program(FilesOfStart());
    const std::string content = FileFrom(input);
    PutFile("language_English.txt", content);
    LanguageSelection.LanguageList.SetText("English");
    if (program.Said("Language file does not") || program.Said("The language file cannot be found")) {
        program.ExpectAsStarted();
    } else {
        program.ExpectSound(content);
        Zolv.Ratios.Input[3].Enter("1.65");
        Zolv.Ratios.Input[2].Enter("1.2");  // in the wrong order: the texts of the report
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
