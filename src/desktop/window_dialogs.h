#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

#include "platform/dialogs.h"

class QFileDialog;
class QWidget;

namespace zolv {

/// Message boxes and file dialogs of the desktop. Several messages in a row come one after the other. File dialogs
/// begin in the folder where the last file of their kind was, the first in the user's documents.
class WindowDialogs : public Dialogs {
public:
    /// The window that a dialog lies over; nullptr for none.
    void SetParent(QWidget* parent) { parent_ = parent; }

    /// From now on messages wait; while the program starts there is no window yet for them to lie over.
    void Gather() { gathering_ = true; }

    /// What has come so far is of the program's folder; what comes now waits, too, but for a box of its own.
    void GatherApart() { apart_ = gathered_.size(); }

    /// Shows the messages that wait, those of the program's folder in one box that names it; from now on each comes at
    /// once.
    void ShowGathered();

    /// The folder of each kind of file, by its pattern, "*.zolv".
    const QMap<QString, QString>& Folders() const { return folders_; }
    void SetFolders(const QMap<QString, QString>& folders) { folders_ = folders; }

    void Message(const std::string& text) override;
    std::string AskForFile(const FileRequest& request) override;
    bool ShowManual() override;
    bool ShowSheet() override;

    /// Readies a dialog for a request: the folder, the name proposed, the shipped examples at the side.
    void Prepare(QFileDialog& dialog, const FileRequest& request) const;

private:
    QWidget* parent_ = nullptr;
    bool gathering_ = false;
    QStringList gathered_;
    std::optional<qsizetype> apart_;  // index of the first of gathered_ that is not of the folder
    QMap<QString, QString> folders_;
};

}  // namespace zolv
