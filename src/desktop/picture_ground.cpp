#include "desktop/picture_ground.h"

#include <QPoint>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "desktop/colours.h"

namespace zolv {
namespace {

constexpr int kBright = 190;  // the darkest channel of a plate
constexpr int kNear = 47;     // how far a pixel of the plate may be from the plate's colour at the edge of its row
constexpr int kBrighter = 9;  // and how much brighter; a white headlight at the edge of a car is none of the plate
constexpr QPoint kSteps[] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}};

int Distance(QRgb one, QRgb other) {
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

int Darkest(QRgb colour) { return std::min({qRed(colour), qGreen(colour), qBlue(colour)}); }

bool IsBright(QRgb colour) { return Darkest(colour) >= kBright; }

/// The pixels of the plate, found from the left and right edges inward, and from where it is seen through the car.
class Plate {
public:
    explicit Plate(const QImage& picture)
        : picture_(picture),
          found_(static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height())) {
        for (int y = 0; y < picture.height(); ++y) {
            Visit({0, y});
            Visit({picture.width() - 1, y});
        }
        Spread();
        for (int y = 1; y < picture.height() - 1; ++y) {
            for (int x = 1; x < picture.width() - 1; ++x) {
                if (!Has({x, y}) && IsSeenThrough({x, y})) Visit({x, y});
            }
        }
        Spread();
    }

    bool Has(QPoint at) const { return picture_.rect().contains(at) && found_[Index(at)]; }

private:
    void Spread() {
        while (!open_.empty()) {
            const QPoint at = open_.back();
            open_.pop_back();
            for (const QPoint step : kSteps) Visit(at + step);
        }
    }

    /// Whether a pixel and those beside it have the very colour of the plate, but for what compression left of it.
    bool IsSeenThrough(QPoint at) const {
        constexpr int kSame = 3;
        const QRgb plate = picture_.pixel(0, 0);
        return Distance(picture_.pixel(at), plate) <= kSame && std::ranges::all_of(kSteps, [&](QPoint step) {
                   return Distance(picture_.pixel(at + step), plate) <= kSame;
               });
    }

    std::size_t Index(QPoint at) const {
        return static_cast<std::size_t>(at.y()) * static_cast<std::size_t>(picture_.width()) +
               static_cast<std::size_t>(at.x());
    }

    void Visit(QPoint at) {
        if (!picture_.rect().contains(at) || found_[Index(at)]) return;
        const QRgb plate = picture_.pixel(0, at.y());
        if (Distance(picture_.pixel(at), plate) > kNear) return;
        const int brightest = std::max(Darkest(plate), Darkest(picture_.pixel(0, 0)));  // a row may be the road's edge
        if (Darkest(picture_.pixel(at)) > brightest + kBrighter) return;
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

/// A pixel at the rim of the car, where its colour and the plate's run into each other, with the ground in the plate's
/// place. The car's own colour is taken from two pixels further in.
QRgb Rim(const QImage& picture, const Plate& plate, QPoint at, const QColor& ground) {
    for (const QPoint step : kSteps) {
        const QPoint inside = at + 2 * step;
        if (!plate.Has(at - step) || plate.Has(inside) || !picture.rect().contains(inside)) continue;
        const QRgb outside = picture.pixel(picture.rect().contains(at - 2 * step) ? at - 2 * step : at - step);
        const int whole = Distance(picture.pixel(inside), outside);
        if (whole == 0) continue;
        const double share = std::min(1.0, static_cast<double>(Distance(picture.pixel(at), outside)) / whole);
        return Blend(QColor(picture.pixel(inside)), ground, share).rgb();
    }
    return picture.pixel(at);
}

}  // namespace

QImage OnGround(const QImage& picture, const QColor& ground) {
    if (picture.isNull() || picture.hasAlphaChannel()) return picture;
    QImage changed = picture.convertToFormat(QImage::Format_RGB32);
    const QRgb plate = changed.pixel(0, 0);
    const bool hasPlate = IsBright(plate) && IsBright(changed.pixel(0, changed.height() - 1)) &&
                          Distance(plate, changed.pixel(changed.width() - 1, 0)) < kNear;
    if (!hasPlate) return picture;
    const QImage before = changed.copy();
    const Plate found(before);
    for (int y = 0; y < changed.height(); ++y) {
        for (int x = 0; x < changed.width(); ++x) {
            const QPoint at(x, y);
            changed.setPixel(at,
                             found.Has(at) ? Shifted(before.pixel(at), plate, ground) : Rim(before, found, at, ground));
        }
    }
    return changed;
}

}  // namespace zolv
