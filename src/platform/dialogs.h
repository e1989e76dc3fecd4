#pragma once

#include <string>

namespace zolv {

/// What a file dialog is asked for.
struct FileRequest {
    bool forSaving = false;
    std::string title;
    std::string filterLabel;        // "Zolv Settings File (*.zolv)"
    std::string presetName;         // "*.zolv"; also what a cancelled dialog returns
    std::string defaultExtension;   // without the point; for saving only
    std::string proposedName = {};  // for saving: a path, or a name in the folder where the last such file was; may
                                    // lack the extension, and have characters that no file name can; empty for none
};

/// Message boxes and file dialogs. The windows, the batch program and the tests each have their own.
class Dialogs {
public:
    Dialogs() = default;
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;
    virtual ~Dialogs() = default;

    /// Shows one message box and returns when it has been answered.
    virtual void Message(const std::string& text) = 0;

    /// Asks for a file name; returns the request's presetName when the user cancels.
    virtual std::string AskForFile(const FileRequest& request) = 0;

    /// Opens the manual for reading, or says where it is to be had; false where nobody could read it here.
    virtual bool ShowManual() { return false; }

    /// Shows the set-up sheet as it prints; false where there is no window for it.
    virtual bool ShowSheet() { return false; }
};

/// Makes `dialogs` the ones in use. They must outlive their use; nullptr takes them away again.
void UseDialogs(Dialogs* dialogs);

/// Through the dialogs in use. With none in use a message is dropped, a file dialog counts as cancelled, and there is
/// no manual and no sheet.
void ShowMessage(const std::string& text);
std::string AskForFile(const FileRequest& request);
bool ShowManual();
bool ShowSheet();

}  // namespace zolv
