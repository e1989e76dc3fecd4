// The windows together: opening, hiding, closing, the first run, sizes.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>

#include "language/caption_table.h"
#include "suites.h"

namespace zolv {
namespace {

class WindowsTogether : public DesktopTest {
    Q_OBJECT

private Q_SLOTS:
    void MainWindowStandsAloneAtStart();
    void HiddenWindowsComeBackAsTheyWere_data();
    void HiddenWindowsComeBackAsTheyWere();
    void OpenWindowComesToTheFront();
    void ConverterOpensFromThePresets();
    void ClosingTheMainWindowEndsTheProgram();
    void ExitInTheMenuEndsTheProgram();
    void NothingIsCutOff_data();
    void NothingIsCutOff();
};

constexpr const char* kSecondary[] = {"OptionsPanel", "CustomPresets", "UnitConv", "LanguageSelection"};

void OpenAll(Desktop& desktop) {
    desktop.TheBinding().Act([] {
        for (Window* window : AllWindows()) window->SetVisible(true);
    });
    Settle();
}

void WindowsTogether::MainWindowStandsAloneAtStart() {
    QVERIFY(WindowNamed("Zolv").isVisible());
    QCOMPARE(WindowNamed("Zolv").windowTitle(), QStringLiteral("Tarmaq Zolv"));
    for (const char* name : kSecondary) {
        QVERIFY2(!WindowNamed(name).isVisible(), name);
        QVERIFY2(!WindowNamed(name).isModal(), name);
    }
}

void WindowsTogether::HiddenWindowsComeBackAsTheyWere_data() {
    QTest::addColumn<QString>("button");  // the close box, Escape, or a button
    QTest::newRow("CloseBox") << "";
    QTest::newRow("Escape") << "Escape";
    QTest::newRow("Button") << "CloseOptions";
}

void WindowsTogether::HiddenWindowsComeBackAsTheyWere() {
    QFETCH(QString, button);
    QWidget& window = WindowNamed("OptionsPanel");
    QTest::keyClick(&WindowNamed("Zolv"), Qt::Key_O, Qt::ControlModifier);
    ClickTab("Select_Options", 2, "OptionsPanel");
    SelectAllAndType(Find<QLineEdit>("RC_FixedVal", "OptionsPanel"), "6500");
    const QString typed = Find<QLineEdit>("RC_FixedVal", "OptionsPanel").text();
    window.move(50, 60);
    const QPoint place = window.pos();
    if (button.isEmpty()) {
        CloseBox(window);
    } else if (button == QLatin1String("Escape")) {
        QTest::keyClick(&window, Qt::Key_Escape);
    } else {
        QTest::mouseClick(&Find<QPushButton>("CloseOptions", "OptionsPanel"), Qt::LeftButton);
    }
    QVERIFY(!window.isVisible());
    QVERIFY(WindowNamed("Zolv").isVisible());

    QApplication::setActiveWindow(&WindowNamed("Zolv"));
    QTest::keyClick(&WindowNamed("Zolv"), Qt::Key_O, Qt::ControlModifier);
    QVERIFY(window.isVisible());
    QCOMPARE(Find<QTabBar>("Select_Options", "OptionsPanel").currentIndex(), 2);
    QCOMPARE(Find<QLineEdit>("RC_FixedVal", "OptionsPanel").text(), typed);
    QCOMPARE(window.pos(), place);
}

void WindowsTogether::OpenWindowComesToTheFront() {
    QTest::keyClick(&WindowNamed("Zolv"), Qt::Key_O, Qt::ControlModifier);
    QApplication::setActiveWindow(&WindowNamed("Zolv"));
    QTest::keyClick(&WindowNamed("Zolv"), Qt::Key_O, Qt::ControlModifier);
    QTRY_VERIFY(WindowNamed("OptionsPanel").isActiveWindow());
}

void WindowsTogether::ConverterOpensFromThePresets() {
    QTest::keyClick(&WindowNamed("Zolv"), Qt::Key_U, Qt::ControlModifier);
    QTest::mouseClick(&Find<QPushButton>("LoadUnitConv", "CustomPresets"), Qt::LeftButton);
    Settle();
    QVERIFY(WindowNamed("UnitConv").isVisible());
    // An inch is 2.54 cm.
    PickWithKeys(Find<QComboBox>("Select_DistanceUnits", "UnitConv"), 2);
    SelectAllAndType(Find<QLineEdit>("DistanceInput", "UnitConv"), "100");
    QCOMPARE(TextOf("DistanceOutput", "UnitConv"), QStringLiteral("is 2.54 m"));
}

void WindowsTogether::ClosingTheMainWindowEndsTheProgram() {
    OpenAll(Windows());
    CloseBox(WindowNamed("Zolv"));
    QVERIFY(Ended());
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        QVERIFY2(!window->isVisible(), qPrintable(window->objectName()));
    }
}

void WindowsTogether::ExitInTheMenuEndsTheProgram() {
    OpenAll(Windows());
    QApplication::setActiveWindow(&WindowNamed("Zolv"));
    QTest::keyClick(&WindowNamed("Zolv"), Qt::Key_F, Qt::AltModifier);
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_X);
    Settle();
    QVERIFY(Ended());
    QVERIFY(!WindowNamed("Zolv").isVisible());
}

