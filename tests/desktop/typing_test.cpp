// Boxes that are typed into.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

#include "suites.h"

namespace zolv {
namespace {

class Typing : public DesktopTest {
    Q_OBJECT

private Q_SLOTS:
    void TypedAndPaused_data();
    void TypedAndPaused();
    void HandedOverBeforeAnythingElse_data();
    void HandedOverBeforeAnythingElse();
    void PassingDigitsNeverReachTheSearch();
    void EscapeBringsTheOldTextBack();
    void ManyDigitsAreShownAsFarAsASliderMoves();
    void UpAndDownStep_data();
    void UpAndDownStep();
    void TabSelectsAll();
    void TextThatIsComposedWaits();
    void CommaIsAPointWhereANumberIs();
    void SpeedFollowsTheRatio();
    void WrongOrderIsSaidAndTheFiguresStay();
};

QLineEdit& ThirdGear() { return Find<QLineEdit>("Gear3"); }
int ThirdGearSlider() { return Find<QSlider>("Select_Ratio3").value(); }

/// Longer than the pause behind which a text goes to its field.
void Pause() { QTest::qWait(400); }

/// Keys that stand for themselves; '<' is Backspace, '^' the start of the box, '*' a selection of all, '!' Enter.
void Press(QLineEdit& box, const QString& keys) {
    box.setFocus();
    for (const QChar key : keys) {
        switch (key.unicode()) {
            case u'<': QTest::keyClick(&box, Qt::Key_Backspace); break;
            case u'^': QTest::keyClick(&box, Qt::Key_Home); break;
            case u'*': QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier); break;
            case u'!': QTest::keyClick(&box, Qt::Key_Return); break;
            default: QTest::keyClick(&box, key.toLatin1());
        }
    }
}

/// In a box that held "2.4", whose slider goes from 0.5 to 7.5.
void Typing::TypedAndPaused_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("shown");   // at once
    QTest::addColumn<QString>("paused");  // behind the pause
    QTest::addColumn<int>("thousandths");
    const auto add = [](const char* name, const char* keys, const QString& pasted, const char* shown,
                        const char* paused, int thousandths) {
        QTest::newRow(name) << QString::fromLatin1(keys) << pasted << QString::fromLatin1(shown)
                            << QString::fromLatin1(paused) << thousandths;
    };
    add("LastDigitAnew", "<6", {}, "2.6", "2.6", 2600);
    add("PointStays", "<", {}, "2.", "2.", 2000);
    add("ZeroWaits", "*0.", {}, "0.", "0.", 2400);
    add("EmptyWaits", "*<", {}, "", "", 2400);
    add("OwnFormStays", "*02.50", {}, "02.50", "02.50", 2500);
    add("FarTooMuch", "*24", {}, "24", "7.5", 7500);
    add("BelowTheRange", "*.4", {}, ".4", "0.5", 500);
    add("CommaKey", "*2,25", {}, "2.25", "2.25", 2250);
    add("EndsAtItsLength", "*2.123456", {}, "2.123", "2.123", 2123);
    add("FullBoxRefusesAKey", "*2.123^1", {}, "2.123", "2.123", 2123);
    add("EnterWritesTheNumber", "*24!", {}, "7.5", "7.5", 7500);
    add("PastedComma", "*", QStringLiteral("2,5"), "2,5", "2.5", 2500);
    add("PastedLetters", "*", QStringLiteral("abc"), "abc", "abc", 2400);
    add("PastedLong", "*", QStringLiteral("2.12345678901234567890"), "2.123", "2.123", 2123);
    add("PastedVeryLong", "*", QString(1000000, u'9'), "99999", "7.5", 7500);
    add("PastedTwoLines", "*", QStringLiteral("2\n3"), "2\n3", "7.5", 7500);  // 23: a blank counts for nothing
}

void Typing::TypedAndPaused() {
    QFETCH(QString, keys);
    QFETCH(QString, pasted);
    QFETCH(QString, shown);
    QFETCH(QString, paused);
    QFETCH(int, thousandths);
    ClickTab("Select_Page", 1);
    QLineEdit& box = ThirdGear();
    Press(box, QStringLiteral("*2.4!"));
    Press(box, keys);
    if (!pasted.isEmpty()) Paste(box, pasted);
    QCOMPARE(box.text(), shown);
    if (!keys.endsWith(u'!')) QCOMPARE(ThirdGearSlider(), 2400);
    Pause();
    QCOMPARE(box.text(), paused);
    QCOMPARE(ThirdGearSlider(), thousandths);
    if (paused != shown) QCOMPARE(box.cursorPosition(), paused.size());

    QVERIFY(!box.hasSelectedText());

    // When it is left the number stands there in its own form, the old one for none.
    Find<QLineEdit>("Gear1").setFocus();
    const bool waited = paused == QLatin1String("0.");
    QCOMPARE(box.text(), waited ? QStringLiteral("0.5") : QString::number(thousandths / 1000.0));
}

