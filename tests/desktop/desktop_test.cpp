#include "desktop_test.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTabBar>
#include <QWheelEvent>

#include "desktop/value_label.h"
#include "language/caption_table.h"
#include "shell/fresh_start.h"
#include "shell/shell_state.h"
#include "shell/start_up.h"

namespace zolv {
namespace {

QPoint HandleAt(const QSlider& slider, int value) {
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.subControls = QStyle::SC_All;
    option.orientation = Qt::Horizontal;
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = option.sliderValue = value;
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider).center();
}

/// The room that a widget's text takes, to be held against the widget's own size; empty for one without text.
QSize RoomForText(const QWidget& widget) {
    if (const auto* const figure = dynamic_cast<const ValueLabel*>(&widget)) {
        return figure->text().isEmpty() ? QSize() : figure->sizeHint();
    }
    if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        if (!label->wordWrap()) return label->sizeHint();
        return {0, label->heightForWidth(label->width())};
    }
    if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) return widget.minimumSizeHint();
    if (const auto* const list = qobject_cast<const QComboBox*>(&widget)) {
        constexpr int kFrameAndArrow = 28;
        return {list->fontMetrics().horizontalAdvance(list->currentText()) + kFrameAndArrow, 0};
    }
    return {};
}

}  // namespace

std::string ScriptedDialogs::AskForFile(const FileRequest& request) {
    requests.push_back(request);
    return answers.isEmpty() ? request.presetName : FromQt(answers.takeFirst());
}

