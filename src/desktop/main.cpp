// zolv: the program on the desktop. It reads no command line of its own.

#include <QApplication>
#include <QIcon>

#include "desktop/desktop.h"
#include "desktop/main_window.h"
#include "desktop/theme.h"
#include "desktop/window_dialogs.h"
#include "platform/text_files.h"
#include "shell/fresh_start.h"
#include "shell/shell_state.h"
#include "shell/start_up.h"

int main(int argc, char** argv) {
    zolv::SurviveSizeLimit();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zolv"));
    QApplication::setDesktopFileName(QStringLiteral("zolv"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("zolv"), QIcon(QStringLiteral("zolv.png"))));
    QApplication::setQuitOnLastWindowClosed(false);  // on a first run the main window waits behind the languages
    zolv::ApplyTheme();

    zolv::WindowDialogs dialogs;
    zolv::UseDialogs(&dialogs);
    zolv::FreshStart();
    zolv::Desktop desktop;
    zolv::shellFollowUps.Ending = [] { QApplication::exit(); };  // quit() would ask each open window
    zolv::LoadZolv();
    dialogs.SetParent(&desktop.Main());
    desktop.Open();
    const int result = QApplication::exec();
    zolv::UseDialogs(nullptr);
    return result;
}