/// What can come while a text is still being typed.
struct Interruption {
    const char* name;
    std::function<void(Desktop&)> come;
};
const Interruption kInterruptions[] = {
    {"Enter", [](Desktop&) { QTest::keyClick(&ThirdGear(), Qt::Key_Enter); }},
    {"Tab", [](Desktop&) { QTest::keyClick(&ThirdGear(), Qt::Key_Tab); }},
    {"Shortcut", [](Desktop&) { QTest::keyClick(&ThirdGear(), Qt::Key_O, Qt::ControlModifier); }},
    {"MenuEntry", [](Desktop&) { Find<QAction>("FileClose").trigger(); }},
    {"Close", [](Desktop&) { CloseBox(WindowNamed("Zolv")); }},
    {"OtherBox", [](Desktop&) { Click(Find<QLineEdit>("Gear1")); }},
    {"OtherSlider", [](Desktop&) { DragSlider(Find<QSlider>("Select_FinalDrive1"), 4200); }},
    {"Direction", [](Desktop&) { Click(Find<QRadioButton>("Direction2")); }},
    {"Page", [](Desktop&) { ClickTab("Select_Page", 3); }},
    {"Car", [](Desktop& all) { all.TheBinding().Act([] { Zolv.Select_Car.SetText("Ondo T"); }); }},
};

void Typing::HandedOverBeforeAnythingElse_data() {
    QTest::addColumn<int>("row");
    for (int row = 0; row < static_cast<int>(std::size(kInterruptions)); ++row) {
        QTest::newRow(kInterruptions[row].name) << row;
    }
}

void Typing::HandedOverBeforeAnythingElse() {
    QFETCH(int, row);
    ClickTab("Select_Page", 1);
    Click(ThirdGear());
    Press(ThirdGear(), QStringLiteral("*2,125"));
    QCOMPARE(ThirdGearSlider(), 1700);
    kInterruptions[row].come(Windows());
    QCOMPARE(ThirdGearSlider(), 2125);
    QCOMPARE(ThirdGear().text(), QStringLiteral("2.125"));
}

/// A first gear of 1 m/s cannot be had, so that the search would raise the final drive as far as it goes.
void Typing::PassingDigitsNeverReachTheSearch() {
    ClickTab("Select_Page", 1);
    Click(Find<QRadioButton>("Direction2"));
    auto& first = Find<QLineEdit>("B_Speed1");
    SelectAllAndType(first, "16");
    QCOMPARE(Find<QLineEdit>("B_Final").text(), QStringLiteral("4"));
    Press(first, QStringLiteral("*17"));
    Pause();
    QCOMPARE(Find<QSlider>("Select_Speed1").value(), 17);
    QCOMPARE(Find<QLineEdit>("B_Final").text(), QStringLiteral("4"));

    // A slow hand: what the search made of the first digit goes with the second one, or with Escape.
    Press(first, QStringLiteral("*1"));
    Pause();
    QCOMPARE(Find<QLineEdit>("B_Final").text(), QStringLiteral("7.5"));
    Press(first, QStringLiteral("7"));
    Pause();
    QCOMPARE(Find<QSlider>("Select_Speed1").value(), 17);
    QCOMPARE(first.text(), QStringLiteral("17"));
    QCOMPARE(Find<QLineEdit>("B_Final").text(), QStringLiteral("4"));
    Press(first, QStringLiteral("*1"));
    Pause();
    QTest::keyClick(&first, Qt::Key_Escape);
    QCOMPARE(Find<QLineEdit>("B_Final").text(), QStringLiteral("4"));
    QCOMPARE(first.text(), QStringLiteral("16"));  // with which the typing in this box began
}

void Typing::EscapeBringsTheOldTextBack() {
    ClickTab("Select_Page", 1);
    for (const bool paused : {false, true}) {
        Press(ThirdGear(), QStringLiteral("*2.1"));
        if (paused) Pause();
        QCOMPARE(ThirdGearSlider(), paused ? 2100 : 1700);
        QTest::keyClick(&ThirdGear(), Qt::Key_Escape);
        QCOMPARE(ThirdGear().text(), QStringLiteral("1.7"));
        QCOMPARE(ThirdGearSlider(), 1700);
        Pause();
        QCOMPARE(ThirdGearSlider(), 1700);
    }
    // In a window the first Escape is the box's, the second closes the window.
    Windows().TheBinding().Act([] { UnitConv.SetVisible(true); });
    QApplication::setActiveWindow(&WindowNamed("UnitConv"));
    auto& box = Find<QLineEdit>("MassInput", "UnitConv");
    const QString before = box.text();
    Press(box, QStringLiteral("*12"));
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(box.text(), before);
    QVERIFY(WindowNamed("UnitConv").isVisible());
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(!WindowNamed("UnitConv").isVisible());
}

