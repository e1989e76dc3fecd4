// A script of any content, which reaches every handler of every field.

#include "batch/script.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <sstream>

#include "platform/text_files.h"
#include "support/fuzzed_program.h"

namespace zolv {
namespace {

constexpr std::size_t kMostLines = 12;  // each may run every chain of the program

/// Takes over what goes to a stream while it lives.
class Redirected {
public:
    explicit Redirected(std::ostream& stream) : stream_(stream), before_(stream.rdbuf(kept_.rdbuf())) {}
    Redirected(const Redirected&) = delete;
    Redirected& operator=(const Redirected&) = delete;
    ~Redirected() { stream_.rdbuf(before_); }

    [[nodiscard]] std::string Text() const { return kept_.str(); }

private:
    std::ostringstream kept_;
    std::ostream& stream_;
    std::streambuf* before_;
};

bool WritesFile(std::string_view line) {
    constexpr std::array<std::string_view, 2> kWriting{"picture", "write-language"};
    line.remove_prefix(std::min(line.find_first_not_of(" \t\xEF\xBB\xBF"), line.size()));
    return std::ranges::any_of(kWriting, [&](std::string_view word) { return line.starts_with(word); });
}

/// The first lines, with no way out of the current directory.
std::string TamedScript(std::string_view input) {
    std::string script;
    std::istringstream lines{std::string(input)};
    std::string line;
    for (std::size_t count = 0; count < kMostLines && std::getline(lines, line); ++count) {
        script += WritesFile(line) ? Confined(line) : line;
        script += '\n';
    }
    return script;
}

void Run(std::string_view input) {
    static FuzzedProgram program(FilesOfStart());
    std::istringstream lines(TamedScript(input));
    std::string printed;
    {
        const Redirected output(std::cout);
        const Redirected errors(std::cerr);
        Script(program.Dialog()).Run(lines, "-");
        printed = output.Text() + errors.Text();
    }
    program.ExpectSound(input);
    program.PutBack();
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Run({reinterpret_cast<const char*>(data), size});
    return 0;
}
