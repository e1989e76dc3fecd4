#include "desktop/picture_ground.h"

#include <QPoint>
#include <algorithm>
#include <cstdlib>
#include <vector>

namespace zolv {
namespace {

constexpr int kBright = 190;  // the darkest channel of a plate
constexpr int kNear = 60;     // how far a pixel of the plate may be from the plate's colour at the edge of its row

int Distance(QRgb one, QRgb other) {
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

bool IsBright(QRgb colour) { return std::min({qRed(colour), qGreen(colour), qBlue(colour)}) >= kBright; }

/// The pixels of the plate, found from the left and right edges inward.
class Plate {
public:
    explicit Plate(const QImage& picture)
        : picture_(picture),
          found_(static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height())) {
        for (int y = 0; y < picture.height(); ++y) {
            Visit({0, y});
            Visit({picture.width() - 1, y});
        }
        while (!open_.empty()) {
            const QPoint at = open_.back();
            open_.pop_back();
            for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) Visit(at + step);
        }
    }

    bool Has(QPoint at) const { return found_[Index(at)]; }

private:
    std::size_t Index(QPoint at) const {
        return static_cast<std::size_t>(at.y()) * static_cast<std::size_t>(picture_.width()) +
               static_cast<std::size_t>(at.x());
    }

    void Visit(QPoint at) {
        if (!picture_.rect().contains(at) || found_[Index(at)]) return;
        if (Distance(picture_.pixel(at), picture_.pixel(0, at.y())) > kNear) return;
        found_[Index(at)] = true;
        open_.push_back(at);
    }

    const QImage& picture_;
    std::vector<bool> found_;
    std::vector<QPoint> open_;
};

/// The ground, as much darker as the pixel is darker than the plate, but less, for the ground is dark itself.
QRgb Shifted(QRgb pixel, QRgb plate, const QColor& ground) {
    const auto shift = [](int channel, int from, int to) { return std::clamp(to + (channel - from) / 3, 0, 255); };
    return qRgb(shift(qRed(pixel), qRed(plate), ground.red()), shift(qGreen(pixel), qGreen(plate), ground.green()),
                shift(qBlue(pixel), qBlue(plate), ground.blue()));
}

}  // namespace

QImage OnGround(const QImage& picture, const QColor& ground) {
    if (picture.isNull() || picture.hasAlphaChannel()) return picture;
    QImage changed = picture.convertToFormat(QImage::Format_RGB32);
    const QRgb plate = changed.pixel(0, 0);
    const bool hasPlate = IsBright(plate) && IsBright(changed.pixel(0, changed.height() - 1)) &&
                          Distance(plate, changed.pixel(changed.width() - 1, 0)) < kNear;
    if (!hasPlate) return picture;
    const Plate found(changed);
    const QImage before = changed.copy();
    for (int y = 0; y < changed.height(); ++y) {
        for (int x = 0; x < changed.width(); ++x) {
            if (found.Has({x, y})) changed.setPixel(x, y, Shifted(before.pixel(x, y), plate, ground));
        }
    }
    return changed;
}

}  // namespace zolv
