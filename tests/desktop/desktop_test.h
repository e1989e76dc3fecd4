#pragma once

#include <QLabel>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "desktop/desktop.h"
#include "desktop/main_window.h"
#include "desktop/texts_of_qt.h"
#include "fields/all_windows.h"
#include "platform/dialogs.h"

class QComboBox;
class QSlider;

/// What the tests of the windows share: a started program with its windows, in a folder of its own, and what a person
/// does and sees there.
namespace zolv {

/// Dialogs that keep every message and request, and answer file dialogs from a list.
class ScriptedDialogs : public Dialogs {
public:
    void Message(const std::string& text) override { messages.push_back(ToQt(text)); }
    std::string AskForFile(const FileRequest& request) override;

    QStringList messages;  // not looked at yet
    QStringList answers;   // of the next file dialogs; without one a dialog counts as cancelled
    std::vector<FileRequest> requests;
};

/// Each test has a program that has been started anew. A message that it did not take, or an answer that no dialog
/// took, fails it.
class DesktopTest : public QObject {
    Q_OBJECT

protected:
    /// Files that lie in the program's folder before it starts; none but a car picture here.
    virtual void Prepare() {}

    void Start();
    void Stop();

    Desktop& Windows() { return *desktop_; }
    ScriptedDialogs& Asked() { return dialogs_; }
    bool Ended() const { return ended_; }

    /// The oldest message that has not been looked at yet; empty for none.
    QString TakeMessage() { return dialogs_.messages.isEmpty() ? QString() : dialogs_.messages.takeFirst(); }

    QString InFolder(const char* name) const { return folder_->filePath(QString::fromUtf8(name)); }
    bool Write(const char* name, const QByteArray& content) const;
    QByteArray Read(const char* name) const;

private Q_SLOTS:
    void init() { Start(); }
    void cleanup();

private:  // NOLINT(readability-redundant-access-specifiers): ends the slots
    QString before_;
    std::unique_ptr<QTemporaryDir> folder_;
    ScriptedDialogs dialogs_;
    std::unique_ptr<Desktop> desktop_;
    bool ended_ = false;
};

/// Fails where a list that is to be empty has something, and says what.
void ExpectNone(const QStringList& found);

/// The window of that name.
QWidget& WindowNamed(const char* name);

/// A window's title without the place of the mark for what is not saved.
QString TitleOf(const char* name);

/// The object of that name in a window; a name that no object of its kind has ends the tests.
template <class Kind>
Kind& Find(const char* name, const char* window = "Zolv") {
    auto* const found = WindowNamed(window).findChild<Kind*>(QLatin1String(name));
    if (found == nullptr) qFatal("%s has no such %s", window, name);
    return *found;
}

inline QString TextOf(const char* label, const char* window = "Zolv") { return Find<QLabel>(label, window).text(); }

/// The number that a label's text begins with.
double NumberOf(const char* label);

/// What a person does.
void ClickTab(const char* strip, int tab, const char* window = "Zolv");
void Click(QWidget& widget);
void Type(QWidget& widget, const char* keys);
void SelectAllAndType(QWidget& widget, const char* keys);  // and Enter
void Paste(QWidget& widget, const QString& text);
void PickWithKeys(QComboBox& list, int row);
void PickWithKeys(QComboBox& list, const char* text);
void DragSlider(QSlider& slider, int value);  // holds the handle and moves the mouse to where `value` stands
void TurnWheel(QWidget& widget, int notches);
void CloseBox(QWidget& window);

/// Layouts and paint events that are due are done.
void Settle();

/// Everything that can be read in a window and on its pages, hidden ones too, under the name of its widget: captions,
/// rows of lists, tabs, menu entries, tool tips, the title.
std::map<QString, QString> TextsOf(QWidget& window);

/// Where each widget with a name that is in view stands on the screen.
std::map<QString, QRect> PlacesOf(QWidget& window);

/// The names of those that came, went or moved meanwhile.
QStringList MovedSince(const std::map<QString, QRect>& before, const std::map<QString, QRect>& now);

/// Figures and words in view that their widgets have no room for. A box may hold more than it shows.
QStringList CutOff(QWidget& window);

/// A language whose line n reads as `line(n)`.
QByteArray LanguageOf(const std::function<QByteArray(int)>& line);

}  // namespace zolv
