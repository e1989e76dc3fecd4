#include "desktop/sheet_pictures.h"

#include <QFontInfo>
#include <QPainter>
#include <QTextDocument>
#include <QTextImageFormat>

#include "desktop/canvas_export.h"

namespace zolv {
namespace {

/// As in a view so small that its words are read in half the width of a page.
SvgSize SizeOf(const Canvas& picture) {
    constexpr double kWidth = 440;
    const SvgSize usual = UsualSize(picture);
    return {kWidth, usual.height * kWidth / usual.width, usual.shape};
}

}  // namespace

SheetPictures::SheetPictures(const Document& sheet, const QFont& font) : font_(font) {
    font_.setPixelSize(QFontInfo(font).pixelSize());
    for (const DocumentSection& section : sheet.Sections) {
        for (const Canvas& canvas : section.Pictures) pictures_.push_back(&canvas);
    }
}

std::string SheetPictures::Markup(const Canvas& /*picture*/, std::size_t number) {
    return "<img src=\"" + std::to_string(number) + "\"/>";
}

QSizeF SheetPictures::intrinsicSize(QTextDocument* page, int /*place*/, const QTextFormat& format) {
    constexpr double kShare = 0.42;  // two beside each other, with what lies between
    const QSizeF size = SizeOnPaper(SizeOf(Picture(format)));
    return size * (kShare * page->pageSize().width() / size.width());
}

void SheetPictures::drawObject(QPainter* painter, const QRectF& rectangle, QTextDocument* /*page*/, int /*place*/,
                               const QTextFormat& format) {
    const Canvas& picture = Picture(format);
    const SvgSize size = SizeOf(picture);
    painter->save();
    painter->translate(rectangle.topLeft());
    const double scale = rectangle.width() / SizeOnPaper(size).width();
    painter->scale(scale, scale);
    PaintOnPaper(*painter, picture, size, font_);
    painter->restore();
}

const Canvas& SheetPictures::Picture(const QTextFormat& format) const {
    return *pictures_[format.toImageFormat().name().toULong()];
}

}  // namespace zolv
