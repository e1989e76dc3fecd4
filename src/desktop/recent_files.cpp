#include "desktop/recent_files.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>

#include "desktop/binding.h"
#include "desktop/texts_of_qt.h"
#include "files/file_state.h"
#include "files/settings_file.h"
#include "text/words.h"

namespace zolv {

constexpr qsizetype kMostFiles = 8;

RecentFiles::RecentFiles(Binding& binding, QMenu& menu, QAction& before)
    : QObject(&menu), binding_(binding), menu_(menu), before_(before) {
    menu.setToolTipsVisible(true);
    connect(&menu, &QMenu::aboutToShow, this, &RecentFiles::Fill);
    binding.AfterEachAct([this] { Note(); });
}

void RecentFiles::SetFiles(const QStringList& list) { files_ = list.mid(0, kMostFiles); }

void RecentFiles::Note() {
    const QString file = ToQt(files.CurrentFileName);
    if (file.isEmpty() || (!files_.isEmpty() && files_.front() == file)) return;
    files_.removeAll(file);
    files_.prepend(file);
    SetFiles(files_);
    if (changed_) changed_();
}

void RecentFiles::Fill() {
    qDeleteAll(entries_);
    entries_.clear();
    const auto add = [this](QAction* entry) {
        menu_.insertAction(&before_, entry);
        entries_.push_back(entry);
        return entry;
    };
    int number = 0;
    for (const QString& file : files_) {
        const QString name = QFileInfo(file).fileName().replace(u'&', QStringLiteral("&&"));
        QAction* const entry = add(new QAction(QStringLiteral("&%1  %2").arg(++number).arg(name), this));
        entry->setToolTip(file);
        entry->setEnabled(QFileInfo(file).isFile());
        connect(entry, &QAction::triggered, this,
                [this, file] { binding_.Input(Zolv.FileOpen, [&] { OpenSettingsFile(FromQt(file)); }); });
    }
    if (files_.isEmpty()) return;
    QAction* const clear = add(new QAction(ToQt(words["ClearRecent"]), this));
    connect(clear, &QAction::triggered, this, [this] {
        files_.clear();
        if (!files.CurrentFileName.empty()) files_.prepend(ToQt(files.CurrentFileName));
        if (changed_) changed_();
    });
    QAction* const line = add(new QAction(this));
    line->setSeparator(true);
}

}  // namespace zolv
