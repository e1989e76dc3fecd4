// The finder and the sweep as a person uses them, with the windows usable meanwhile.

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "desktop/canvas_view.h"
#include "desktop/text_table.h"
#include "studies/finder_page.h"
#include "studies/sweep_page.h"
#include "suites.h"

namespace zolv {
namespace {

class Studies : public DesktopTest {
    Q_OBJECT

private Q_SLOTS:
    void ASearchLeavesTheWindowUsable();
    void TheProgramClosesInTheMiddleOfASearch();
    void StraightsAreEditedInATable();
    void AClickOnAMapTakesItsInputsOver();
};

/// The windows may be higher than the screen of the tests, so that a mouse would not reach each button.
void Press(const char* name, const char* window) {
    Find<QPushButton>(name, window).click();
    Settle();
}

/// A search that takes its time: a thousand straights, each with an entry speed of its own.
void StartLongSearch() {
    std::string track = "name,entry speed,length\n";
    for (int i = 0; i < 1000; ++i) track += "s," + std::to_string(i % 50) + '.' + std::to_string(i) + ",9000\n";
    Finder.Straights.SetText(track);
    Finder.Goal.Pick(4);
    Press("Start", "Finder");
}

void Studies::ASearchLeavesTheWindowUsable() {
    Find<QAction>("ToolsFinder").trigger();
    Settle();
    QVERIFY(Find<QCheckBox>("FreeRatios", "Finder").isChecked());
    QVERIFY(!Find<QPushButton>("Stop", "Finder").isEnabled());
    StartLongSearch();
    QVERIFY(finderWork.Running());
    QVERIFY(Find<QPushButton>("Stop", "Finder").isEnabled());
    ClickTab("Select_Page", 1);
    SelectAllAndType(Find<QLineEdit>("Gear1"), "3.6");
    QCOMPARE(Find<QLineEdit>("Gear1").text(), QStringLiteral("3.6"));
    QTRY_VERIFY_WITH_TIMEOUT(TextOf("Status", "Finder").contains(QLatin1String("on the pages")), 5000);
    Press("Stop", "Finder");
    QTRY_VERIFY_WITH_TIMEOUT(!finderWork.Running(), 20000);
    QVERIFY(TextOf("Status", "Finder").startsWith(QLatin1String("Stopped")));
    QVERIFY(!Find<QPushButton>("Stop", "Finder").isEnabled());

    PickWithKeys(Find<QComboBox>("Goal", "Finder"), 1);
    Press("Start", "Finder");
    QTRY_VERIFY_WITH_TIMEOUT(!finderWork.Running(), 20000);
    const double present = TextOf("Present", "Finder").chopped(2).toDouble();
    const double found = TextOf("Found", "Finder").chopped(2).toDouble();
    QVERIFY2(found > 0 && found < present, qPrintable(TextOf("Found", "Finder")));
    const auto& table = Find<TextTable>("Table", "Finder");
    QCOMPARE(table.model()->index(0, 2).data().toString(), TextOf("Found", "Finder"));
    Press("TakeOver", "Finder");
    // Rows of ratios stand below that of the goal.
    QCOMPARE(Find<QLineEdit>("Gear1").text().toDouble(), table.model()->index(1, 2).data().toDouble());
}

void Studies::TheProgramClosesInTheMiddleOfASearch() {
    Find<QAction>("ToolsFinder").trigger();
    Settle();
    StartLongSearch();
    CloseBox(WindowNamed("Finder"));
    QVERIFY(finderWork.Running());  // a hidden window searches on
    CloseBox(WindowNamed("Zolv"));
    QVERIFY(Ended());
    QVERIFY(!finderWork.Running());
}

void Studies::StraightsAreEditedInATable() {
    Find<QAction>("ToolsFinder").trigger();
    Settle();
    PickWithKeys(Find<QComboBox>("Goal", "Finder"), 4);
    Settle();
    auto& table = Find<TextTable>("Straights", "Finder");
    const auto enter = [&](int row, int column, const char* text) {
        QVERIFY(row < table.model()->rowCount());
        table.model()->setData(table.model()->index(row, column), QString::fromUtf8(text));
        Settle();
    };
    Press("AddStraight", "Finder");
    Press("AddStraight", "Finder");
    enter(0, 0, "Hill, \"upper\"");
    enter(0, 1, "20,5");
    enter(1, 2, "3oo");
    QCOMPARE(TextOf("StraightsNote", "Finder"), QStringLiteral("Line 3: \"3oo\" is not a number."));
    Press("Start", "Finder");
    QCOMPARE(TakeMessage(), QStringLiteral("Line 3: \"3oo\" is not a number."));
    enter(1, 2, "300");
    QCOMPARE(table.model()->rowCount(), 2);
    QCOMPARE(ToQt(Finder.Straights.Text()),
             QStringLiteral("name,entry speed [m/s],length [m]\r\n\"Hill, \"\"upper\"\"\",20.5,500\r\n2,0,300\r\n"));
    QCOMPARE(Find<TextTable>("StraightTimes", "Finder").model()->rowCount(), 3);  // and their sum
    table.setCurrentIndex(table.model()->index(0, 1));
    Press("RemoveStraight", "Finder");
    QCOMPARE(TextOf("StraightsNote", "Finder"), QStringLiteral("Straights: 1"));
}

void Studies::AClickOnAMapTakesItsInputsOver() {
    PickWithKeys(Find<QComboBox>("Select_Car"), "Series Mu");
    Find<QAction>("ToolsSweep").trigger();
    Settle();
    PickWithKeys(Find<QComboBox>("Input", "Sweep"), "Front Wing");
    PickWithKeys(Find<QComboBox>("Input2", "Sweep"), "Rear Wing");
    SelectAllAndType(Find<QLineEdit>("Steps", "Sweep"), "16");
    SelectAllAndType(Find<QLineEdit>("Steps2", "Sweep"), "31");
    PickWithKeys(Find<QComboBox>("Result", "Sweep"), "Total Lift");
    Press("Start", "Sweep");
    QTRY_VERIFY_WITH_TIMEOUT(!sweepWork.Running(), 20000);
    Settle();
    const auto& table = Find<TextTable>("Table", "Sweep");
    QCOMPARE(table.model()->columnCount(), 17);
    QCOMPARE(table.model()->rowCount(), 31);
    auto& plot = Find<CanvasView>("Plot", "Sweep");
    QTest::mouseClick(&plot, Qt::LeftButton, {}, plot.rect().center());
    Settle();
    const int front = Zolv.Select_FrontWingAngle.Value();
    const int rear = Zolv.Select_RearWingAngle.Value();
    // The middle of the view lies a little off that of the plot, which has its numbers on the left and below.
    QVERIFY2(front >= 6 && front <= 9 && rear >= 13 && rear <= 17, qPrintable(QString::number(front)));
    QCOMPARE(Find<QLineEdit>("Point", "Sweep").text(), QString::number(front));
    QVERIFY(Find<QAction>("EditUndo").isEnabled());  // a step of its own
    QCOMPARE(Find<QLineEdit>("Point2", "Sweep").text(), QString::number(rear));
    Asked().answers = {InFolder("map.png")};
    Press("SavePng", "Sweep");
    QCOMPARE(Read("map.png").mid(1, 3), QByteArray("PNG"));
}

const bool added = AddSuite<Studies>("Studies");

}  // namespace
}  // namespace zolv

#include "studies_test.moc"
