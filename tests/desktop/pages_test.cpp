// What the pages show beyond their fields: the run as a table, colours that can be read.

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QPushButton>
#include <QScrollBar>
#include <cmath>

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
    void SelectionOfTheRunIsCopiedAsNumbers();
    void RunIsExportedFromItsPage();
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

const bool added = AddSuite<Pages>("Pages");

}  // namespace
}  // namespace zolv

#include "pages_test.moc"
