// The windows together: opening, hiding, closing, the first run, sizes.

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QTableView>
#include <QWindow>
#include <algorithm>

#include "desktop/kept_set_up.h"
#include "desktop/last_visit.h"
#include "desktop/window_dialogs.h"
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
    void SecondaryWindowsStayAboveTheMainOne();
    void FirstSizeFitsTheScreen();
    void OptionsKeepTheirSize();
    void PagesAndMoreByKeys_data();
    void PagesAndMoreByKeys();
    void KeyboardFocusScrollsIntoView();
    void NextStartBringsBackTheLast();
    void NothingBrokenComesBack_data();
    void NothingBrokenComesBack();
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
    QCOMPARE(TitleOf("Zolv"), QStringLiteral("Tarmaq Zolv"));
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

void WindowsTogether::SecondaryWindowsStayAboveTheMainOne() {
    OpenAll(Windows());
    const auto above = [](const char* name) { return WindowNamed(name).windowHandle()->transientParent(); };
    for (const char* name : kSecondary) {
        const bool opened = QLatin1String(name) == QLatin1String("UnitConv");  // from the presets, which are open
        QCOMPARE(above(name), WindowNamed(opened ? "CustomPresets" : "Zolv").windowHandle());
        QCOMPARE(WindowNamed(name).windowType(), Qt::Dialog);
    }
    CloseBox(WindowNamed("CustomPresets"));
    QCOMPARE(above("UnitConv"), WindowNamed("Zolv").windowHandle());
}

/// With room for a title bar and borders, unless the screen is smaller than what does not scroll; and no screen in use
/// is that.
void WindowsTogether::FirstSizeFitsTheScreen() {
    Binding binding;
    const MainWindow main(binding);
    const QSize room = main.screen()->availableGeometry().size() - QSize(8, 32);
    const QSize least = main.minimumSizeHint();
    QVERIFY(main.width() <= std::max(room.width(), least.width()));
    QVERIFY(main.height() <= std::max(room.height(), least.height()));
    QVERIFY(least.width() <= 1024 - 8 && least.height() <= 600 - 32);
}

void WindowsTogether::OptionsKeepTheirSize() {
    Windows().TheBinding().Act([] { OptionsPanel.Show(); });
    Settle();
    const QSize first = WindowNamed("OptionsPanel").size();
    for (const int page : {1, 2, 0}) {
        ClickTab("Select_Options", page, "OptionsPanel");
        QCOMPARE(WindowNamed("OptionsPanel").size(), first);
    }
}

/// From the gearing page, page 1, with the focus in a box.
void WindowsTogether::PagesAndMoreByKeys_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("with");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("entry");
    QTest::newRow("CtrlTab") << int{Qt::Key_Tab} << int{Qt::CTRL} << 2 << "ViewNextPage";
    QTest::newRow("CtrlPageDown") << int{Qt::Key_PageDown} << int{Qt::CTRL} << 2 << "ViewNextPage";
    QTest::newRow("CtrlShiftTab") << int{Qt::Key_Backtab} << int{Qt::CTRL | Qt::SHIFT} << 0 << "ViewPreviousPage";
    QTest::newRow("CtrlPageUp") << int{Qt::Key_PageUp} << int{Qt::CTRL} << 0 << "ViewPreviousPage";
    QTest::newRow("CtrlS") << int{Qt::Key_S} << int{Qt::CTRL} << 1 << "FileSave";
    QTest::newRow("F1") << int{Qt::Key_F1} << 0 << 1 << "HelpUsage";
    QTest::newRow("F11") << int{Qt::Key_F11} << 0 << 1 << "ViewFullScreen";
}

void WindowsTogether::PagesAndMoreByKeys() {
    QFETCH(int, key);
    QFETCH(int, with);
    QFETCH(int, page);
    QFETCH(QString, entry);
    ClickTab("Select_Page", 1);
    int triggered = 0;
    auto& action = Find<QAction>(entry.toLatin1().constData());
    connect(&action, &QAction::triggered, this, [&] { ++triggered; });
    Click(Find<QLineEdit>("Gear1"));
    QTest::keyClick(&Find<QLineEdit>("Gear1"), static_cast<Qt::Key>(key), Qt::KeyboardModifiers(with));
    Settle();
    QCOMPARE(triggered, 1);
    QVERIFY(!action.associatedObjects().isEmpty() && !action.text().isEmpty());  // it is in a menu
    QCOMPARE(Find<QTabBar>("Select_Page").currentIndex(), page);
    QCOMPARE(Asked().requests.size(), key == Qt::Key_S ? 1U : 0U);
    if (key == Qt::Key_S) QCOMPARE(Asked().requests[0].proposedName, "Pell S");
    QCOMPARE(TakeMessage().isEmpty(), key != Qt::Key_F1);
    QCOMPARE(WindowNamed("Zolv").isFullScreen(), key == Qt::Key_F11);
    if (key == Qt::Key_F11) {
        QTest::keyClick(&WindowNamed("Zolv"), Qt::Key_Escape);
        QVERIFY(!WindowNamed("Zolv").isFullScreen());
    }
}

