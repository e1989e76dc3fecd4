#include "desktop/last_visit.h"

#include <QStandardPaths>

#include "desktop/desktop.h"
#include "desktop/main_window.h"
#include "desktop/recent_files.h"
#include "desktop/screen_room.h"
#include "desktop/texts_of_qt.h"
#include "desktop/window_dialogs.h"
#include "fields/all_windows.h"
#include "files/options_file.h"
#include "platform/data_folder.h"

namespace zolv {
namespace {

const QString kPlace = QStringLiteral("Window/Place");
const QString kPage = QStringLiteral("Window/Page");
const QString kGraph = QStringLiteral("Window/Graph");
const QString kRunView = QStringLiteral("Window/RunView");
const QString kRecent = QStringLiteral("Window/RecentFiles");
const QString kFolders = QStringLiteral("Folders");

/// The row is picked if there is such a one.
void Pick(PickList& list, const QVariant& row) {
    bool isNumber = false;
    const int number = row.toInt(&isNumber);
    if (isNumber && !list.Locked()) list.Pick(number);
}

}  // namespace

LastVisit::LastVisit(const QString& file, Desktop& desktop, WindowDialogs& dialogs)
    : settings_(file, QSettings::IniFormat), desktop_(desktop), dialogs_(dialogs) {}

QString LastVisit::UsersFile() {
    // Where there is no folder for this alone, it lies with the options.
#ifdef Q_OS_WIN
    return ToQt(FindDataFolders(ThisProgram(), UserFolder()).own) + QStringLiteral("zolv.ini");
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/zolv/zolv.ini");
#endif
}

void LastVisit::BringBack() {
    MainWindow& window = desktop_.Main();
    if (window.restoreGeometry(settings_.value(kPlace).toByteArray())) {
        window.setWindowState(window.windowState() & ~(Qt::WindowFullScreen | Qt::WindowMinimized));
        if (!window.isMaximized()) KeepOnScreen(window);  // this screen may be smaller than the last one
    }
    window.Recent().SetFiles(settings_.value(kRecent).toStringList());
    window.Recent().WhenChanged([this, &window] {  // not only at the end, which a crash would not reach
        settings_.setValue(kRecent, window.Recent().Files());
        settings_.sync();
    });
    Pick(Zolv.Select_Graphs, settings_.value(kGraph));
    Pick(Zolv.Select_RunView, settings_.value(kRunView));
    Pick(Zolv.Select_Page, settings_.value(kPage));
    QMap<QString, QString> folders;
    settings_.beginGroup(kFolders);
    for (const QString& kind : settings_.childKeys())
        folders[QLatin1String("*.") + kind] = settings_.value(kind).toString();
    settings_.endGroup();
    dialogs_.SetFolders(folders);
}

void LastVisit::Keep() {
    settings_.setValue(kPlace, desktop_.Main().saveGeometry());
    settings_.setValue(kPage, Zolv.Select_Page.Picked());
    settings_.setValue(kGraph, Zolv.Select_Graphs.Picked());
    settings_.setValue(kRunView, Zolv.Select_RunView.Picked());
    settings_.beginGroup(kFolders);
    for (const auto& [kind, folder] : dialogs_.Folders().asKeyValueRange()) settings_.setValue(kind.mid(2), folder);
    settings_.endGroup();
    settings_.sync();
    if (OptionsChanged()) SaveOptions();
}

}  // namespace zolv
