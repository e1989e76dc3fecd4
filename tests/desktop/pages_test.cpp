// What the pages show beyond their fields: the run as a table, wrong orders, reasons, colours that can be read.

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <cmath>

#include "desktop/picture_ground.h"
#include "desktop/run_table.h"
#include "desktop/theme.h"
#include "suites.h"

namespace zolv {
namespace {

class Pages : public DesktopTest {
    Q_OBJECT

private Q_SLOTS:
    void WordsStandOutFromEachGround_data();
    void WordsStandOutFromEachGround();
    void PlateBehindACarIsTheGroundAndTheCarIsNot();
    void SelectionOfTheRunIsCopiedAsNumbers();
    void RunIsExportedFromItsPage();
    void WrongOrderIsSaidForAsLongAsItLasts();
    void MarksSayWhy();
    void SpeedInForceIsShownWhileItIsTheTopSpeed();
    void BurstTyresHaveNoPressureToSet();
    void UnitSystemIsOneClick();
    void PresetsAreMendedInTheirForm();
};

/// Contrast of two colours by their relative luminances, as WCAG 2.1 defines it: 1 to 21.
double ContrastOf(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double share) {
            return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

void Pages::WordsStandOutFromEachGround_data() {
    QTest::addColumn<bool>("dark");
    QTest::newRow("Light") << false;
    QTest::newRow("Dark") << true;
}

void Pages::WordsStandOutFromEachGround() {
    constexpr double kReadable = 4.5;
    QFETCH(bool, dark);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(dark ? QColor(40, 40, 40) : QColor(240, 240, 240)));
    ApplyTheme();
    const QPalette palette = QApplication::palette();
    QApplication::setPalette(before);
    ApplyTheme();
    std::vector<QColor> words{palette.color(QPalette::PlaceholderText), TextColour(kRed, palette),
                              TextColour(kBlue, palette), TextColour(kDarkGreen, palette)};
    for (const auto group : {QPalette::Active, QPalette::Disabled}) {
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            words.push_back(palette.color(group, role));
        }
    }
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button}) {
        for (const QColor& word : words) {
            QVERIFY2(ContrastOf(word, palette.color(role)) >= kReadable, qPrintable(word.name()));
        }
    }
}

void ShowTable() {
    ClickTab("Select_Page", 1);
    PickWithKeys(Find<QComboBox>("Select_Graphs"), 2);
}

void Pages::PlateBehindACarIsTheGroundAndTheCarIsNot() {
    const QColor plate(234, 239, 245);
    const QColor cover(183, 192, 201);
    const QColor ground(30, 34, 38);
    QImage picture(60, 40, QImage::Format_RGB32);
    picture.fill(plate);
    QPainter painter(&picture);
    painter.fillRect(10, 10, 40, 20, cover);
    painter.fillRect(10, 12, 6, 4, Qt::white);               // a headlight at the edge
    painter.fillRect(30, 14, 8, 8, plate);                   // seen through the car
    painter.fillRect(10, 30, 40, 2, QColor(191, 201, 210));  // a shadow
    painter.fillRect(40, 10, 10, 20, QColor(240, 178, 46));
    painter.fillRect(40, 9, 10, 1, QColor(237, 208, 145));  // its rim: half its colour, half the plate's
    painter.end();

    const QImage shown = OnGround(picture, ground);
    for (const QPoint at : {QPoint(0, 0), QPoint(59, 39), QPoint(33, 17)}) QCOMPARE(shown.pixelColor(at), ground);
    QCOMPARE(shown.pixelColor(25, 20), cover);
    QCOMPARE(shown.pixelColor(12, 13), QColor(Qt::white));
    QVERIFY(shown.pixelColor(25, 31).lightness() < ground.lightness());
    const QColor rim = shown.pixelColor(45, 9);
    QVERIFY(std::abs(rim.red() - 135) < 3 && std::abs(rim.green() - 106) < 3 && std::abs(rim.blue() - 42) < 3);
    QCOMPARE(OnGround(shown, ground), shown);  // a dark picture has no plate
}

void Pages::SelectionOfTheRunIsCopiedAsNumbers() {
    ShowTable();
    auto& table = *dynamic_cast<RunTable*>(&Find<QTableView>("AccelerationData"));
    const auto centre = [&](int row, int column) {
        return table.visualRect(table.model()->index(row, column)).center();
    };
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, centre(2, 0));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ShiftModifier, centre(3, 1));
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("0.1\t0.3\n0.15\t0.4"));

    // Another run leaves the reader where he was.
    table.verticalScrollBar()->setValue(5);
    Windows().TheBinding().Act([] { Zolv.Ratios.Input[1].Enter("3.6"); });
    QCOMPARE(table.verticalScrollBar()->value(), 5);
    QCOMPARE(table.selectionModel()->selectedIndexes().size(), 4);
}