void WindowsTogether::KeyboardFocusScrollsIntoView() {
    ClickTab("Select_Page", 1);
    WindowNamed("Zolv").resize(700, 300);
    Settle();
    auto& box = Find<QLineEdit>("GearF");
    QVERIFY(box.visibleRegion().isEmpty());
    Find<QLineEdit>("Gear1").setFocus();
    for (int step = 0; step < 20 && !box.hasFocus(); ++step) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    Settle();
    QCOMPARE(box.visibleRegion().boundingRect(), box.rect());
}

void WindowsTogether::NextStartBringsBackTheLast() {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("zolv.ini"));
    WindowDialogs dialogs;
    dialogs.SetFolders({{QStringLiteral("*.zolv"), folder.path()}});
    WindowNamed("Zolv").setGeometry(31, 57, 700, 501);
    PickWithKeys(Find<QComboBox>("Select_Car"), "Ondo T");
    ClickTab("Select_Page", 1);
    PickWithKeys(Find<QComboBox>("Select_Graphs"), 1);
    Click(Find<QRadioButton>("Direction2"));
    SelectAllAndType(Find<QLineEdit>("B_Speed2"), "27");
    Find<QSlider>("Select_PressureF").setValue(199);
    const auto boxes = [] {
        QStringList all{TextOf("Info_Mass")};
        for (const QLineEdit* box : WindowNamed("Zolv").findChildren<QLineEdit*>()) all << box->text();
        return all;
    };
    const QStringList before = boxes();
    LastVisit(file, Windows(), dialogs).Keep();
    KeptSetUp(folder.filePath(QStringLiteral("set-up.ini")), Windows().TheBinding()).Keep();
    QVERIFY(!QFileInfo::exists(InFolder("Options.ini")));  // nothing of them has changed

    Stop();
    Start();
    WindowDialogs next;
    LastVisit visit(file, Windows(), next);
    KeptSetUp kept(folder.filePath(QStringLiteral("set-up.ini")), Windows().TheBinding());
    Windows().TheBinding().Act([&] {
        kept.BringBack();
        visit.BringBack();
    });
    Settle();
    const QRect screen = WindowNamed("Zolv").screen()->availableGeometry();
    const QRect left(31, 57, 700, 501);
    if (screen.contains(left)) QCOMPARE(WindowNamed("Zolv").geometry(), left);
    QCOMPARE(Find<QTabBar>("Select_Page").currentIndex(), 1);
    QCOMPARE(Find<QComboBox>("Select_Graphs").currentIndex(), 1);
    QCOMPARE(Find<QLineEdit>("B_Speed2").text(), QStringLiteral("27"));
    QCOMPARE(Find<QSlider>("Select_PressureF").value(), 199);
    QCOMPARE(boxes(), before);
    QCOMPARE(next.Folders().value(QStringLiteral("*.zolv")), folder.path());

    // From a larger screen, beyond the edge of this one, it comes back as far as this one goes.
    WindowNamed("Zolv").setGeometry(-300, 900, 3000, 2000);
    visit.Keep();
    visit.BringBack();
    const QRect place = WindowNamed("Zolv").geometry();
    QVERIFY(screen.contains(place) || WindowNamed("Zolv").minimumSizeHint().width() > screen.width());

    PickWithKeys(Find<QComboBox>("Select_PowerUnits", "OptionsPanel"), 1);
    visit.Keep();
    QVERIFY(QFileInfo::exists(InFolder("Options.ini")));
}

void WindowsTogether::NothingBrokenComesBack_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("NoSettings") << QByteArray("\x01\x02 this is [no file of settings\n=\n\xFF");
    QTest::newRow("OutOfRange") << QByteArray("[Window]\nPage=17\nGraph=-3\nPlace=@ByteArray(xyz)\n");
    QTest::newRow("OtherKinds") << QByteArray("[Window]\nPage=first\nGraph=@Point(1 2)\nPlace=12\n[Folders]\nzolv=7\n");
    QTest::newRow("ForeignCar") << QByteArray("[SetUp]\nSettings=\"CarName: Nobody\"\nTyres=99\n");
}

