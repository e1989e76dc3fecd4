// zolv: the program on the desktop.

#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "desk/history.h"
#include "desktop/desktop.h"
#include "desktop/kept_set_up.h"
#include "desktop/last_visit.h"
#include "desktop/main_window.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/window_dialogs.h"
#include "platform/process.h"
#include "platform/text_files.h"
#include "shell/command_line.h"
#include "shell/fresh_start.h"
#include "shell/shell_state.h"
#include "shell/start_up.h"

namespace {

/// What Qt says while it looks for a display is advice to whoever installs it, and without one it aborts.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type != QtFatalMsg) return;
    const bool noDisplay = text.contains(QLatin1String("platform plugin"));
    std::fputs(noDisplay ? "zolv: there is no display to open a window on; zolv-batch works without one\n"
                         : qPrintable(QStringLiteral("zolv: ") + text + u'\n'),
               stderr);
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char** argv) {
    const zolv::CommandLine line = zolv::ReadCommandLine(zolv::ArgumentsOf(argc, argv));
    if (!line.answer.empty() || !line.fault.empty()) return zolv::Answer(line);
    zolv::SurviveSizeLimit();
    const QtMessageHandler usual = qInstallMessageHandler(EndWithoutDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(usual);
    QApplication::setApplicationName(QStringLiteral("zolv"));
    QApplication::setDesktopFileName(QStringLiteral("io.github.tarmaq_zolv.Zolv"));
    QApplication::setQuitOnLastWindowClosed(false);  // on a first run the main window waits behind the languages
    zolv::ApplyTheme();

    zolv::WindowDialogs dialogs;
    zolv::UseDialogs(&dialogs);
    zolv::FreshStart();
    zolv::Desktop desktop;
    zolv::LastVisit visit(zolv::LastVisit::UsersFile(), desktop, dialogs);
    zolv::KeptSetUp kept(zolv::KeptSetUp::UsersFile(), desktop.TheBinding());
    zolv::shellFollowUps.Ending = [&] {
        visit.Keep();
        kept.Keep();
        QApplication::exit();  // quit() would ask each open window
    };
    dialogs.Gather();
    zolv::EnterDataFolder();
    const QIcon icon(zolv::ToQt(zolv::DataFile("zolv.png")));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("zolv"), icon));
    zolv::LoadZolv();
    dialogs.GatherApart();
    kept.BringBack();
    visit.BringBack();
    dialogs.SetParent(&desktop.Main());
    zolv::OpenNamedFile(line);
    zolv::StartHistory();
    desktop.Open();
    QTimer::singleShot(0, [&dialogs] { dialogs.ShowGathered(); });
    const int result = QApplication::exec();
    zolv::UseDialogs(nullptr);
    return result;
}