void Pages::RunIsExportedFromItsPage() {
    QVERIFY(!Find<QPushButton>("ExportRun").isVisible());
    ShowTable();
    Asked().answers << InFolder("run.csv");
    Click(Find<QPushButton>("ExportRun"));
    QVERIFY(Read("run.csv").startsWith("Time [s],Speed [m/s],"));
}

void Enter(const char* box, const char* text) {
    SelectAllAndType(Find<QLineEdit>(box), text);
    QTest::keyClick(&Find<QLineEdit>(box), Qt::Key_Return);
    Settle();
}

/// Whether a figure is in the grey of what is older than its inputs.
bool IsGreyed(const char* figure) {
    const auto& label = Find<QLabel>(figure);
    return label.palette().color(QPalette::WindowText) ==
           QApplication::palette().color(QPalette::Disabled, QPalette::WindowText);
}

void Pages::WrongOrderIsSaidForAsLongAsItLasts() {
    const auto& line = Find<QPushButton>("OrderFault");
    ClickTab("Select_Page", 1);
    QVERIFY(!line.isVisible());
    PickWithKeys(Find<QComboBox>("Select_Graphs"), 2);
    Enter("Gear2", "2.4");
    const auto before = PlacesOf(WindowNamed("Zolv"));
    Enter("Gear2", "4");
    QVERIFY(line.isVisible());
    QVERIFY(line.text().endsWith(QStringLiteral("The ratio for 2nd cannot be shorter than the ratio for 1st")));
    QVERIFY(Find<QLineEdit>("Gear2").property("faulty").toBool());
    QVERIFY(Find<QLineEdit>("Gear1").property("faulty").toBool());  // the other one of the two
    QVERIFY(!Find<QLineEdit>("Gear3").property("faulty").toBool());
    QVERIFY(Find<QLineEdit>("Gear2").accessibleDescription().contains(QStringLiteral("2nd")));
    for (const char* figure : {"Speed1", "Torque3", "AccDataLabel(0)", "SpeedR"}) QVERIFY2(IsGreyed(figure), figure);

    // It is there on every page, and leads to the box; what does not mend it leaves it.
    ClickTab("Select_Page", 3);
    PickWithKeys(Find<QComboBox>("Select_PowerUnits", "OptionsPanel"), 1);
    QVERIFY(line.isVisible());
    Click(Find<QPushButton>("OrderFault"));
    QCOMPARE(Find<QTabBar>("Select_Page").currentIndex(), 1);
    QVERIFY(Find<QLineEdit>("Gear2").hasFocus());

    Enter("Gear2", "2.4");
    QVERIFY(!line.isVisible());
    QVERIFY(!Find<QLineEdit>("Gear2").property("faulty").toBool());
    QVERIFY(!Find<QLineEdit>("Gear1").property("faulty").toBool());
    QVERIFY(!IsGreyed("Speed1"));
    PickWithKeys(Find<QComboBox>("Select_Graphs"), 2);  // which gave way to the report
    ExpectNone(MovedSince(before, PlacesOf(WindowNamed("Zolv"))));

    // Each fault is told.
    Enter("Gear2", "4");
    Enter("Gear5", "2");
    QVERIFY(line.text().contains(QStringLiteral("for 2nd ")) && line.text().contains(QStringLiteral("for 5th ")));
}

void Pages::MarksSayWhy() {
    ClickTab("Select_Page", 1);
    const auto why = [](const char* figure) {
        const auto& label = Find<QLabel>(figure);
        return label.toolTip() == label.accessibleDescription() ? label.toolTip() : QStringLiteral("two reasons");
    };
    Enter("GearF", "2");  // so long that fifth gear ends beyond what the car has the power for
    QCOMPARE(why("Speed5"), QStringLiteral("Above the car's top speed, ") + TextOf("Aero_TopSpeed"));
    Enter("Gear2", "1.9");
    QCOMPARE(why("RAC1"), QStringLiteral("Falls below peak torque, 5456 rpm"));
    PickWithKeys(Find<QComboBox>("Select_SpeedUnits", "OptionsPanel"), 1);
    QVERIFY(why("Speed5").endsWith(QStringLiteral(" km/h")));
    Enter("GearF", "4");
    QCOMPARE(why("Speed5"), QString());
}

void Pages::SpeedInForceIsShownWhileItIsTheTopSpeed() {
    ClickTab("Select_Page", 3);
    const QString before = TextOf("AeroSpeed");
    const QString caption = ToQt(Zolv.AeroSpeed.Caption());
    Click(Find<QRadioButton>("UseFixedSpeed"));
    QCOMPARE(TextOf("AeroSpeed"), TextOf("Aero_TopSpeed"));
    QCOMPARE(TextOf("AeroSpeed_TyreTab"), TextOf("Aero_TopSpeed"));
    QCOMPARE(ToQt(Zolv.AeroSpeed.Caption()), caption);  // as scripts read it
    Click(Find<QRadioButton>("UseSliderSpeed"));
    QCOMPARE(TextOf("AeroSpeed"), before);
    QCOMPARE(Find<QSlider>("Select_AeroSpeed").value(), 40);
}

