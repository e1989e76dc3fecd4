// Two set-ups side by side, steps back, and what is kept.

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>

#include "desktop/kept_set_up.h"
#include "desktop/texts_of_qt.h"
#include "desktop/value_label.h"
#include "suites.h"
#include "vehicle/custom_presets.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

class Desk : public DesktopTest {
    Q_OBJECT

private Q_SLOTS:
    void HoldingMovesNothingAndShowsChanges();
    void TheRunsTableTellsTheTimeLostBehindTheSpeed();
    void DragsAndTypedNumbersAreOneStepEach();
    void KeysOfStepsBelongToABoxWhileItIsTypedIn();
    void EscapeLeavesNoStep();
    void WhatWasNotClosedComesBack();
    void ACustomCarComesBackWithItsSetUp();
    void TitleMarksWhatIsNotSaved();
    void FilesOpenedLastAreListed();
};

const bool added = AddSuite<Desk>("Desk");

void PressKeys(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&WindowNamed("Zolv"), key, modifiers);
    Settle();
}

QString ChangeOf(const char* figure) { return Find<ValueLabel>(figure).Change(); }

void Desk::HoldingMovesNothingAndShowsChanges() {
    const auto places = [] {  // the strip itself comes and goes
        std::map<QString, QRect> all = PlacesOf(WindowNamed("Zolv"));
        std::erase_if(all, [](const auto& one) { return one.first.contains(QLatin1String("Held")); });
        return all;
    };
    ClickTab("Select_Page", 1);
    Find<QLineEdit>("Gear1").setFocus();
    Settle();
    const auto before = places();
    const auto moved = [&] { return MovedSince(before, places()); };
    PressKeys(Qt::Key_H, Qt::ControlModifier);
    QVERIFY(Find<QLabel>("Label_Held").text().startsWith(QLatin1String("Held: Pell S, ")));
    SelectAllAndType(Find<QLineEdit>("Gear3"), "1.9");
    Settle();
    QVERIFY(ChangeOf("Speed3").startsWith(u'-'));
    QVERIFY(ChangeOf("AccDataLabel(1)").startsWith(u'+') || ChangeOf("AccDataLabel(1)").startsWith(u'-'));
    QCOMPARE(moved(), QStringList());
    QVERIFY2(CutOff(WindowNamed("Zolv")).isEmpty(), qPrintable(CutOff(WindowNamed("Zolv")).join(u'\n')));

    PressKeys(Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Find<QLineEdit>("Gear3").text(), QStringLiteral("1.7"));
    QVERIFY(ChangeOf("Speed3").startsWith(u'+'));
    Click(Find<QPushButton>("HeldRelease"));
    QVERIFY(ChangeOf("Speed3").isEmpty());
    QVERIFY(!Find<QPushButton>("HeldRelease").isVisible());
    QCOMPARE(moved(), QStringList());
}

void Desk::TheRunsTableTellsTheTimeLostBehindTheSpeed() {
    ClickTab("Select_Page", 1);
    PickWithKeys(Find<QComboBox>("Select_Graphs"), 2);
    const QAbstractItemModel& table = *Find<QTableView>("AccelerationData").model();
    const auto cell = [&](int row, int column) { return table.index(row, column).data().toString(); };
    const int columns = table.columnCount();
    PressKeys(Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(table.columnCount(), columns + 1);
    QVERIFY(table.headerData(2, Qt::Horizontal).toString().startsWith(QLatin1String("Time lost")));
    const QString speed = cell(20, 1);
    QCOMPARE(cell(20, 2), QStringLiteral("0"));
    SelectAllAndType(Find<QLineEdit>("Gear1"), "3");
    Settle();
    QVERIFY(cell(20, 1) != speed);
    QVERIFY(cell(20, 2).toDouble() != 0);
    QCOMPARE(cell(20, 4), QStringLiteral("1"));
    Click(Find<QPushButton>("HeldRelease"));
    QCOMPARE(table.columnCount(), columns);
}

void Desk::DragsAndTypedNumbersAreOneStepEach() {
    ClickTab("Select_Page", 1);
    auto& slider = Find<QSlider>("Select_Ratio2");
    DragSlider(slider, 3000);
    QVERIFY(Find<QLineEdit>("Gear2").text() != QStringLiteral("2.4"));
    auto& box = Find<QLineEdit>("Gear4");
    box.setFocus();
    box.selectAll();
    Type(box, "1");
    QTest::qWait(400);  // a pause gives the field what is there
    Type(box, ".3");
    QTest::qWait(400);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.text(), QStringLiteral("1.3"));

    PressKeys(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(box.text(), QStringLiteral("1.35"));
    const QString once = Find<QLineEdit>("Gear2").text();
    DragSlider(slider, 3300);
    QVERIFY(Find<QLineEdit>("Gear2").text() != once);
    PressKeys(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Find<QLineEdit>("Gear2").text(), once);
    PressKeys(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Find<QLineEdit>("Gear2").text(), QStringLiteral("2.4"));
    QVERIFY(!Find<QAction>("EditUndo").isEnabled());
    PressKeys(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Find<QLineEdit>("Gear2").text(), once);
    PressKeys(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!Find<QAction>("EditRedo").isEnabled());
}

void Desk::KeysOfStepsBelongToABoxWhileItIsTypedIn() {
    ClickTab("Select_Page", 1);
    SelectAllAndType(Find<QLineEdit>("Gear2"), "2.3");
    auto& box = Find<QLineEdit>("Gear4");
    box.setFocus();
    box.selectAll();
    Type(box, "1.2");
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Find<QLineEdit>("Gear2").text(), QStringLiteral("2.3"));
    QVERIFY(box.text() != QStringLiteral("1.2"));
    QTest::keyClick(&box, Qt::Key_Escape);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Find<QLineEdit>("Gear2").text(), QStringLiteral("2.4"));
}

