#include "desktop/canvas_export.h"

#include <QBuffer>
#include <string_view>

#include "desktop/canvas_painting.h"
#include "desktop/plot_marks.h"
#include "desktop/theme.h"
#include "drawing/svg.h"
#include "fields/windows.h"
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

FileRequest RequestFor(const std::string& title, const std::string& kind, const std::string& extension) {
    const std::string pattern = "*." + extension;
    return {.forSaving = true,
            .title = title,
            .filterLabel = kind + " (" + pattern + ")",
            .presetName = pattern,
            .defaultExtension = extension,
            .proposedName = Zolv.Select_Car.Text()};
}

}  // namespace

void PaintPicture(QPainter& painter, const Canvas& canvas, const PlotPlace& place, const QFont& font,
                  const CanvasInks& inks) {
    PaintGround(painter, place.ground, inks.frame, inks.frameWidth);
    PaintStrokes(painter, canvas, place);
    painter.setFont(font);
    PaintPrints(painter, canvas, place.ground);
    painter.setFont(NumberFont(font));
    PaintNumbers(painter, canvas, place, inks.words);
    PaintLegend(painter, canvas, place, inks.words);
}

QImage PictureOf(const Canvas& canvas, CanvasShape shape, const QSize& size, const QFont& font) {
    constexpr int kResolution = 2;
    const QSize whole = size + QSize(2 * kMargin, 2 * kMargin);
    QImage image(whole * kResolution, QImage::Format_RGB32);
    image.setDevicePixelRatio(kResolution);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(kMargin, kMargin);
    const PlotPlace place = PlaceOf(canvas, shape, size, QFontMetricsF(NumberFont(font)));
    PaintPicture(painter, canvas, place, font, {.words = QColor(60, 66, 74), .frame = QColor(150, 156, 164)});
    return image;
}

void SaveAsSvg(const Canvas& canvas) {
    Save(RequestFor(words["SaveAsSvg"], words["SvgPicture"], "svg"), SvgOf(canvas));
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