void Pages::BurstTyresHaveNoPressureToSet() {
    ClickTab("Select_Page", 2);
    for (const bool burst : {true, false}) {
        Click(Find<QCheckBox>("BlowTyres"));
        for (const char* slider : {"Select_PressureF", "Select_PressureR"}) {
            QCOMPARE(Find<QSlider>(slider).isEnabled(), !burst);
        }
    }
}

void Pages::UnitSystemIsOneClick() {
    QTest::keyClick(&WindowNamed("Zolv"), Qt::Key_O, Qt::ControlModifier);
    Click(Find<QPushButton>("ImperialUnits", "OptionsPanel"));
    const std::pair<const char*, const char*> figures[] = {
        {"Info_Mass", " lb"}, {"Aero_TopSpeed", " mph"}, {"Label_PressureF", " psi"}, {"Aero_TotalDrag", " lbf"}};
    for (const auto& [figure, unit] : figures) {
        QVERIFY2(TextOf(figure).endsWith(QLatin1String(unit)), qPrintable(TextOf(figure)));
    }
    Click(Find<QPushButton>("MetricUnits", "OptionsPanel"));
    QVERIFY(TextOf("Aero_TopSpeed").endsWith(QStringLiteral(" km/h")));
    QVERIFY(TextOf("Info_Mass").endsWith(QStringLiteral(" kg")));
}

/// The sentence beside a box of the presets; empty while there is none.
QString FaultOf(const char* sentence) {
    const auto& label = Find<QLabel>(sentence, "CustomPresets");
    return label.isVisible() ? label.text() : QString();
}

/// No message comes while a preset is refused, mended, added, and refused again when it is updated.
void Pages::PresetsAreMendedInTheirForm() {
    const char* const window = "CustomPresets";
    Windows().TheBinding().Act([] { CustomPresets.SetVisible(true); });
    Click(Find<QPushButton>("AddCar", window));  // with nothing in the form
    int marked = 0;
    for (QLineEdit* const box : WindowNamed(window).findChildren<QLineEdit*>()) {
        if (box->accessibleDescription().isEmpty()) continue;
        ++marked;
        QVERIFY2(!box->isReadOnly() && box->isEnabled(), qPrintable(box->objectName()));
    }
    QVERIFY(marked > 1);
    Windows().TheBinding().Act([] {
        CustomPresets.NewCar.SetText("Ondo T");
        CustomPresets.New.Power.Enter("0");
    });
    Settle();
    QVERIFY(!Find<QGroupBox>("Frame_Edit", window).isEnabled());
    Click(Find<QPushButton>("AddCar", window));
    QCOMPARE(FaultOf("NewNameFault"), QStringLiteral("You must enter a name for your preset."));
    QVERIFY(FaultOf("NewPowerFault").contains(QStringLiteral("at least 1kW")));
    QCOMPARE(Find<QLineEdit>("NewPower", window).accessibleDescription(), FaultOf("NewPowerFault"));
    QVERIFY(Find<QLineEdit>("NewName", window).hasFocus());

    Type(Find<QLineEdit>("NewName", window), "Kerb Runner");
    SelectAllAndType(Find<QLineEdit>("NewPower", window), "120");
    QCOMPARE(FaultOf("NewNameFault") + FaultOf("NewPowerFault"), QString());
    Click(Find<QPushButton>("AddCar", window));
    auto& list = Find<QListWidget>("EditName", window);
    QCOMPARE(list.count(), 2);
    QCOMPARE(Find<QComboBox>("Select_Car").findText(QStringLiteral("Kerb Runner")),
             Find<QComboBox>("Select_Car").count() - 1);

    QTest::keyClick(&list, Qt::Key_Down);
    Settle();
    QVERIFY(Find<QGroupBox>("Frame_Edit", window).isEnabled());
    QCOMPARE(Find<QLineEdit>("EditPower", window).text(), QStringLiteral("120"));
    SelectAllAndType(Find<QLineEdit>("EditPower", window), "0");
    Click(Find<QPushButton>("EditUpdate", window));
    QVERIFY(!FaultOf("EditPowerFault").isEmpty());
    QTest::keyClick(&list, Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_Down);
    QCOMPARE(FaultOf("EditPowerFault"), QString());
}

const bool added = AddSuite<Pages>("Pages");

}  // namespace
}  // namespace zolv

#include "pages_test.moc"
