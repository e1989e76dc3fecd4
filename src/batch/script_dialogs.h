#pragma once

#include <deque>
#include <string>

#include "platform/dialogs.h"

namespace zolv {

/// Dialogs for a script: a message is printed and answered at once, a file dialog takes the next answer that waits.
class ScriptDialogs : public Dialogs {
public:
    void Message(const std::string& text) override;
    std::string AskForFile(const FileRequest& request) override;

    /// The answer to the next file dialog; an empty one cancels it. Several queue up.
    void Answer(std::string path) { answers_.push_back(std::move(path)); }

private:
    std::deque<std::string> answers_;
};

}  // namespace zolv
