// zolv-batch: the whole program behind its named fields, driven by a script in place of a mouse.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "batch/script.h"
#include "batch/script_dialogs.h"
#include "platform/process.h"
#include "platform/system_text.h"
#include "platform/text_files.h"
#include "shell/fresh_start.h"
#include "shell/start_up.h"
#include "text/version.h"

namespace {

constexpr int kUnusable = 2;

constexpr const char* kUsage =
    "usage: zolv-batch [--help | --version] [SCRIPT ...]\n"
    "\n"
    "Runs Tarmaq Zolv without a window, in the current directory. Each SCRIPT, or\n"
    "standard input without one or for -, holds one command a line:\n"
    "\n"
    "  set FIELD VALUE        what a user does at that control\n"
    "  click FIELD            presses a button, an option button or a menu entry\n"
    "  get FIELD              prints what the control shows\n"
    "  get FIELD PROPERTY     visible, enabled, locked, colour, tooltip, caption,\n"
    "                         min, max or rows\n"
    "  canvas FIELD           prints the drawing on a canvas\n"
    "  picture FIELD FILE     writes the drawing on a canvas to FILE as SVG\n"
    "  answer PATH            answers the next file dialog; without PATH cancels it\n"
    "  write-language FILE    writes the built-in texts as a language file\n"
    "  write-words FILE       writes the words that no line of that file has\n"
    "  report                 prints the whole set-up for a reader\n"
    "  sheet FILE             writes the set-up sheet: .html, .csv or .txt\n"
    "\n"
    "A line that starts with # is a comment. A line that cannot be used ends the run\n"
    "with status 2.\n";

constexpr std::string_view kStandardInput = "-";

bool Fail(std::string_view message) {
    std::cout.flush();
    std::cerr << "zolv-batch: " << message << '\n';
    return false;
}

bool RunFile(zolv::Script& script, const std::string& name) {
    std::ifstream file(zolv::PathOf(name), std::ios::binary);
    if (!file) return Fail(name + ": cannot be opened");
    // A folder opens, too, and fails only when it is read; an empty script is a script.
    if (file.peek() == std::ifstream::traits_type::eof() && !file.eof()) return Fail(name + ": cannot be read");
    file.clear();
    return script.Run(file, name);
}

bool RunScripts(zolv::Script& script, const std::vector<std::string>& names) {
    return std::all_of(names.begin(), names.end(), [&](const std::string& name) {
        return name == kStandardInput ? script.Run(std::cin, name) : RunFile(script, name);
    });
}

/// The whole run, from the load to the shutdown.
bool RunZolv(const std::vector<std::string>& names) {
    zolv::ScriptDialogs dialogs;
    zolv::UseDialogs(&dialogs);
    zolv::FreshStart();
    zolv::LoadZolv();
    zolv::Script script(dialogs);
    const bool usable = RunScripts(script, names);
    if (usable) zolv::ShutDown();
    zolv::UseDialogs(nullptr);
    // On a full disk, or behind a reader that has gone, answers are lost; whoever looks at the status must learn it.
    return std::cout.flush() ? usable : Fail("standard output cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    std::cin.tie(
        nullptr);  // which would write the answer to each line by itself; a script tells when one is waited for
    zolv::SurviveSizeLimit();
    zolv::PassBytesThrough();
    std::vector<std::string> names;
    for (const std::string& argument : zolv::ArgumentsOf(argc, argv)) {
        if (argument == "--help") {
            std::cout << kUsage;
            return 0;
        }
        if (argument == "--version") {
            std::cout << "zolv-batch " << zolv::Version() << '\n';
            return 0;
        }
        if (argument != kStandardInput && argument.starts_with('-')) {
            Fail("unknown option " + argument + "; --help tells the ones there are");
            return kUnusable;
        }
        names.push_back(argument);
    }
    if (names.empty()) names.emplace_back(kStandardInput);
    return RunZolv(names) ? 0 : kUnusable;
}
