#pragma once

#include "platform/dialogs.h"

class QWidget;

namespace zolv {

/// Message boxes and file dialogs of the desktop. Several messages in a row come one after the other.
class WindowDialogs : public Dialogs {
public:
    /// The window that a dialog lies over; nullptr for none.
    void SetParent(QWidget* parent) { parent_ = parent; }

    void Message(const std::string& text) override;
    std::string AskForFile(const FileRequest& request) override;

private:
    QWidget* parent_ = nullptr;
};

}  // namespace zolv
