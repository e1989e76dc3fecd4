// Words and units: another language, another unit, another locale.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QRegularExpression>
#include <QSlider>
#include <algorithm>
#include <clocale>

#include "desktop/value_label.h"
#include "gearing/run_columns.h"
#include "language/caption_table.h"
#include "suites.h"
#include "text/words.h"

namespace zolv {
namespace {

class WordsSuite : public DesktopTest {
    Q_OBJECT

    void Prepare() override {
        QVERIFY(Write("languages.lst", "Language: 1\r\nEnglish\r\nOther\r\n"));
        QVERIFY(Write("language_English.txt", QByteArray::fromStdString(BuiltInLanguage())));
        QVERIFY(
            Write("language_Other.txt", LanguageOf([](int line) { return "Zeile" + QByteArray::number(line) + "z"; })));
        QVERIFY(Write("words_Other.txt", Replaced()));
    }

    /// The words with another in place of each, German for Qt.
    static QByteArray Replaced();

private Q_SLOTS:
    void AnotherLanguageReachesAllThatCanBeRead();
    void AnotherLanguageReachesMenusAndDialogs();
    void UnitOfSpeedReachesAllLabels_data();
    void UnitOfSpeedReachesAllLabels();
    void FiguresKeepTheirWidthInEachUnit();
    void FiguresKeepTheirPlacesWhileASliderMoves();
    void DecimalCommaOfTheLocaleChangesNoNumber();
};

/// What a language does not reach, and why.
struct Kept {
    const char* names;  // of the widgets, as a pattern
    const char* reason;
};
constexpr Kept kKept[] = {
    {"Zolv title", "the program's name"},
    {"Zolv_version", "a version"},
    {"Select_Car row .*|NewCar row .*", "names of cars"},
    {"LanguageList row .*", "each language in its own words"},
    {"AeroLabel\\((12|13|15|24|25|29|30|34|35)\\)|CUPLabel\\((12|29)\\)", "a symbol of physics"},
    {"GearingLabel\\(35\\)", "v-max, a symbol of the trade"},
    {"(New|Edit)Gears row .*", "numbers"},
    {"(FromSpeed|ToSpeed|Distance|TopSpeed|Downforce|DownforceSpeed)Unit", "the short name of a unit"},
    {"Label_.*Units|Label_SPD\\d|SpeedPlot_XUnits|SpeedTimeGraph_YUnits|TorquePlot_YUnits|TEPlot_YUnits",
     "the short name of a unit"},
    {"Select_(Distance|Mass|Power|Torque)Units row .*", "short names of units, in the converter"},
    {"(Distance|Mass|Power|Torque)Output|InputSlash|InputR|TyreOutput", "numbers with their unit"},
    {"PresetsUsed", "a number"},
    {"GearingLabel\\((3[0-4]|36|37)\\)", "speeds and distances with their unit"},
};

bool IsKept(const QString& window, const QString& name) {
    for (const Kept& kept : kKept) {
        if (!QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(kept.names)))
                 .match(name)
                 .hasMatch()) {
            continue;
        }
        const bool ofConverter = QByteArray(kept.reason).contains("converter");
        if (!ofConverter || window == QLatin1String("UnitConv")) return true;
    }
    return false;
}

/// "12.3 m/s" and the like: a figure without a word of the language.
bool IsFigure(const QString& text) {
    static const QRegularExpression figure(QStringLiteral(
        "[-@]?\\s*[-\\d.]+\\s*(%|: 1|s|mm|cm\\^2|m|m\\^2|m/s|m/s\\^2|kg|kPa|kN/m|N|Nm|kW|Hz|degrees|kg/m\\^3|\\S*C"
        "|k?W/\\S+|Nm/\\S+)?( ?[/-] ?[-\\d.]+\\s*(%|mm|m|kPa)?)?( @ \\d+ rpm)?"));
    return QRegularExpression(QRegularExpression::anchoredPattern(figure.pattern())).match(text).hasMatch() ||
           text == QLatin1String("N/A");
}

