// Boxes on the gearing page, typed into.

#include <QLineEdit>
#include <QSlider>

#include "suites.h"

namespace zolv {
namespace {

class Typing : public DesktopTest {
    Q_OBJECT

private Q_SLOTS:
    void RatioDigitByDigit();
    void CommaKey();
    void CaretStaysWhereTheProgramRewrites();
    void BoxEndsAtItsMaximumLength();
    void KeyInTheMiddleOfAFullBoxIsRefused();
    void PastedText_data();
    void PastedText();
    void WrongOrderIsSaidAndTheFiguresStay();
};

QLineEdit& ThirdGear() { return Find<QLineEdit>("Gear3"); }

void Typing::RatioDigitByDigit() {
    ClickTab("Select_Page", 1);
    QLineEdit& box = ThirdGear();
    QCOMPARE(box.text(), QStringLiteral("1.7"));
    const double speed = NumberOf("Speed3");
    const double rpm = NumberOf("RPM3");

    // The slider counts thousandths and follows each key.
    const std::pair<const char*, int> keys[] = {{"2", 2000}, {".", 2000}, {"1", 2100}, {"2", 2120}, {"5", 2125}};
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    for (const auto& [key, thousandths] : keys) {
        Type(box, key);
        QCOMPARE(Find<QSlider>("Select_Ratio3").value(), thousandths);
    }
    QCOMPARE(box.text(), QStringLiteral("2.125"));
    QCOMPARE(box.cursorPosition(), 5);

    // The speed goes up with the revs and down with the ratio, but for what the tyre gives way.
    const double expected = speed * (NumberOf("RPM3") / rpm) * 1.7 / 2.125;
    QVERIFY2(std::abs(NumberOf("Speed3") - expected) < 0.01 * expected, qPrintable(TextOf("Speed3")));
}

void Typing::CommaKey() {
    ClickTab("Select_Page", 1);
    SelectAllAndType(ThirdGear(), "2,25");
    QCOMPARE(ThirdGear().text(), QStringLiteral("2.25"));
    QCOMPARE(Find<QSlider>("Select_Ratio3").value(), 2250);
}

void Typing::CaretStaysWhereTheProgramRewrites() {
    ClickTab("Select_Page", 1);
    QLineEdit& box = ThirdGear();
    SelectAllAndType(box, "2.4");
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Right);
    Type(box, "0");  // 20.4 is past the slider, and the program writes the slider's end
    QCOMPARE(box.text(), QStringLiteral("7.5"));
    QCOMPARE(box.cursorPosition(), 2);

    SelectAllAndType(box, "2.4");
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Delete);  // .4 lies below the slider's other end
    QCOMPARE(box.text(), QStringLiteral("0.5"));
    QCOMPARE(box.cursorPosition(), 0);
}

void Typing::BoxEndsAtItsMaximumLength() {
    ClickTab("Select_Page", 1);
    SelectAllAndType(ThirdGear(), "2.123456");
    QCOMPARE(ThirdGear().text(), QStringLiteral("2.123"));
    QCOMPARE(Find<QSlider>("Select_Ratio3").value(), 2123);
}

void Typing::KeyInTheMiddleOfAFullBoxIsRefused() {
    ClickTab("Select_Page", 1);
    QLineEdit& box = ThirdGear();
    SelectAllAndType(box, "2.123");
    QTest::keyClick(&box, Qt::Key_Home);
    Type(box, "1");
    QCOMPARE(box.text(), QStringLiteral("2.123"));
    QCOMPARE(box.cursorPosition(), 0);
}

/// What a box that held "1.7", all of it selected, shows after a paste, and where its slider stands. The slider goes
/// from 0.5 to 7.5, and text without a number counts as 0.
void Typing::PastedText_data() {
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("thousandths");
    QTest::newRow("Number") << QStringLiteral("2.5") << QStringLiteral("2.5") << 2500;
    QTest::newRow("Letters") << QStringLiteral("abc") << QStringLiteral("0.5") << 500;
    QTest::newRow("OneTooMany") << QStringLiteral("2.1234") << QStringLiteral("2.123") << 2123;
    QTest::newRow("Long") << QStringLiteral("2.12345678901234567890") << QStringLiteral("2.123") << 2123;
    QTest::newRow("VeryLong") << QString(1000000, QLatin1Char('9')) << QStringLiteral("7.5") << 7500;
    QTest::newRow("OtherScript") << QStringLiteral("\u0661\u0662\u4e00") << QStringLiteral("0.5") << 500;
    QTest::newRow("TwoLines") << QStringLiteral("2\n3") << QStringLiteral("7.5")
                              << 7500;  // 23: a blank counts for nothing
}

void Typing::PastedText() {
    QFETCH(QString, pasted);
    QFETCH(QString, shown);
    QFETCH(int, thousandths);
    ClickTab("Select_Page", 1);
    QTest::keyClick(&ThirdGear(), Qt::Key_A, Qt::ControlModifier);
    Paste(ThirdGear(), pasted);
    QCOMPARE(ThirdGear().text(), shown);
    QCOMPARE(Find<QSlider>("Select_Ratio3").value(), thousandths);
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
