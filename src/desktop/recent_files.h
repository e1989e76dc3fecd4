#pragma once

#include <QObject>
#include <QStringList>
#include <functional>
#include <utility>

class QAction;
class QMenu;

namespace zolv {

class Binding;

/// The files that were opened or saved last, at the end of the menu of files: the newest first, missing ones greyed,
/// and an entry that clears the list.
class RecentFiles : public QObject {
public:
    /// @param before  the entry in front of which they stand
    RecentFiles(Binding& binding, QMenu& menu, QAction& before);

    const QStringList& Files() const { return files_; }
    void SetFiles(const QStringList& list);

    /// @param work  called whenever the list has changed
    void WhenChanged(std::function<void()> work) { changed_ = std::move(work); }

private:
    void Note();
    void Fill();

    Binding& binding_;
    QMenu& menu_;
    QAction& before_;
    QList<QAction*> entries_;
    QStringList files_;  // with their whole paths
    std::function<void()> changed_;
};

}  // namespace zolv
