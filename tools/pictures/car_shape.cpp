#include "pictures/car_shape.h"

#include <algorithm>
#include <cmath>

#include "model/tyre_geometry.h"

namespace zolv::pictures {
namespace {

constexpr double kUsualMass = 1100;  // [kg]

double Figure(const CarFigures& figures, CarField field) {
    return static_cast<double>(figures[static_cast<std::size_t>(field)]);
}

int Row(const CarFigures& figures, CarField field) { return static_cast<int>(Figure(figures, field)); }

QPointF Between(QPointF from, QPointF to, double share) { return from + (to - from) * share; }

void RoundCorner(QPainterPath& path, QPointF before, QPointF corner, QPointF after, double round) {
    path.lineTo(Between(corner, before, round / 2));
    path.quadTo(corner, Between(corner, after, round / 2));
}

}  // namespace

CarSize SizeOf(const CarFigures& figures, double fill) {
    const auto figure = [&](CarField field) { return Figure(figures, field); };
    using enum CarField;
    const double width = (figure(FTrack) + figure(RTrack)) / 2 + (figure(FTW) + figure(RTW)) / 2000;
    return {.wheelbase = figure(Wheelbase),
            .frontTyre = UnloadedRadius(figure(FTW), figure(FTP), figure(FWS)),
            .rearTyre = UnloadedRadius(figure(RTW), figure(RTP), figure(RWS)),
            .frontRim = RimRadius(figure(FWS)),
            .rearRim = RimRadius(figure(RWS)),
            .height = figure(FrontalArea) / (fill * width),
            .overhang = std::cbrt(figure(Mass) / kUsualMass),
            .undertray = Row(figures, UndertrayType),
            .frontWing = Row(figures, FrontWingType),
            .rearWing = Row(figures, RearWingType)};
}

QPointF Frame::At(double u, double v) const {
    const double between = std::clamp(u, 0.0, 1.0);
    return {between * size_.wheelbase + (u - between) * size_.overhang, v * size_.height};
}

QPainterPath Frame::Outline(Shape shape) const {
    const std::size_t count = shape.size();
    const auto at = [&](std::size_t i) { return At(shape[i % count].u, shape[i % count].v); };
    QPainterPath path(Between(at(0), at(count - 1), shape[0].round / 2));
    for (std::size_t i = 0; i < count; ++i) RoundCorner(path, at(i + count - 1), at(i), at(i + 1), shape[i].round);
    path.closeSubpath();
    return path;
}

QPainterPath Frame::Line(Shape shape) const {
    const auto at = [&](std::size_t i) { return At(shape[i].u, shape[i].v); };
    QPainterPath path(at(0));
    for (std::size_t i = 1; i + 1 < shape.size(); ++i) RoundCorner(path, at(i - 1), at(i), at(i + 1), shape[i].round);
    path.lineTo(at(shape.size() - 1));
    return path;
}

}  // namespace zolv::pictures
