// zolv-batch: the whole program behind its named fields, driven by a script in place of a mouse.

#include <fstream>
#include <iostream>
#include <string_view>
#include <vector>

#include "batch/script.h"
#include "batch/script_dialogs.h"
#include "shell/fresh_start.h"
#include "shell/start_up.h"

namespace {

constexpr int kUnusable = 2;

constexpr const char* kUsage =
    "usage: zolv-batch [--help | --version] [SCRIPT ...]\n"
    "\n"
    "Runs Tarmaq Zolv without a window, in the current directory. Each SCRIPT, or\n"
    "standard input without one, holds one command a line:\n"
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
    "  report                 prints the whole set-up for a reader\n"
    "\n"
    "A line that starts with # is a comment. A line that cannot be used ends the run\n"
    "with status 2.\n";

bool RunScripts(zolv::Script& script, const std::vector<const char*>& names) {
    if (names.empty()) return script.Run(std::cin, "-");
    for (const char* name : names) {
        std::ifstream file(name, std::ios::binary);
        // A folder opens, too, and fails only when it is read.
        if (!file || (file.peek() == std::ifstream::traits_type::eof() && !file.eof())) {
            std::cout.flush();
            std::cerr << "zolv-batch: " << name << ": cannot be read\n";
            return false;
        }
        file.clear();
        if (!script.Run(file, name)) return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    std::vector<const char*> names;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--help") {
            std::cout << kUsage;
            return 0;
        }
        if (argument == "--version") {
            std::cout << "zolv-batch 2.5.3\n";
            return 0;
        }
        if (argument.size() > 1 && argument.front() == '-') {
            std::cerr << "zolv-batch: unknown option " << argument << "; --help tells the ones there are\n";
            return kUnusable;
        }
        names.push_back(argv[i]);
    }

    zolv::ScriptDialogs dialogs;
    zolv::UseDialogs(&dialogs);
    zolv::FreshStart();
    zolv::LoadZolv();
    zolv::Script script(dialogs);
    const bool usable = RunScripts(script, names);
    if (usable) zolv::ShutDown();
    zolv::UseDialogs(nullptr);
    std::cout.flush();
    return usable ? 0 : kUnusable;
}
