#include "batch/batch_run.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

namespace zolv {

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
    // Beside the current directory, which belongs to the run. The process is in the name, as tests run side by side.
    const std::filesystem::path streams =
        std::filesystem::temp_directory_path() / ("zolv-batch-" + std::to_string(::getpid()));
    std::filesystem::create_directory(streams);
    const auto quoted = [&](const char* name) { return " '" + (streams / name).string() + "' "; };
    WriteContent(streams / "input", input);
    const std::string command =
        "'" ZOLV_BATCH "' <" + quoted("input") + '>' + quoted("output") + "2>" + quoted("errors") + arguments;
    const int result = std::system(command.c_str());
    BatchRun run{WIFEXITED(result) ? WEXITSTATUS(result) : -1, ContentOf(streams / "output"),
                 ContentOf(streams / "errors")};
    std::filesystem::remove_all(streams);
    return run;
}

}  // namespace zolv