void WindowsTogether::NothingBrokenComesBack() {
    QFETCH(QByteArray, content);
    QVERIFY(Write("zolv.ini", content));
    const QRect place = WindowNamed("Zolv").geometry();
    const auto before = TextsOf(WindowNamed("Zolv"));
    WindowDialogs dialogs;
    LastVisit visit(InFolder("zolv.ini"), Windows(), dialogs);
    KeptSetUp kept(InFolder("zolv.ini"), Windows().TheBinding());
    Windows().TheBinding().Act([&] {
        kept.BringBack();
        visit.BringBack();
    });
    Settle();
    QCOMPARE(WindowNamed("Zolv").geometry(), place);
    QCOMPARE(Find<QTabBar>("Select_Page").currentIndex(), 0);
    QVERIFY(TextsOf(WindowNamed("Zolv")) == before);
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
    QTest::newRow("SmallScreen") << QSize(1024, 600);
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
        QVERIFY(Write("languages.lst", "Language: 0\r\nEnglish\r\nLonger\r\nGerman\r\n"));
        QVERIFY(Write("language_German.txt", QByteArray::fromStdString(BuiltInLanguage())));
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
    auto& languages = Find<QComboBox>("LanguageList", "LanguageSelection");
    QCOMPARE(languages.itemText(2), QStringLiteral("Deutsch"));
    QCOMPARE(languages.currentIndex(), QLocale::system().language() == QLocale::German ? 2 : 0);
    PickWithKeys(languages, 1);
    QCOMPARE(TextOf("LanguageNow", "LanguageSelection"), QStringLiteral("L0"));
    QTest::mouseClick(&Find<QPushButton>("SaveLanguage", "LanguageSelection"), Qt::LeftButton);
    Settle();
    QVERIFY(WindowNamed("Zolv").isVisible());
    QVERIFY(!WindowNamed("LanguageSelection").isVisible());
    QCOMPARE(Read("languages.lst"), QByteArray("Language: 2\r\nEnglish\r\nLonger\r\nGerman\r\n"));
}

void FirstRun::ClosingTheLanguagesBringsTheMainWindow() {
    CloseBox(WindowNamed("LanguageSelection"));
    QVERIFY(WindowNamed("Zolv").isVisible());
    QVERIFY(!Ended());
}

const bool firstRunAdded = AddSuite<FirstRun>("FirstRun");

/// The windows in the languages that are shipped.
class ShippedLanguages : public DesktopTest {
    Q_OBJECT

    void Prepare() override {
        const QDir data(QStringLiteral(ZOLV_SOURCE_DIR "/data"));
        for (const QString& name : data.entryList({QStringLiteral("*.txt"), QStringLiteral("languages.lst")})) {
            QVERIFY(QFile::copy(data.filePath(name), InFolder(qPrintable(name))));
        }
    }

private Q_SLOTS:
    void PagesHaveRoomForThem();
    void OtherWindowsHaveRoomForThem();
};

/// A car with wings has the most rows; its plots get more than half of a window of 1280.
void ShippedLanguages::PagesHaveRoomForThem() {
    QWidget& main = WindowNamed("Zolv");
    for (const std::string& language : LanguageSelection.LanguageList.Rows()) {
        Windows().TheBinding().Act([&] {
            LanguageSelection.LanguageList.SetText(language);
            LanguageSelection.SetVisible(false);
            Zolv.SetVisible(true);
            Zolv.Select_Car.SetText("Series Mu");
        });
        for (const QSize& size : {QSize(1280, 780), QSize(1024, 600)}) {
            main.resize(size);
            for (const int page : {0, 2, 3, 1}) {
                ClickTab("Select_Page", page);
                ExpectNone(CutOff(main));
            }
            const int plots = Find<QWidget>("SpeedPlot").width();
            QVERIFY2(size.width() < 1280 || 2 * plots > size.width(), language.c_str());
            QCOMPARE(Find<QWidget>("RunStrip").isVisible(), size.width() == 1280);
            PickWithKeys(Find<QComboBox>("Select_Graphs"), 2);
            const int beyond = Find<QTableView>("AccelerationData").horizontalScrollBar()->maximum();
            QVERIFY2(size.width() < 1280 || beyond == 0, language.c_str());
            PickWithKeys(Find<QComboBox>("Select_Graphs"), 0);
        }
    }
}

/// The options keep their size, also in the longer words of a language that came while the window was hidden.
void ShippedLanguages::OtherWindowsHaveRoomForThem() {
    QWidget& options = WindowNamed("OptionsPanel");
    for (const std::string& language : LanguageSelection.LanguageList.Rows()) {
        Windows().TheBinding().Act([&] {
            LanguageSelection.LanguageList.SetText(language);
            OptionsPanel.Select_Options.Pick(0);
            OptionsPanel.SetVisible(true);
        });
        Settle();
        const QSize first = options.size();
        for (const int page : {1, 2, 0}) {
            ClickTab("Select_Options", page, "OptionsPanel");
            Settle();
            QVERIFY2(options.size() == first, language.c_str());
            ExpectNone(CutOff(options));
        }
        OpenAll(Windows());
        for (const char* name : kSecondary) ExpectNone(CutOff(WindowNamed(name)));
        Windows().TheBinding().Act([] { OptionsPanel.SetVisible(false); });
    }
}

const bool shippedLanguagesAdded = AddSuite<ShippedLanguages>("ShippedLanguages");

}  // namespace
}  // namespace zolv

#include "windows_test.moc"