void DesktopTest::Start() {
    before_ = QDir::currentPath();
    folder_ = std::make_unique<QTemporaryDir>();
    QDir::setCurrent(folder_->path());
    QImage picture(60, 40, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QVERIFY(picture.save(QStringLiteral("unknown.jpg"), "JPEG"));
    dialogs_.messages.clear();
    dialogs_.answers.clear();
    dialogs_.requests.clear();
    ended_ = false;

    UseDialogs(&dialogs_);
    FreshStart();
    Prepare();
    desktop_ = std::make_unique<Desktop>();
    shellFollowUps.Ending = [this] { ended_ = true; };
    LoadZolv();
    desktop_->Open();
    for (const char* lacking : {"Options.ini does not exist", "language list does not exist"}) {
        dialogs_.messages.removeIf([&](const QString& text) { return text.contains(QLatin1String(lacking)); });
    }
    desktop_->Main().resize(1280, 780);  // room for every page, whatever the screen
    QApplication::setActiveWindow(&desktop_->Main());
    Settle();
}

void DesktopTest::Stop() {
    desktop_.reset();
    UseDialogs(nullptr);
    QDir::setCurrent(before_);
}

void DesktopTest::cleanup() {
    Stop();
    ExpectNone(dialogs_.messages);
    ExpectNone(dialogs_.answers);
}

bool DesktopTest::Write(const char* name, const QByteArray& content) const {
    QFile file(InFolder(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray DesktopTest::Read(const char* name) const {
    QFile file(InFolder(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void ExpectNone(const QStringList& found) { QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n')))); }

QString TitleOf(const char* name) { return WindowNamed(name).windowTitle().remove(QStringLiteral("[*]")); }

QWidget& WindowNamed(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String(name)) return *window;
    }
    qFatal("no window %s", name);
}

double NumberOf(const char* label) {
    bool isNumber = false;
    const double number = TextOf(label).section(QLatin1Char(' '), 0, 0).toDouble(&isNumber);  // never the locale's
    if (!isNumber) qFatal("%s begins with no number: %s", label, qPrintable(TextOf(label)));
    return number;
}

void ClickTab(const char* strip, int tab, const char* window) {
    auto& bar = Find<QTabBar>(strip, window);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
    Settle();
}

void Click(QWidget& widget) {
    // Near the left edge, where a check box has its box, however wide the widget is.
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
    Settle();
}

void Type(QWidget& widget, const char* keys) {
    widget.setFocus();
    for (const char* key = keys; *key != '\0'; ++key) QTest::keyClick(&widget, *key);
}

void SelectAllAndType(QWidget& widget, const char* keys) {
    widget.setFocus();
    QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
    Type(widget, keys);
    QTest::keyClick(&widget, Qt::Key_Return);
}

void Paste(QWidget& widget, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    widget.setFocus();
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
}

void PickWithKeys(QComboBox& list, int row) {
    list.setFocus();
    while (list.currentIndex() < row) QTest::keyClick(&list, Qt::Key_Down);
    while (list.currentIndex() > row) QTest::keyClick(&list, Qt::Key_Up);
    Settle();
}

void PickWithKeys(QComboBox& list, const char* text) { PickWithKeys(list, list.findText(QLatin1String(text))); }

void DragSlider(QSlider& slider, int value) {
    const QPoint from = HandleAt(slider, slider.value());
    const QPoint to = HandleAt(slider, value);
    QTest::mousePress(&slider, Qt::LeftButton, {}, from);
    QTest::mouseMove(&slider, (from + to) / 2);
    QTest::mouseMove(&slider, to);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, to);
    Settle();
}

void TurnWheel(QWidget& widget, int notches) {
    const QPointF at = widget.rect().center();
    QWheelEvent event(at, widget.mapToGlobal(at), {}, QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

void CloseBox(QWidget& window) {
    QCloseEvent event;
    QApplication::sendEvent(&window, &event);
    Settle();
}

void Settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}

std::map<QString, QString> TextsOf(QWidget& window) {
    std::map<QString, QString> read;
    const auto add = [&](const QObject& object, const QString& what, const QString& text) {
        if (!text.trimmed().isEmpty()) read[object.objectName() + what] = text;
    };
    add(window, QStringLiteral(" title"), window.windowTitle());
    for (const QObject* object : window.findChildren<QObject*>()) {
        if (object->objectName().isEmpty() || object->objectName().startsWith(QLatin1String("qt_"))) continue;
        if (const auto* const action = qobject_cast<const QAction*>(object)) add(*action, QString(), action->text());
        if (const auto* const label = qobject_cast<const QLabel*>(object)) add(*label, QString(), label->text());
        if (const auto* const group = qobject_cast<const QGroupBox*>(object)) add(*group, QString(), group->title());
        if (const auto* const button = qobject_cast<const QAbstractButton*>(object)) {
            add(*button, QString(), button->text());
        }
        if (const auto* const list = qobject_cast<const QComboBox*>(object)) {
            for (int i = 0; i < list->count(); ++i) add(*list, QStringLiteral(" row %1").arg(i), list->itemText(i));
        }
        if (const auto* const bar = qobject_cast<const QTabBar*>(object)) {
            for (int i = 0; i < bar->count(); ++i) {
                add(*bar, QStringLiteral(" tab %1").arg(i), bar->tabText(i));
                add(*bar, QStringLiteral(" tool tip %1").arg(i), bar->tabToolTip(i));
            }
        }
        if (const auto* const widget = qobject_cast<const QWidget*>(object)) {
            add(*widget, QStringLiteral(" tool tip"), widget->toolTip());
        }
    }
    return read;
}

std::map<QString, QRect> PlacesOf(QWidget& window) {
    std::map<QString, QRect> places;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->objectName().isEmpty()) continue;
        places[widget->objectName()] = QRect(widget->mapToGlobal(QPoint()), widget->size());
    }
    return places;
}

QStringList MovedSince(const std::map<QString, QRect>& before, const std::map<QString, QRect>& now) {
    QStringList names;
    for (const auto& [name, place] : now) {
        const auto was = before.find(name);
        if (was == before.end() || was->second != place) names << name;
    }
    for (const auto& [name, place] : before) {
        if (!now.contains(name)) names << name;
    }
    return names;
}

QStringList CutOff(QWidget& window) {
    QStringList cut;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->objectName().isEmpty()) continue;
        const QSize room = RoomForText(*widget);
        if (room.width() <= widget->width() && room.height() <= widget->height()) continue;
        cut.push_back(QStringLiteral("%1: %2 x %3 in %4 x %5")
                          .arg(widget->objectName())
                          .arg(room.width())
                          .arg(room.height())
                          .arg(widget->width())
                          .arg(widget->height()));
    }
    return cut;
}

QByteArray LanguageOf(const std::function<QByteArray(int)>& line) {
    QByteArrayList lines;
    for (int n = 0; n < static_cast<int>(kCaptionLines); ++n) lines.push_back(line(n));
    return lines.join("\r\n");
}

}  // namespace zolv
