#pragma once

#include <QMainWindow>

#include "desktop/binding.h"

namespace zolv {

/// The main window: the car above, the four pages behind their tabs, the menu.
class MainWindow : public QMainWindow {
public:
    explicit MainWindow(Binding& binding, QWidget* parent = nullptr);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void MakeMenus();
    void AddAbout();
    QWidget* MakeHead();
    QWidget* MakePages();

    Binding& binding_;
};

}  // namespace zolv