/// Another direction leaves all digits of a ratio in its field.
void Typing::ManyDigitsAreShownAsFarAsASliderMoves() {
    const auto field = [] { return Zolv.Ratios.Input[3].Text(); };
    ClickTab("Select_Page", 1);
    Windows().TheBinding().Act([] { Zolv.Ratios.Input[3].SetText("1.699512345678"); });
    QCOMPARE(ThirdGear().text(), QStringLiteral("1.7"));
    Press(ThirdGear(), QStringLiteral("*1.8"));
    QTest::keyClick(&ThirdGear(), Qt::Key_Escape);
    QCOMPARE(field(), std::string("1.699512345678"));
    QCOMPARE(ThirdGear().text(), QStringLiteral("1.7"));
    Click(Find<QLineEdit>("Gear1"));  // untouched, it stays as it is
    QCOMPARE(field(), std::string("1.699512345678"));
}

void Typing::UpAndDownStep_data() {
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("shown");
    QTest::newRow("RatioUp") << "Gear3"
                             << "2" << int{Qt::Key_Up} << "2.01";
    QTest::newRow("RatioDown") << "Gear3"
                               << "1.704" << int{Qt::Key_Down} << "1.694";
    QTest::newRow("AtTheEnd") << "Gear1"
                              << "7.495" << int{Qt::Key_Up} << "7.5";
    QTest::newRow("FinalDrive") << "GearF"
                                << "3.5" << int{Qt::Key_Up} << "3.6";
    QTest::newRow("Speed") << "B_Speed3"
                           << "33" << int{Qt::Key_Down} << "32";
}

void Typing::UpAndDownStep() {
    QFETCH(QString, box);
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(QString, shown);
    ClickTab("Select_Page", 1);
    if (box.startsWith(u'B')) Click(Find<QRadioButton>("Direction2"));
    auto& edit = Find<QLineEdit>(box.toLatin1().constData());
    Press(edit, u'*' + typed);
    QTest::keyClick(&edit, static_cast<Qt::Key>(key));
    QCOMPARE(edit.text(), shown);
    QCOMPARE(edit.cursorPosition(), shown.size());
}

void Typing::TabSelectsAll() {
    ClickTab("Select_Page", 1);
    Find<QSlider>("Select_Ratio2").setFocus();
    QTest::keyClick(&Find<QSlider>("Select_Ratio2"), Qt::Key_Tab);
    QVERIFY(ThirdGear().hasFocus());
    QCOMPARE(ThirdGear().selectedText(), QStringLiteral("1.7"));
}

void Typing::TextThatIsComposedWaits() {
    ClickTab("Select_Page", 1);
    Press(ThirdGear(), QStringLiteral("*2"));
    QInputMethodEvent begun(QStringLiteral(".1"), {});
    QApplication::sendEvent(&ThirdGear(), &begun);
    Pause();
    QCOMPARE(ThirdGearSlider(), 1700);
    QInputMethodEvent done;
    done.setCommitString(QStringLiteral(".1"));
    QApplication::sendEvent(&ThirdGear(), &done);
    Pause();
    QCOMPARE(ThirdGearSlider(), 2100);
}

/// A foot is 0.3048 m.
void Typing::CommaIsAPointWhereANumberIs() {
    Windows().TheBinding().Act([] {
        UnitConv.SetVisible(true);
        CustomPresets.SetVisible(true);
    });
    PickWithKeys(Find<QComboBox>("Select_DistanceUnits", "UnitConv"), "ft");
    Press(Find<QLineEdit>("DistanceInput", "UnitConv"), QStringLiteral("*3,5!"));
    QCOMPARE(TextOf("DistanceOutput", "UnitConv"), QStringLiteral("is 1.07 m"));
    Press(Find<QLineEdit>("NewCx", "CustomPresets"), QStringLiteral("*0,35!"));
    QCOMPARE(CustomPresets.New.Cx.Text(), "0.35");
    Press(Find<QLineEdit>("NewName", "CustomPresets"), QStringLiteral("A,B!"));
    QCOMPARE(CustomPresets.NewName.Text(), "A,B");
}

/// The speed goes up with the revs and down with the ratio, but for what the tyre gives way.
void Typing::SpeedFollowsTheRatio() {
    ClickTab("Select_Page", 1);
    const double speed = NumberOf("Speed3");
    const double rpm = NumberOf("RPM3");
    SelectAllAndType(ThirdGear(), "2.125");
    const double expected = speed * (NumberOf("RPM3") / rpm) * 1.7 / 2.125;
    QVERIFY2(std::abs(NumberOf("Speed3") - expected) < 0.01 * expected, qPrintable(TextOf("Speed3")));
}

void Typing::WrongOrderIsSaidAndTheFiguresStay() {
    ClickTab("Select_Page", 1);
    const QString speed = TextOf("Speed3");
    SelectAllAndType(ThirdGear(), "3");  // longer than the second gear, 2.4
    QCOMPARE(TextOf("Speed3"), speed);
    SelectAllAndType(ThirdGear(), "1.7");
    QCOMPARE(TextOf("Speed3"), speed);
}

const bool added = AddSuite<Typing>("Typing");

}  // namespace
}  // namespace zolv

#include "typing_test.moc"
