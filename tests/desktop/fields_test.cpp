// Every field of every window has its widget, and every widget can be reached and named.

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <algorithm>
#include <set>

#include "desktop/canvas_view.h"
#include "desktop/log_table.h"
#include "desktop/picture_view.h"
#include "desktop/run_table.h"
#include "desktop/text_table.h"
#include "suites.h"

namespace zolv {
namespace {

class FieldsAndWidgets : public DesktopTest {
    Q_OBJECT

private Q_SLOTS:
    void EachFieldHasItsWidget();
    void EachFocusableWidgetHasAName();
    void TabReachesEachControl();
};

template <class... Kinds>
bool IsOneOf(const QObject* object) {
    return ((dynamic_cast<const Kinds*>(object) != nullptr) || ...);
}

bool Suits(FieldKind kind, const QObject* object) {
    switch (kind) {
        case FieldKind::Label: return IsOneOf<QLabel>(object);
        case FieldKind::Panel: return IsOneOf<QWidget>(object);
        case FieldKind::MenuEntry: return IsOneOf<QAction>(object);
        case FieldKind::Button: return IsOneOf<QPushButton>(object);
        case FieldKind::TextBox: return IsOneOf<QLineEdit, LogTable, RunTable, TextTable>(object);
        case FieldKind::Slider: return IsOneOf<QSlider>(object);
        case FieldKind::PickList: return IsOneOf<QComboBox, QListWidget>(object);
        case FieldKind::TabStrip: return IsOneOf<QTabBar>(object);
        case FieldKind::CheckBox: return IsOneOf<QCheckBox>(object);
        case FieldKind::OptionButton: return IsOneOf<QRadioButton>(object);
        case FieldKind::Picture: return IsOneOf<PictureView>(object);
        case FieldKind::Canvas: return IsOneOf<CanvasView>(object);
        case FieldKind::Window: return false;
    }
    return false;
}

void FieldsAndWidgets::EachFieldHasItsWidget() {
    QStringList lacking;
    int fields = 0;
    for (const Window* window : AllWindows()) {
        const QWidget& shown = WindowNamed(window->Name().c_str());
        for (const Field* field : window->Fields()) {
            ++fields;
            const auto found = shown.findChildren<QObject*>(ToQt(field->Name()));
            if (found.size() == 1 && Suits(field->Kind(), found.front())) continue;
            lacking << ToQt(window->Name() + '.' + field->Name()) + QStringLiteral(": %1").arg(found.size());
        }
    }
    QVERIFY(fields > 400);
    ExpectNone(lacking);
}

/// What a key can move to in a window as it stands.
std::vector<QWidget*> Reachable(QWidget& window) {
    std::vector<QWidget*> widgets;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
            widget->focusProxy() == nullptr) {
            widgets.push_back(widget);
        }
    }
    return widgets;
}

/// Of option buttons that take turns, one is enough: the arrow keys go on from it.
bool WasReached(const QWidget* widget, const std::set<QWidget*>& reached) {
    return std::ranges::any_of(reached, [widget](const QWidget* other) {
        const bool together = qobject_cast<const QRadioButton*>(widget) != nullptr &&
                              qobject_cast<const QRadioButton*>(other) != nullptr &&
                              widget->parentWidget() == other->parentWidget();
        return other == widget || together;
    });
}

/// Runs `check` on each window as a person can have it before him: page by page, in both directions of the gearing.
template <class Check>
void OnEachPage(Desktop& desktop, Check check) {
    const auto act = [&](auto work) {
        desktop.TheBinding().Act(work);
        Settle();
    };
    act([] {
        Zolv.Select_Car.SetText("Series Mu");  // has all that a car can have
        for (Window* window : AllWindows()) window->SetVisible(true);
    });
    for (int page = 0; page < 4; ++page) {
        act([&] { Zolv.Select_Page.Pick(page); });
        check(WindowNamed("Zolv"));
    }
    act([] {
        Zolv.Select_Page.Pick(1);
        Zolv.Direction2.Choose();
        Zolv.Select_Graphs.Pick(2);
    });
    check(WindowNamed("Zolv"));
    for (int page = 0; page < 3; ++page) {
        act([&] { OptionsPanel.Select_Options.Pick(page); });
        check(WindowNamed("OptionsPanel"));
    }
    for (const char* name : {"CustomPresets", "UnitConv", "LanguageSelection", "Finder", "Sweep"})
        check(WindowNamed(name));
}

void FieldsAndWidgets::EachFocusableWidgetHasAName() {
    QStringList nameless;
    OnEachPage(Windows(), [&](QWidget& window) {
        for (const QWidget* widget : Reachable(window)) {
            if (qobject_cast<const QTabBar*>(widget) != nullptr) continue;  // its tabs have their texts
            if (widget->accessibleName().trimmed().isEmpty()) nameless << widget->objectName();
        }
    });
    ExpectNone(nameless);
}

/// And shows where it is: a control looks another way while it has the focus.
void FieldsAndWidgets::TabReachesEachControl() {
    QStringList passed;
    OnEachPage(Windows(), [&](QWidget& window) {
        QApplication::setActiveWindow(&window);
        const std::vector<QWidget*> wanted = Reachable(window);
        QVERIFY(!wanted.empty());
        wanted.front()->setFocus();
        std::set<QWidget*> reached;
        for (std::size_t i = 0; i < 2 * wanted.size(); ++i) {
            QWidget* const focused = window.focusWidget();
            QVERIFY(focused != nullptr);
            const QImage with = focused->grab().toImage();
            QTest::keyClick(focused, Qt::Key_Tab);
            Settle();
            if (i == 0) continue;  // got the focus without a key
            reached.insert(focused);
            if (focused->grab().toImage() == with) passed << focused->objectName() + QStringLiteral(" looks the same");
        }
        for (QWidget* widget : wanted) {
            if (!WasReached(widget, reached)) passed << window.objectName() + u'.' + widget->objectName();
        }
    });
    ExpectNone(passed);
}

const bool added = AddSuite<FieldsAndWidgets>("FieldsAndWidgets");

}  // namespace
}  // namespace zolv

#include "fields_test.moc"