void WordsSuite::AnotherLanguageReachesAllThatCanBeRead() {
    std::map<QString, std::map<QString, QString>> before;
    for (const Window* window : AllWindows()) {
        before[ToQt(window->Name())] = TextsOf(WindowNamed(window->Name().c_str()));
    }
    PickWithKeys(Find<QComboBox>("LanguageList", "LanguageSelection"), 1);
    QStringList unchanged;
    int changed = 0;
    for (const auto& [window, texts] : before) {
        const std::map<QString, QString> now = TextsOf(WindowNamed(window.toLatin1().constData()));
        for (const auto& [name, text] : texts) {
            if (now.contains(name) && now.at(name) != text) ++changed;
            if (IsFigure(text) || IsKept(window, name) || !now.contains(name) || now.at(name) != text) continue;
            unchanged << window + u'.' + name + QStringLiteral(" = ") + text;
        }
    }
    for (const auto& u : unchanged) qInfo("%s", qPrintable(u));
    ExpectNone(unchanged);
    QVERIFY(changed > 250);
}

QByteArray WordsSuite::Replaced() {
    QByteArray file;
    for (const WordRow& row : kWordTable) {
        QByteArray text = row.name == "LocaleCode" ? "de" : "Wort";
        if (row.english.find("{0}") != std::string_view::npos) text += "{0}";
        if (row.english.find("{1}") != std::string_view::npos) text += "{1}";
        file += QByteArray(row.name.data(), static_cast<qsizetype>(row.name.size())) + " = " + text + '\n';
    }
    return file;
}

void WordsSuite::AnotherLanguageReachesMenusAndDialogs() {
    const auto entries = [] {
        auto& plot = Find<QWidget>("SpeedPlot");
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(&plot, &event);
        const auto* const menu = plot.findChild<QMenu*>();
        QStringList texts;
        for (const QAction* action : menu->actions()) texts << action->text();
        delete menu;
        return texts;
    };
    const auto cancel = [] { return QDialogButtonBox(QDialogButtonBox::Cancel).buttons().first()->text(); };
    const QString english = cancel();
    ClickTab("Select_Page", 1);
    QCOMPARE(entries().first(), QStringLiteral("&Copy picture"));

    PickWithKeys(Find<QComboBox>("LanguageList", "LanguageSelection"), 1);
    for (const QString& text : entries()) QCOMPARE(text, QStringLiteral("Wort"));
    QVERIFY2(cancel().contains(QLatin1String("Abbrechen")), "Qt's translations, qt6-translations-l10n, are not there");

    PickWithKeys(Find<QComboBox>("LanguageList", "LanguageSelection"), 0);
    QCOMPARE(entries().first(), QStringLiteral("&Copy picture"));
    QCOMPARE(cancel(), english);
}

void WordsSuite::UnitOfSpeedReachesAllLabels_data() {
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<double>("factor");
    QTest::newRow("KilometersPerHour") << 1 << " km/h" << 3.6;
    QTest::newRow("MilesPerHour") << 2 << " mph" << 3600 / 1609.344;
    QTest::newRow("Knots") << 3 << " kn" << 3600 / 1852.0;
    QTest::newRow("FeetPerSecond") << 4 << " ft/s" << 1 / 0.3048;
}

void WordsSuite::UnitOfSpeedReachesAllLabels() {
    QFETCH(int, unit);
    QFETCH(QString, suffix);
    QFETCH(double, factor);
    const QString metric = QStringLiteral(" m/s");
    const auto before = TextsOf(WindowNamed("Zolv"));
    PickWithKeys(Find<QComboBox>("Select_SpeedUnits", "OptionsPanel"), unit);
    const auto now = TextsOf(WindowNamed("Zolv"));
    int followed = 0;
    for (const auto& [name, text] : before) {
        if (!text.endsWith(metric)) continue;
        const QString& other = now.at(name);
        QVERIFY2(other.endsWith(suffix.trimmed()), qPrintable(name + u' ' + other));
        bool isNumber = false;
        const double number = text.chopped(metric.size()).remove(QLatin1String("@ ")).toDouble(&isNumber);
        if (!isNumber) continue;
        const double converted = QString(other).remove(QLatin1String("@ ")).section(u' ', 0, 0).toDouble(&isNumber);
        if (name.startsWith(QLatin1String("AccDataLabel"))) continue;  // with another unit the run aims at other speeds
        // Each is rounded to its own last digit.
        QVERIFY2(isNumber && std::abs(converted - number * factor) <= 0.05 * factor + 0.5, qPrintable(name));
        ++followed;
    }
    QVERIFY(followed >= 8);
}

