// Sliders, lists, check boxes and menus, moved with the mouse and with keys.

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QSlider>

#include "suites.h"

namespace zolv {
namespace {

class Controls : public DesktopTest {
    Q_OBJECT

private Q_SLOTS:
    void SliderDraggedWithTheMouse();
    void SliderMovedWithKeys_data();
    void SliderMovedWithKeys();
    void WheelMovesOnlyWhatHasTheFocus();
    void CarPickedWithKeys();
    void CarPickedFromTheOpenList();
    void CarPickedByItsFirstLetters();
    void GearsThatACarLacksTakeNoInput();
    void OptionButtonsTakeTurns();
    void MenusByKeys_data();
    void MenusByKeys();
    void Shortcuts_data();
    void Shortcuts();
    void KeysTurnThePagesOfTheWindowInFront();
    void EachFieldIsPaintedOnceAnEvent();
};

void Controls::SliderDraggedWithTheMouse() {
    ClickTab("Select_Page", 1);
    auto& slider = Find<QSlider>("Select_FinalDrive1");
    QCOMPARE(slider.value(), 4000);
    const double speed = NumberOf("Speed1");
    DragSlider(slider, 5000);
    // A pixel is some of the 7000 steps.
    const double perPixel = 7000.0 / (slider.width() - 20);
    QVERIFY2(std::abs(slider.value() - 5000) <= 2 * perPixel, qPrintable(QString::number(slider.value())));
    QCOMPARE(slider.value() % 10, 0);
    QCOMPARE(Find<QLineEdit>("GearF").text(), QString::number(slider.value() / 1000.0));
    const double expected = speed * 4000 / slider.value();  // but for what the tyre gives way
    QVERIFY2(std::abs(NumberOf("Speed1") - expected) < 0.01 * expected, qPrintable(TextOf("Speed1")));
}

/// From the slider's value at start, by its small and its large step; a ratio's small step is a thousandth.
void Controls::SliderMovedWithKeys_data() {
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("slider");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("value");
    QTest::newRow("RatioRight") << 1 << "Select_Ratio3" << int{Qt::Key_Right} << 1701;
    QTest::newRow("RatioLeft") << 1 << "Select_Ratio3" << int{Qt::Key_Left} << 1699;
    QTest::newRow("RatioPageUp") << 1 << "Select_Ratio3" << int{Qt::Key_PageUp} << 1800;
    QTest::newRow("RatioPageDown") << 1 << "Select_Ratio3" << int{Qt::Key_PageDown} << 1600;
    QTest::newRow("RatioEnd") << 1 << "Select_Ratio1" << int{Qt::Key_End} << 7500;
    QTest::newRow("FinalDriveRight") << 1 << "Select_FinalDrive1" << int{Qt::Key_Right} << 4001;
    QTest::newRow("FinalDrivePageUp") << 1 << "Select_FinalDrive1" << int{Qt::Key_PageUp} << 4500;
    QTest::newRow("PressureRight") << 2 << "Select_PressureF" << int{Qt::Key_Right} << 1;
    QTest::newRow("PressurePageUp") << 2 << "Select_PressureF" << int{Qt::Key_PageUp} << 10;
    QTest::newRow("SideZoomRight") << 2 << "ZoomSideOn" << int{Qt::Key_Right} << 155;
    QTest::newRow("SideZoomPageUp") << 2 << "ZoomSideOn" << int{Qt::Key_PageUp} << 230;
    QTest::newRow("AirSpeedPageUp") << 3 << "Select_AeroSpeed" << int{Qt::Key_PageUp} << 50;
}

void Controls::SliderMovedWithKeys() {
    QFETCH(int, page);
    QFETCH(QString, slider);
    QFETCH(int, key);
    QFETCH(int, value);
    ClickTab("Select_Page", page);
    auto& moved = Find<QSlider>(slider.toLatin1().constData());
    const int before = moved.value();
    moved.setFocus();
    QTest::keyClick(&moved, static_cast<Qt::Key>(key));
    // Pressures start where the car has them.
    QCOMPARE(moved.value(), slider.startsWith(QLatin1String("Select_Pressure")) ? before + value : value);
}

void Controls::WheelMovesOnlyWhatHasTheFocus() {
    ClickTab("Select_Page", 1);
    auto& slider = Find<QSlider>("Select_Ratio3");
    auto& cars = Find<QComboBox>("Select_Car");
    Find<QLineEdit>("Gear1").setFocus();
    TurnWheel(slider, 1);
    TurnWheel(cars, -1);
    QCOMPARE(slider.value(), 1700);
    QCOMPARE(cars.currentText(), QStringLiteral("Pell S"));
    slider.setFocus();
    TurnWheel(slider, 1);
    QVERIFY(slider.value() > 1700);
    QCOMPARE(Find<QLineEdit>("Gear3").text(), QString::number(slider.value() / 1000.0));
}

/// The catalogue's masses: 1027 kg for the Pell S, 1244 kg for the Ondo T behind it.
void Controls::CarPickedWithKeys() {
    QCOMPARE(TextOf("Info_Mass"), QStringLiteral("1027 kg"));
    auto& cars = Find<QComboBox>("Select_Car");
    cars.setFocus();
    QTest::keyClick(&cars, Qt::Key_Down);
    QCOMPARE(cars.currentText(), QStringLiteral("Ondo T"));
    QCOMPARE(TextOf("Info_Mass"), QStringLiteral("1244 kg"));
}

void Controls::CarPickedFromTheOpenList() {
    auto& cars = Find<QComboBox>("Select_Car");
    QTest::mouseClick(&cars, Qt::LeftButton);
    QWidget* const list = QApplication::activePopupWidget();
    QVERIFY(list != nullptr);
    QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : list, Qt::Key_Down);
    QCOMPARE(TextOf("Info_Mass"), QStringLiteral("1027 kg"));  // not before it is taken
    QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : list, Qt::Key_Return);
    QCOMPARE(TextOf("Info_Mass"), QStringLiteral("1244 kg"));
}

