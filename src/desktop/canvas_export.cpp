#include "desktop/canvas_export.h"

#include <QBuffer>
#include <string_view>

#include "desktop/canvas_painting.h"
#include "desktop/plot_marks.h"
#include "desktop/theme.h"
#include "fields/all_windows.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/words.h"

namespace zolv {
namespace {

void Save(const FileRequest& request, std::string_view content) {
    const std::string path = AskForFile(request);
    if (path.empty() || path == request.presetName) return;
    const std::string reason = WriteTextFile(path, content);
    if (!reason.empty()) ShowMessage(CannotWrite(path, reason));
}

FileRequest RequestFor(std::string_view title, std::string_view kind, const std::string& extension) {
    const std::string pattern = "*." + extension;
    return {.forSaving = true,
            .title = std::string(title),
            .filterLabel = std::string(kind) + " (" + pattern + ")",
            .presetName = pattern,
            .defaultExtension = extension,
            .proposedName = Zolv.Select_Car.Text()};
}

}  // namespace

void PaintPicture(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QFont& font,
                  const CanvasInks& inks) {
    PaintGround(painter, place.ground, inks.frame, inks.frameWidth);
    painter.setOpacity(inks.strokes);
    PaintStrokes(painter, canvas, place);
    painter.setOpacity(1);
    PaintScale(painter, place.scale, inks.frame);
    painter.setFont(font);
    PaintPrints(painter, canvas, place.ground);
    painter.setFont(NumberFont(font));
    PaintLabels(painter, canvas, place, inks.words);
}

QSizeF SizeOnPaper(const SvgSize& size) { return {size.width + 2 * kMargin, size.height + 2 * kMargin}; }

void PaintOnPaper(QPainter& painter, const Canvas& canvas, const SvgSize& size, const QFont& font) {
    painter.save();
    painter.fillRect(QRectF(QPointF(), SizeOnPaper(size)), Qt::white);
    painter.translate(kMargin, kMargin);
    const PlotPlace place = PlaceOf(canvas, size.shape, {size.width, size.height}, MeasureOf(NumberFont(font)));
    PaintPicture(painter, canvas, place, font, {.words = ToQt(kWordsInk), .frame = ToQt(kFrameInk)});
    painter.restore();
}

QImage PictureOf(const Canvas& canvas, const SvgSize& size, const QFont& font) {
    constexpr int kResolution = 2;
    QImage image((SizeOnPaper(size) * kResolution).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(kResolution);
    QPainter painter(&image);
    PaintOnPaper(painter, canvas, size, font);
    return image;
}

void SaveAsSvg(const Canvas& canvas, const SvgSize& size) {
    Save(RequestFor(words["SaveAsSvg"], words["SvgPicture"], "svg"), SvgOf(canvas, size));
}

void SaveAsPng(const QImage& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    Save(RequestFor(words["SaveAsPng"], words["PngPicture"], "png"),
         {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace zolv
