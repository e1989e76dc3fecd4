#include "desktop/qt_words.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include "desktop/texts_of_qt.h"
#include "text/words.h"

namespace zolv {

QtWords::~QtWords() { QCoreApplication::removeTranslator(&translator_); }

void QtWords::Follow() {
    if (words["LocaleCode"] == code_) return;
    code_ = words["LocaleCode"];
    QCoreApplication::removeTranslator(&translator_);
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (translator_.load(QStringLiteral("qtbase_") + ToQt(code_), folder)) {
        QCoreApplication::installTranslator(&translator_);
    }
}

}  // namespace zolv
