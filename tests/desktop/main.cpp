// Runs the tests of the windows: those of the suites named first, or all. What stands behind "--" goes to the test
// runner, as does what a suite is asked by itself: zolv-desktop-tests Typing -- CommaKey

#include <QApplication>
#include <QDebug>
#include <QLocale>
#include <clocale>
#include <cstring>

#include "desktop/theme.h"
#include "suites.h"

namespace {

/// A run that is to prove something about another locale must have it.
bool HasWantedLocale() {
    const QByteArray wanted = qgetenv("ZOLV_DECIMAL_POINT");
    if (wanted.isEmpty()) return true;
    const QByteArray point = std::localeconv()->decimal_point;
    if (point == wanted && QLocale().decimalPoint() == QString::fromLatin1(wanted)) return true;
    qCritical("The locale %s has the decimal point '%s', not '%s'. Is it there?", std::setlocale(LC_ALL, nullptr),
              point.constData(), wanted.constData());
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    zolv::ApplyTheme();
    if (!HasWantedLocale()) return 1;

    QStringList suites = QApplication::arguments().mid(1);
    QStringList options{QApplication::arguments().constFirst()};
    if (const auto dashes = suites.indexOf(QLatin1String("--")); dashes >= 0) {
        options += suites.mid(dashes + 1);
        suites = suites.first(dashes);
    }
    int failed = 0;
    qsizetype found = 0;
    for (const zolv::Suite& suite : zolv::Suites()) {
        if (!suites.isEmpty() && !suites.contains(QLatin1String(suite.name))) continue;
        ++found;
        failed += QTest::qExec(suite.make().get(), options);
    }
    if (found == 0 || found < suites.size()) {
        qCritical("No such suite: %s", qPrintable(suites.join(QLatin1Char(' '))));
        return 1;
    }
    return failed == 0 ? 0 : 1;
}
