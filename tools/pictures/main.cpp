// zolv-pictures: draws every picture that the programs show, from the catalogue and from nothing else.
//
// Usage: zolv-pictures PICTURES ICONS
//   PICTURES  folder for the cars, "unknown.jpg", "title.png", "logo.png" and "zolv.png"
//   ICONS     folder for the icon theme: SIZExSIZE/apps/zolv.png, scalable/apps/zolv.svg, and an icon for each kind of
//             file, SIZExSIZE/mimetypes/application-x-zolv-KIND.png

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <cstdio>

#include "model/catalogue.h"
#include "pictures/gallery.h"
#include "pictures/icon.h"
#include "pictures/wordmark.h"

namespace zolv::pictures {
namespace {

constexpr int kQuality = 88;

struct FileKind {
    const char* name;
    QRgb stripe;
};
constexpr FileKind kFileKinds[] = {{"setup", 0xe2661c}, {"preset", 0x3a668c}, {"straights", 0x4f8a4b}};

constexpr int kIconSizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

bool Complain(const QString& what) {
    std::fprintf(stderr, "zolv-pictures: %s\n", qPrintable(what));
    return false;
}

bool Save(const QImage& image, const QString& path) {
    return image.save(path, nullptr, kQuality) || Complain(QStringLiteral("cannot write ") + path);
}

bool SaveCars(const QDir& folder) {
    for (const CatalogueCar& car : Catalogue()) {
        const QString name = QString::fromUtf8(car.name.data(), static_cast<qsizetype>(car.name.size()));
        if (!HasLook(car.name)) return Complain(QStringLiteral("no look is given for ") + name);
        if (!Save(PictureOfCar(car.name, car.figures), folder.filePath(name + QStringLiteral(".jpg")))) return false;
    }
    return Save(PictureOfUnknown(), folder.filePath(QStringLiteral("unknown.jpg")));
}

bool SaveMarks(const QDir& folder) {
    return Save(Title(), folder.filePath(QStringLiteral("title.png"))) &&
           Save(Logo(), folder.filePath(QStringLiteral("logo.png"))) &&
           Save(IconOf(256), folder.filePath(QStringLiteral("zolv.png")));
}

bool SaveFileIcons(const QDir& theme, int size) {
    const QString folder = QStringLiteral("%1x%1/mimetypes").arg(size);
    if (!theme.mkpath(folder)) return Complain(QStringLiteral("cannot make ") + folder);
    return std::ranges::all_of(kFileKinds, [&](const FileKind& kind) {
        const QString name = QStringLiteral("/application-x-zolv-") + QLatin1String(kind.name) + QStringLiteral(".png");
        return Save(SheetIconOf(size, QColor(kind.stripe)), theme.filePath(folder + name));
    });
}

bool SaveIcons(const QDir& theme) {
    for (const int size : kIconSizes) {
        if (!SaveFileIcons(theme, size)) return false;
        const QString folder = QStringLiteral("%1x%1/apps").arg(size);
        if (!theme.mkpath(folder) || !Save(IconOf(size), theme.filePath(folder + QStringLiteral("/zolv.png"))))
            return false;
    }
    if (!theme.mkpath(QStringLiteral("scalable/apps"))) return Complain(QStringLiteral("cannot make ") + theme.path());
    QFile svg(theme.filePath(QStringLiteral("scalable/apps/zolv.svg")));
    return (svg.open(QIODevice::WriteOnly) && svg.write(IconAsSvg()) > 0 && svg.flush()) ||
           Complain(QStringLiteral("cannot write ") + svg.fileName());
}

}  // namespace
}  // namespace zolv::pictures

int main(int argc, char** argv) {
    using namespace zolv::pictures;
    const QCoreApplication application(argc, argv);  // finds the plug-in that writes JPEG
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: zolv-pictures PICTURES ICONS\n", stderr);
        return 2;
    }
    const QDir pictures(arguments[1]), icons(arguments[2]);
    if (!pictures.mkpath(QStringLiteral(".")) || !icons.mkpath(QStringLiteral("."))) {
        Complain(QStringLiteral("cannot make the folders"));
        return 1;
    }
    return SaveCars(pictures) && SaveMarks(pictures) && SaveIcons(icons) ? 0 : 1;
}
