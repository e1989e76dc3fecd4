#include "desktop/word_breaks.h"

#include <QStringList>
#include <algorithm>

#include "desktop/texts_of_qt.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr QChar kSoftHyphen(0xAD);

}  // namespace

QString WithBreaks(const QString& text) {
    QString broken = text;
    for (const QString& word : ToQt(words["WordBreaks"]).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        broken.replace(QString(word).remove(u'-'), QString(word).replace(u'-', kSoftHyphen));
    }
    return broken;
}

int WidestPiece(const QFontMetrics& metrics, const QString& text) {
    int width = 0;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        const QStringList pieces = word.split(kSoftHyphen);
        for (qsizetype i = 0; i < pieces.size(); ++i) {
            const bool isLast = i + 1 == pieces.size();
            width = std::max(width, metrics.horizontalAdvance(isLast ? pieces[i] : pieces[i] + u'-'));
        }
    }
    return width;
}

}  // namespace zolv
