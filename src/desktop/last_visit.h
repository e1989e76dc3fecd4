#pragma once

#include <QSettings>

namespace zolv {

class Desktop;
class WindowDialogs;

/// What comes back at the next start: the main window's size and place, the page and the graph in front, the files
/// opened last, and the folders of the file dialogs. It is kept in the user's own settings, apart from the program's
/// files. Of what is broken, or is not of this program, nothing comes back.
class LastVisit {
public:
    /// @param file  where it is kept
    LastVisit(const QString& file, Desktop& desktop, WindowDialogs& dialogs);

    /// The user's own file.
    static QString UsersFile();

    /// Behind the load, before the windows open.
    void BringBack();

    /// Before the windows close. What cannot be written is forgotten; options that have changed and not been saved go
    /// into their own file, as by their button.
    void Keep();

private:
    QSettings settings_;
    Desktop& desktop_;
    WindowDialogs& dialogs_;
};

}  // namespace zolv
