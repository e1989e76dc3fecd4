#pragma once

#include <QFont>
#include <QObject>
#include <QTextObjectInterface>
#include <string>
#include <vector>

#include "drawing/document.h"
#include "drawing/svg.h"

namespace zolv {

/// Draws the pictures of a document line by line where its text has their names, as sharp as the paper. It is given to
/// the layout of the text as what handles images there.
class SheetPictures : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// @param sheet  outlives this
    SheetPictures(const Document& sheet, const QFont& font);

    /// The place of a picture in the text, as HtmlOf takes it.
    static std::string Markup(const Canvas& picture, std::size_t number);

    QSizeF intrinsicSize(QTextDocument* page, int place, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& rectangle, QTextDocument* page, int place,
                    const QTextFormat& format) override;

private:
    [[nodiscard]] const Canvas& Picture(const QTextFormat& format) const;

    std::vector<const Canvas*> pictures_;
    QFont font_;
};

}  // namespace zolv
