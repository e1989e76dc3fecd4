#pragma once

#include <QMainWindow>

#include "desktop/binding.h"

namespace zolv {

class RecentFiles;

/// The main window: the car above, the four pages behind their tabs, the menu. A page for which the window is too small
/// scrolls. It opens as large as is comfortable, within its screen.
class MainWindow : public QMainWindow {
public:
    explicit MainWindow(Binding& binding, QWidget* parent = nullptr);

    RecentFiles& Recent() { return *recent_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void PlaceOnScreen();
    void MakeMenus();
    void AddAbout();
    void SwitchFullScreen();
    QWidget* MakeHead();
    QWidget* MakePages();

    Binding& binding_;
    RecentFiles* recent_ = nullptr;
};

}  // namespace zolv
