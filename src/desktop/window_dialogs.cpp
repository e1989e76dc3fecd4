#include "desktop/window_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

#include "desktop/texts_of_qt.h"

namespace zolv {
namespace {

constexpr const char* kProgram = "Tarmaq Zolv";

QWidget* Above(QWidget* parent) {
    if (QWidget* const active = QApplication::activeWindow()) return active;
    return parent != nullptr && parent->isVisible() ? parent : nullptr;
}

/// "Zolv Settings File (*.zolv)" is what a file dialog's filter is written like; the pattern may be missing in a
/// language file, and comes from the preset name then.
QString FilterOf(const FileRequest& request) {
    QString filter = ToQt(request.filterLabel);
    if (!filter.contains(QLatin1Char('('))) filter += QLatin1String(" (") + ToQt(request.presetName) + QLatin1Char(')');
    return filter;
}

}  // namespace

void WindowDialogs::Message(const std::string& text) {
    QMessageBox box(QMessageBox::Information, QLatin1String(kProgram), ToQt(text), QMessageBox::Ok, Above(parent_));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

std::string WindowDialogs::AskForFile(const FileRequest& request) {
    QFileDialog dialog(Above(parent_), ToQt(request.title), QString(), FilterOf(request));
    dialog.setAcceptMode(request.forSaving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.forSaving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(ToQt(request.defaultExtension));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return request.presetName;
    return FromQt(dialog.selectedFiles().constFirst());
}

}  // namespace zolv
