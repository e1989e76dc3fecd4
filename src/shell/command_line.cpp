#include "shell/command_line.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "files/settings_file.h"
#include "platform/data_folder.h"
#include "platform/dialogs.h"
#include "platform/process.h"
#include "platform/system_text.h"
#include "platform/text_files.h"
#include "text/version.h"

namespace zolv {
namespace {

constexpr const char* kUsage =
    "usage: zolv [FILE]\n"
    "       zolv --help | --version\n"
    "\n"
    "Opens the window of Tarmaq Zolv, and in it the set-up FILE, whose name ends in\n"
    ".zolv. zolv-batch does the same work from a script.\n";

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& words) {
    CommandLine line;
    bool onlyFiles = false;
    for (const std::string& word : words) {
        if (onlyFiles || !word.starts_with('-')) {
            if (word.empty()) return {.fault = "a FILE without a name; --help tells how it is started"};
            if (!line.file.empty()) return {.fault = "one FILE at a time; " + word + " is a second one"};
            line.file = TextOf(std::filesystem::absolute(PathOf(word)));
        } else if (word == "--help") {
            return {.answer = kUsage};
        } else if (word == "--version") {
            return {.answer = "zolv " + std::string(Version()) + "\n"};
        } else if (word == "--") {
            onlyFiles = true;
        } else {
            return {.fault = "unknown option " + word + "; --help tells the ones there are"};
        }
    }
    return line;
}

int Answer(const CommandLine& line) {
    constexpr int kUnusable = 2;
    if (line.fault.empty()) return Say(stdout, line.answer) ? 0 : kUnusable;
    Say(stderr, "zolv: " + line.fault + "\n");
    return kUnusable;
}

void EnterDataFolder() {
    const DataFolders folders = FindDataFolders(ThisProgram(), UserFolder());
    std::string reason = PrepareFolder(folders);
    if (reason.empty()) {
        std::error_code error;
        std::filesystem::current_path(PathOf(folders.own), error);
        if (error) reason = ReasonOf(error);
    }
    if (!reason.empty()) ShowMessage("The folder " + folders.own + " cannot be used: " + reason);
    platform.SharedPath = folders.shared;
}

void OpenNamedFile(const CommandLine& line) {
    if (!line.file.empty()) OpenSettingsFile(line.file);
}

}  // namespace zolv