void WindowsTogether::NothingIsCutOff_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("AsItOpens") << QSize(1280, 780);
    QTest::newRow("AsSmallAsItGets") << QSize(1, 1);
}

/// Each page with each car that shows other things there, in the unit with the widest texts.
void WindowsTogether::NothingIsCutOff() {
    QFETCH(QSize, size);
    QWidget& main = WindowNamed("Zolv");
    main.resize(size);
    for (const char* car : {"Pell S", "Series Mu", "Gnat 5"}) {
        Windows().TheBinding().Act([&] { Zolv.Select_Car.SetText(car); });
        for (int page = 0; page < 4; ++page) {
            ClickTab("Select_Page", page);
            ExpectNone(CutOff(main));
        }
        ClickTab("Select_Page", 1);
        for (int graph = 2; graph >= 0; --graph) {
            PickWithKeys(Find<QComboBox>("Select_Graphs"), graph);
            ExpectNone(CutOff(main));
        }
        for (const char* direction : {"Direction2", "Direction1"}) {
            Click(Find<QRadioButton>(direction));
            ExpectNone(CutOff(main));
        }
    }
    OpenAll(Windows());
    for (const char* name : kSecondary) {
        QWidget& window = WindowNamed(name);
        if (size == QSize(1, 1)) window.resize(size);
        for (int page = 0; page < 3; ++page) {
            if (&window == &WindowNamed("OptionsPanel")) ClickTab("Select_Options", page, name);
            Settle();
            ExpectNone(CutOff(window));
        }
    }
}

const bool added = AddSuite<WindowsTogether>("WindowsTogether");

/// A start without a language chosen before.
class FirstRun : public DesktopTest {
    Q_OBJECT

    void Prepare() override {
        QVERIFY(Write("languages.lst", "Language: 0\r\nEnglish\r\nLonger\r\n"));
        QVERIFY(Write("language_English.txt", QByteArray::fromStdString(BuiltInLanguage())));
        QVERIFY(Write("language_Longer.txt", LanguageOf([](int line) { return "L" + QByteArray::number(line); })));
    }

private Q_SLOTS:
    void LanguageIsChosenBeforeTheMainWindowShows();
    void ClosingTheLanguagesBringsTheMainWindow();
};

void FirstRun::LanguageIsChosenBeforeTheMainWindowShows() {
    QVERIFY(!WindowNamed("Zolv").isVisible());
    QVERIFY(WindowNamed("LanguageSelection").isVisible());
    PickWithKeys(Find<QComboBox>("LanguageList", "LanguageSelection"), 1);
    QCOMPARE(TextOf("LanguageNow", "LanguageSelection"), QStringLiteral("L0"));
    QTest::mouseClick(&Find<QPushButton>("SaveLanguage", "LanguageSelection"), Qt::LeftButton);
    Settle();
    QVERIFY(WindowNamed("Zolv").isVisible());
    QVERIFY(!WindowNamed("LanguageSelection").isVisible());
    QCOMPARE(Read("languages.lst"), QByteArray("Language: 2\r\nEnglish\r\nLonger\r\n"));
}

void FirstRun::ClosingTheLanguagesBringsTheMainWindow() {
    CloseBox(WindowNamed("LanguageSelection"));
    QVERIFY(WindowNamed("Zolv").isVisible());
    QVERIFY(!Ended());
}

const bool firstRunAdded = AddSuite<FirstRun>("FirstRun");

}  // namespace
}  // namespace zolv

#include "windows_test.moc"