void Controls::CarPickedByItsFirstLetters() {
    Type(Find<QComboBox>("Select_Car"), "gn");
    QCOMPARE(TextOf("Info_Mass"), QStringLiteral("298 kg"));  // Gnat 5
}

void Controls::GearsThatACarLacksTakeNoInput() {
    ClickTab("Select_Page", 1);
    auto& sixth = Find<QLineEdit>("Gear6");  // the Pell S has five gears
    QVERIFY(!sixth.isVisible() || !sixth.isEnabled());
    Type(Find<QComboBox>("Select_Car"), "gn");
    Settle();
    QVERIFY(sixth.isVisible() && sixth.isEnabled());
}

void Controls::OptionButtonsTakeTurns() {
    ClickTab("Select_Page", 1);
    Click(Find<QRadioButton>("Direction2"));
    QVERIFY(!Find<QRadioButton>("Direction1").isChecked());
    QVERIFY(Find<QLineEdit>("B_Speed1").isVisible());
    QVERIFY(!Find<QLineEdit>("Gear1").isVisible());
    Find<QRadioButton>("Direction2").setFocus();
    QTest::keyClick(&Find<QRadioButton>("Direction2"), Qt::Key_Left);
    QVERIFY(Find<QRadioButton>("Direction1").isChecked());
    QVERIFY(Find<QLineEdit>("Gear1").isVisible());
}

/// A menu by Alt and its letter, its entry by the entry's letter.
void Controls::MenusByKeys_data() {
    QTest::addColumn<int>("menu");
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("window");
    QTest::newRow("CustomPresets") << int{Qt::Key_T} << int{Qt::Key_P} << "CustomPresets";
    QTest::newRow("Options") << int{Qt::Key_T} << int{Qt::Key_O} << "OptionsPanel";
    QTest::newRow("Language") << int{Qt::Key_T} << int{Qt::Key_L} << "LanguageSelection";
}

void Controls::MenusByKeys() {
    QFETCH(int, menu);
    QFETCH(int, entry);
    QFETCH(QString, window);
    QTest::keyClick(&WindowNamed("Zolv"), static_cast<Qt::Key>(menu), Qt::AltModifier);
    QWidget* const open = QApplication::activePopupWidget();
    QVERIFY(open != nullptr);
    QTest::keyClick(open, static_cast<Qt::Key>(entry));
    Settle();
    QVERIFY(WindowNamed(window.toLatin1().constData()).isVisible());
}

