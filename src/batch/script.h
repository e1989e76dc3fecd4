#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "batch/script_dialogs.h"

namespace zolv {

/// Carries out a script, one command a line: what a user does at the fields, and questions about what they show.
class Script {
public:
    explicit Script(ScriptDialogs& dialogs) : dialogs_(dialogs) {}

    /// Runs the lines of `input` until they or the program end.
    /// @param name  of the script, for the report of a line that cannot be used
    /// @return whether every line could be used; if not, one line on standard error says which could not and why
    bool Run(std::istream& input, const std::string& name);

private:
    void RunLine(std::string_view line);

    ScriptDialogs& dialogs_;
};

}  // namespace zolv
