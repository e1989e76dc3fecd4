#include "desktop/window_dialogs.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>
#include <utility>

#include "desktop/sheet_window.h"
#include "desktop/texts_of_qt.h"
#include "platform/text_files.h"
#include "text/messages.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr const char* kProgram = "Tarmaq Zolv";
constexpr const char* kManual = "Zolv Manual.pdf";
constexpr const char* kSettingsPattern = "*.zolv";

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

/// The path of a file or folder in the program's folder or, where that lacks it, among what is installed.
QString Beside(const char* name) {
    const QString own = QDir(ToQt(platform.AppPath)).filePath(QLatin1String(name));
    if (QFileInfo::exists(own) || platform.SharedPath.empty()) return own;
    return QDir(ToQt(platform.SharedPath)).filePath(QLatin1String(name));
}

QString Documents() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

/// A name as every platform can have it.
QString FileNameOf(QString name) {
    static const QRegularExpression reserved(QStringLiteral(R"([/\\:*?"<>|\x00-\x1f])"));
    return name.replace(reserved, QStringLiteral("_"));
}

/// The shipped set-ups stand at the side, among the places of the system. A dialog brings back the places of the one
/// before it, examples of another folder among them.
void OfferExamples(QFileDialog& dialog) {
    constexpr const char* kExamples = "examples";
    constexpr int kPlacesWidth = 130;
    constexpr QSize kRoomy(780, 480);
    const QString examples = Beside(kExamples);
    if (!QFileInfo(examples).isDir()) return;
    dialog.setOption(QFileDialog::DontUseNativeDialog);  // which has no place for them
    QList<QUrl> places = dialog.sidebarUrls();
    places.removeIf([](const QUrl& place) { return place.fileName() == QLatin1String(kExamples); });
    for (const QString& place : {Documents(), QFileInfo(examples).absoluteFilePath()}) {
        if (!places.contains(QUrl::fromLocalFile(place))) places << QUrl::fromLocalFile(place);
    }
    dialog.setSidebarUrls(places);
    if (auto* const side = dialog.findChild<QWidget*>(QStringLiteral("sidebar"))) side->setMinimumWidth(kPlacesWidth);
    dialog.resize(dialog.size().expandedTo(kRoomy));
}

}  // namespace

void WindowDialogs::ShowGathered() {
    gathering_ = false;
    const QStringList all = std::exchange(gathered_, {});
    const qsizetype ofFolder = apart_.value_or(all.size());
    QStringList lines{ToQt(
        words.Sentence("StartedWithout", {FromQt(QDir::toNativeSeparators(QDir::cleanPath(ToQt(platform.AppPath))))}))};
    for (const QString& message : all.first(ofFolder)) lines << QStringLiteral("\u2022 ") + message;
    if (ofFolder > 0) Message(FromQt(lines.join(QLatin1String("\n\n"))));
    for (const QString& message : all.sliced(ofFolder)) Message(FromQt(message));
}

void WindowDialogs::Message(const std::string& text) {
    const QString said = ToQt(InWords(text));
    if (gathering_) {
        gathered_ << said;
        return;
    }
    QMessageBox box(QMessageBox::Information, QLatin1String(kProgram), said, QMessageBox::Ok, Above(parent_));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void WindowDialogs::Prepare(QFileDialog& dialog, const FileRequest& request) const {
    const QString kind = ToQt(request.presetName);
    const QString last = folders_.value(kind);
    QString folder = QFileInfo(last).isDir() ? last : Documents();
    QString name = ToQt(request.proposedName);
    if (const QFileInfo path(name); path.isAbsolute()) {
        folder = path.absolutePath();
        name = path.fileName();
    }
    dialog.setWindowTitle(ToQt(request.title));
    dialog.setNameFilter(FilterOf(request));
    dialog.setAcceptMode(request.forSaving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.forSaving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(ToQt(request.defaultExtension));
    if (!request.forSaving && kind == QLatin1String(kSettingsPattern)) OfferExamples(dialog);
    dialog.setDirectory(folder);
    if (!name.isEmpty()) {
        const QString ending = u'.' + ToQt(request.defaultExtension);
        dialog.selectFile(FileNameOf(name.endsWith(ending) ? name : name + ending));
    }
}

std::string WindowDialogs::AskForFile(const FileRequest& request) {
    QFileDialog dialog(Above(parent_));
    Prepare(dialog, request);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return request.presetName;
    const QString chosen = dialog.selectedFiles().constFirst();
    folders_[ToQt(request.presetName)] = QFileInfo(chosen).absolutePath();
    return FromQt(QDir::toNativeSeparators(chosen));
}

bool WindowDialogs::ShowManual() {
    QString manual = Beside(kManual);
    if (!QFileInfo::exists(manual)) {
        manual = QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(kManual));
    }
    if (!QFileInfo::exists(manual)) {
        Message(words.Sentence("ManualMissing", {FromQt(QDir::toNativeSeparators(Beside(kManual)))}));
    } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(manual).absoluteFilePath()))) {
        Message(words.Sentence("ManualUnreadable", {FromQt(QDir::toNativeSeparators(manual))}));
    }
    return true;
}

bool WindowDialogs::ShowSheet() {
    SheetWindow(Above(parent_)).exec();
    return true;
}

}  // namespace zolv