void Controls::Shortcuts_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("window");
    QTest::newRow("CtrlU") << int{Qt::Key_U} << "CustomPresets";
    QTest::newRow("CtrlO") << int{Qt::Key_O} << "OptionsPanel";
}

void Controls::Shortcuts() {
    QFETCH(int, key);
    QFETCH(QString, window);
    ClickTab("Select_Page", 1);
    Find<QLineEdit>("Gear1").setFocus();  // a box lets the shortcut pass
    QTest::keyClick(&Find<QLineEdit>("Gear1"), static_cast<Qt::Key>(key), Qt::ControlModifier);
    Settle();
    QVERIFY(WindowNamed(window.toLatin1().constData()).isVisible());
    QCOMPARE(Find<QLineEdit>("Gear1").text(), QStringLiteral("3.5"));

    // From the window that has come up, those of the menus work as well.
    WindowNamed(window.toLatin1().constData()).activateWindow();
    Settle();
    QTest::keyClick(&WindowNamed(window.toLatin1().constData()), Qt::Key_G, Qt::ControlModifier);
    Settle();
    QVERIFY(WindowNamed("Finder").isVisible());
}

void Controls::KeysTurnThePagesOfTheWindowInFront() {
    const auto press = [](const char* window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(&WindowNamed(window), key, modifiers);
        return QPair(Zolv.Select_Page.Picked(), OptionsPanel.Select_Options.Picked());
    };
    QCOMPARE(press("Zolv", Qt::Key_PageUp, Qt::ControlModifier), QPair(3, 0));
    QCOMPARE(press("Zolv", Qt::Key_Tab, Qt::ControlModifier), QPair(0, 0));
    Windows().TheBinding().Act([] { OptionsPanel.SetVisible(true); });
    Settle();
    WindowNamed("OptionsPanel").activateWindow();
    Settle();
    QCOMPARE(press("OptionsPanel", Qt::Key_Tab, Qt::ControlModifier), QPair(0, 1));
    QCOMPARE(press("OptionsPanel", Qt::Key_PageDown, Qt::ControlModifier), QPair(0, 2));
    QCOMPARE(press("OptionsPanel", Qt::Key_PageDown, Qt::ControlModifier), QPair(0, 0));
    QCOMPARE(press("OptionsPanel", Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), QPair(0, 2));
    QCOMPARE(press("OptionsPanel", Qt::Key_PageUp, Qt::ControlModifier), QPair(0, 1));
    QVERIFY(WindowNamed("Zolv")
                .findChild<QAction*>(QStringLiteral("ViewNextPage"))
                ->text()
                .endsWith(QStringLiteral("\tCtrl+Tab, Ctrl+PgDown")));
}

void Controls::EachFieldIsPaintedOnceAnEvent() {
    ClickTab("Select_Page", 1);
    std::map<std::string, int> paints;
    for (Window* window : AllWindows()) {
        for (const Field* field : window->Fields()) {
            Windows().TheBinding().OnChanged(*field, [&paints, field] { ++paints[field->Name()]; });
        }
    }
    const auto expectOnce = [&](std::initializer_list<const char*> changed) {
        for (const auto& [name, count] : paints) QVERIFY2(count == 1, name.c_str());
        for (const char* name : changed) QVERIFY2(paints.contains(name), name);
    };
    paints.clear();
    SelectAllAndType(Find<QLineEdit>("Gear3"), "2");
    expectOnce({"Gear3", "Select_Ratio3", "Speed3", "SpeedPlot", "TorquePlot", "AccelerationData"});
    QVERIFY(!paints.contains("Info_Mass"));

    paints.clear();
    PickWithKeys(Find<QComboBox>("Select_Car"), "Ondo T");
    expectOnce({"Select_Car", "Info_Mass", "TorquePowerPlot", "Aero_TopSpeed", "UTR", "Speed1"});
}

const bool added = AddSuite<Controls>("Controls");

}  // namespace
}  // namespace zolv

#include "controls_test.moc"