/// Where each figure in view stands.
std::map<QString, QRect> Places(QWidget& window) {
    std::map<QString, QRect> places;
    for (const ValueLabel* figure : window.findChildren<ValueLabel*>()) {
        if (!figure->isVisible()) continue;
        places[figure->objectName()] = QRect(figure->mapTo(&window, QPoint()), figure->size());
    }
    return places;
}

void WordsSuite::FiguresKeepTheirWidthInEachUnit() {
    QWidget& main = WindowNamed("Zolv");
    QStringList changed;
    for (const int page : {1, 2, 3}) {
        ClickTab("Select_Page", page);
        const std::map<QString, QRect> metric = Places(main);
        QVERIFY(metric.size() > 10);
        for (UnitChoice& quantity : OptionsPanel.Units) {
            auto& list = Find<QComboBox>(quantity.Select.Name().c_str(), "OptionsPanel");
            for (int unit = list.count() - 1; unit >= 0; --unit) {
                PickWithKeys(list, unit);
                const std::map<QString, QRect> now = Places(main);
                for (const auto& [name, place] : metric) {
                    const bool isTarget = name.startsWith(QLatin1String("GearingLabel"));  // each unit has other ones
                    if (isTarget || name == QLatin1String("ShiftAdvice")) continue;  // a line as wide as its column
                    if (now.at(name).size() == place.size()) continue;
                    changed << name + QStringLiteral(" in ") + list.currentText();
                }
            }
        }
    }
    ExpectNone(changed);
}

void WordsSuite::FiguresKeepTheirPlacesWhileASliderMoves() {
    QWidget& main = WindowNamed("Zolv");
    QStringList moved;
    Windows().TheBinding().Act([] { Zolv.Select_Car.SetText("Series Mu"); });
    const std::pair<int, const char*> sliders[] = {{1, "Select_FinalDrive1"},
                                                   {1, "Select_Ratio6"},
                                                   {2, "Select_PressureF"},
                                                   {3, "Select_AeroSpeed"},
                                                   {3, "Select_RearWingAngle"}};
    for (const auto& [page, name] : sliders) {
        ClickTab("Select_Page", page);
        auto& slider = Find<QSlider>(name);
        slider.setFocus();
        QTest::keyClick(&slider, Qt::Key_Home);
        Settle();
        const std::map<QString, QRect> before = Places(main);
        while (slider.value() < slider.maximum()) {
            for (int step = 0; step < 4; ++step) QTest::keyClick(&slider, Qt::Key_PageUp);
            Settle();
            for (const auto& [figure, place] : Places(main)) {
                // A sentence about an order that the slider has upset was not there before.
                if (before.contains(figure) && place != before.at(figure))
                    moved << figure + QStringLiteral(" with ") + QLatin1String(name);
            }
        }
    }
    ExpectNone(moved);
}

/// All that can be read, the run's table included.
std::map<QString, QString> Everything() {
    std::map<QString, QString> texts;
    for (const Window* window : AllWindows()) texts.merge(TextsOf(WindowNamed(window->Name().c_str())));
    for (const QLineEdit* box : WindowNamed("Zolv").findChildren<QLineEdit*>()) texts[box->objectName()] = box->text();
    ClickTab("Select_Page", 1);
    PickWithKeys(Find<QComboBox>("Select_Graphs"), 2);
    texts[QStringLiteral("table")] = ToQt(RunAsCsv());
    return texts;
}

void WordsSuite::DecimalCommaOfTheLocaleChangesNoNumber() {
    const QByteArray before = std::setlocale(LC_ALL, nullptr);
    const auto work = [] {
        ClickTab("Select_Page", 1);
        SelectAllAndType(Find<QLineEdit>("Gear3"), "1,85");
        DragSlider(*WindowNamed("Zolv").findChild<QSlider*>(QStringLiteral("Select_FinalDrive1")), 3700);
        return Everything();
    };
    std::setlocale(LC_ALL, "C");
    const std::map<QString, QString> withPoint = work();
    QVERIFY(withPoint.at(QStringLiteral("table")).contains(QLatin1Char('.')));

    Stop();
    QVERIFY2(std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr, "the locale de_DE.UTF-8 is not there");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    Start();
    const std::map<QString, QString> withComma = work();
    std::setlocale(LC_ALL, before.constData());
    QLocale::setDefault(QLocale::system());
    for (const auto& [name, text] : withPoint) QCOMPARE(withComma.at(name), text);
}

const bool added = AddSuite<WordsSuite>("Words");

}  // namespace
}  // namespace zolv

#include "words_test.moc"
