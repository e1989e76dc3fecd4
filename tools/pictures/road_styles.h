#pragma once

#include "pictures/car_shape.h"

namespace zolv::pictures {

/// The lines of a body with its wheels under it. A shape that is empty is not there.
struct RoadStyle {
    double fill;           // see SizeOf
    Shape body = {};       // the silhouette, with the roof of a closed car
    Shape glass = {};      // side windows, or the windscreen of an open car
    Shape frontDoor = {};  // the gap around it
    Shape rearDoor = {};
    Shape headlamp = {}, tailLamp = {};
    Shape grille = {};
    Shape hoop = {};          // roll-over bar of an open car
    double pillar = 0;        // the post behind the front door, where the windows are parted
    double rearPillar = 0;    // a second one
    double crease = 0.5;      // height of the line along the flank
    bool cycleWings = false;  // front wheels outside the body, under wings of their own
};

extern const RoadStyle kCityCar, kHatchback, kCoupe, kFastback, kSaloon, kRearEngined, kSpeedster, kClubRoadster;

}  // namespace zolv::pictures
