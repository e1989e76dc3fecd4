#include "batch/batch_run.h"

#include <algorithm>
#include <cstdlib>
#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace zolv {
namespace {

/// Has the system's shell run a command whose words are in quotes; returns its exit status, -1 where it has none.
int StatusOf(const std::string& command) {
#ifdef _WIN32
    // That shell takes the outermost quotes away. Under Wine it is now and then not there, or does not see the program,
    // and is asked again.
    constexpr int kNoShell = -1;
    constexpr int kNoProgram = 9009;
    int status = kNoShell;
    for (int attempt = 0; attempt < 3 && (status == kNoShell || status == kNoProgram); ++attempt) {
        status = std::system(('"' + command + '"').c_str());
    }
    return status;
#else
    const int result = std::system(command.c_str());
    return WIFEXITED(result) ? WEXITSTATUS(result) : -1;
#endif
}

}  // namespace

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

std::vector<std::string> BatchRun::Answers() const {
    std::vector<std::string> lines = LinesOf(output);
    for (const char* lacking : {"message: Error: Options.ini does not exist.",
                                "message: The language list does not exist - the language cannot be changed."}) {
        EXPECT_EQ(std::erase(lines, lacking), 1) << output;
    }
    std::erase(lines, "message: Unknown car picture is missing.");
    return lines;
}

BatchRun RunBatch(std::string_view input, const std::string& arguments) {
    const std::filesystem::path here = std::filesystem::current_path();  // which belongs to the run
    const TemporaryFolder streams;
    std::filesystem::current_path(here);
    const auto quoted = [&](const char* name) { return " \"" + (streams.Path() / name).string() + "\" "; };
    WriteContent((streams.Path() / "input").string(), input);
    const std::string command =
        "\"" ZOLV_BATCH "\" <" + quoted("input") + '>' + quoted("output") + "2>" + quoted("errors") + arguments;
    const int status = StatusOf(command);
    return {status, ContentOf((streams.Path() / "output").string()), ContentOf((streams.Path() / "errors").string())};
}

}  // namespace zolv
