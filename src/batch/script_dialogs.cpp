#include "batch/script_dialogs.h"

#include "batch/output.h"

namespace zolv {

void ScriptDialogs::Message(const std::string& text) { PrintLine("message: " + OneLine(text)); }

std::string ScriptDialogs::AskForFile(const FileRequest& request) {
    if (answers_.empty()) return request.presetName;
    const std::string answer = answers_.front();
    answers_.pop_front();
    return answer.empty() ? request.presetName : answer;
}

}  // namespace zolv