void Desk::EscapeLeavesNoStep() {
    ClickTab("Select_Page", 1);
    auto& box = Find<QLineEdit>("Gear4");
    box.setFocus();
    box.selectAll();
    Type(box, "1.2");
    QTest::qWait(400);
    QVERIFY(Find<QAction>("EditUndo").isEnabled());
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(!Find<QAction>("EditUndo").isEnabled());
}

// Without a word, a second behind the last change.
void Desk::WhatWasNotClosedComesBack() {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("set-up.ini"));
    {
        const KeptSetUp kept(file, Windows().TheBinding());
        PickWithKeys(Find<QComboBox>("Select_Car"), "Sable T");
        ClickTab("Select_Page", 2);
        Click(Find<QCheckBox>("BlowTyres"));
        ClickTab("Select_Page", 3);
        Click(Find<QRadioButton>("UseFixedSpeed"));
        ClickTab("Select_Page", 1);
        SelectAllAndType(Find<QLineEdit>("Gear3"), "1.777");
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(file), 5000);
        Stop();
    }
    Start();
    KeptSetUp kept(file, Windows().TheBinding());
    Windows().TheBinding().Act([&] { kept.BringBack(); });
    QCOMPARE(Find<QComboBox>("Select_Car").currentText(), QStringLiteral("Sable T"));
    QCOMPARE(Find<QLineEdit>("Gear3").text(), QStringLiteral("1.777"));
    QVERIFY(Find<QCheckBox>("BlowTyres").isChecked());
    QVERIFY(Find<QRadioButton>("UseFixedSpeed").isChecked());
}

void Desk::ACustomCarComesBackWithItsSetUp() {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("set-up.ini"));
    Windows().TheBinding().Act([] {
        CarFigures figures = vehicle.FiguresOfCar(vehicle.FindCar("Sable T"));
        figures[static_cast<std::size_t>(CarField::Mass)] = 1100;
        AddPresetOf("Mine", figures);
    });
    PickWithKeys(Find<QComboBox>("Select_Car"), "Mine");
    KeptSetUp(file, Windows().TheBinding()).Keep();
    Stop();
    Start();
    QCOMPARE(vehicle.PresetsUsed, 0);
    KeptSetUp(file, Windows().TheBinding()).BringBack();
    QCOMPARE(FromQt(QStringLiteral("Mine")), Zolv.Select_Car.Text());
    QCOMPARE(vehicle.CurrentCar.Mass, 1100);

    QSettings(file, QSettings::IniFormat).setValue(QStringLiteral("SetUp/Preset"), QStringList{QStringLiteral("1")});
    Stop();
    Start();
    KeptSetUp(file, Windows().TheBinding()).BringBack();
    QVERIFY(TakeMessage().contains(QLatin1String("Mine")));
}

void Desk::TitleMarksWhatIsNotSaved() {
    ClickTab("Select_Page", 1);
    QVERIFY(!WindowNamed("Zolv").isWindowModified());
    SelectAllAndType(Find<QLineEdit>("Gear3"), "1.85");
    QVERIFY(WindowNamed("Zolv").isWindowModified());
    Asked().answers << InFolder("mine.zolv");
    Find<QAction>("FileSave").trigger();
    QVERIFY(!WindowNamed("Zolv").isWindowModified());
    SelectAllAndType(Find<QLineEdit>("Gear3"), "1.8");
    QVERIFY(WindowNamed("Zolv").isWindowModified());
    PressKeys(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!WindowNamed("Zolv").isWindowModified());
}

void Desk::FilesOpenedLastAreListed() {
    for (int number = 0; number < 10; ++number) {
        Asked().answers << InFolder(qPrintable(QStringLiteral("%1.zolv").arg(number)));
        Find<QAction>("FileSaveAs").trigger();
    }
    QVERIFY(QFile::remove(InFolder("7.zolv")));
    auto* const menu = Find<QAction>("FileMenu").menu();
    const auto entries = [menu] {
        Q_EMIT menu->aboutToShow();
        QStringList listed;
        for (const QAction* entry : menu->actions()) {
            if (entry->text().endsWith(QLatin1String(".zolv"))) {
                listed << entry->text().right(6) + (entry->isEnabled() ? QString() : QStringLiteral(" missing"));
            }
        }
        return listed;
    };
    QCOMPARE(entries(), QStringLiteral("9.zolv,8.zolv,7.zolv missing,6.zolv,5.zolv,4.zolv,3.zolv,2.zolv").split(u','));
    for (QAction* entry : menu->actions()) {
        if (entry->text().endsWith(QLatin1String("5.zolv"))) {
            entry->trigger();
            break;
        }
    }
    QCOMPARE(entries().front(), QStringLiteral("5.zolv"));
    QVERIFY(TitleOf("Zolv").contains(QLatin1String("5.zolv")));
    QCOMPARE(entries().size(), 8);
}

}  // namespace
}  // namespace zolv

#include "desk_test.moc"
