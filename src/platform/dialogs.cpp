#include "platform/dialogs.h"

namespace zolv {
namespace {

Dialogs* inUse = nullptr;

}  // namespace

void UseDialogs(Dialogs* dialogs) { inUse = dialogs; }

void ShowMessage(const std::string& text) {
    if (inUse != nullptr) inUse->Message(text);
}

std::string AskForFile(const FileRequest& request) {
    return inUse != nullptr ? inUse->AskForFile(request) : request.presetName;
}

bool ShowManual() { return inUse != nullptr && inUse->ShowManual(); }

bool ShowSheet() { return inUse != nullptr && inUse->ShowSheet(); }

}  // namespace zolv
