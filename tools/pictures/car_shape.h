#pragma once

#include <QPainterPath>
#include <span>

#include "model/car_record.h"

namespace zolv::pictures {

/// What the side view of a car is drawn from. Lengths in metres.
struct CarSize {
    double wheelbase = 0;
    double frontTyre = 0, rearTyre = 0;  // radii without load
    double frontRim = 0, rearRim = 0;    // radii
    double height = 0;
    double overhang = 1;  // how far the ends stand out, against a car of 1100 kg
    int undertray = 0, frontWing = 0, rearWing = 0;
};

/// @param fill  share of the box of width and height that a car of this style fills when seen from the front: height is
///              what frontal area, track and tyre width leave
CarSize SizeOf(const CarFigures& figures, double fill);

/// A corner of an outline, in a measure that fits cars of any size. u: 0 is the front axle and 1 the rear axle, below 0
/// and above 1 in metres of overhang; v: share of the car's height.
struct Corner {
    double u = 0, v = 0;
    double round = 0;  // 0 a sharp corner, 1 a curve from the middle of one side to the middle of the next
};
using Shape = std::span<const Corner>;

/// Turns corners into metres: x from the front axle to the rear, y up from the ground.
class Frame {
public:
    explicit Frame(const CarSize& size) : size_(size) {}

    QPointF At(double u, double v) const;
    QPainterPath Outline(Shape shape) const;
    /// The same, left open at its ends.
    QPainterPath Line(Shape shape) const;

private:
    CarSize size_;
};

}  // namespace zolv::pictures
