#include "pictures/road_styles.h"

namespace zolv::pictures {
namespace {

// Every body begins under its nose and runs over the roof to the tail.
// clang-format off
constexpr Corner kCityBody[] = {
    {-.58, .17, .3}, {-.69, .20, .7}, {-.71, .40, .8}, {-.66, .57, .8}, {-.20, .645, .8}, {.19, .675, .3},
    {.38, .965, .7}, {.70, 1.01, 1}, {1.14, .965, .6}, {1.40, .66, .5}, {1.46, .56, .5}, {1.47, .28, .6}, {1.38, .17, .4}};
constexpr Corner kCityGlass[] = {{.265, .675, .15}, {.42, .905, .4}, {.72, .94, .9}, {1.07, .905, .5}, {1.26, .675, .3}};
constexpr Corner kCityDoor[] = {{.255, .675}, {.245, .40, .4}, {.32, .22, .5}, {.68, .22, .3}, {.70, .675}};
constexpr Corner kCityHeadlamp[] = {{-.75, .45, .9}, {-.56, .45, .9}, {-.56, .58, .9}, {-.75, .58, .9}};
constexpr Corner kCityTailLamp[] = {{1.37, .42}, {1.50, .42}, {1.50, .60}, {1.35, .60}};
constexpr Corner kCityGrille[] = {{-.80, .25}, {-.64, .25, .4}, {-.66, .36, .4}, {-.80, .36}};

constexpr Corner kHatchBody[] = {
    {-.72, .15, .3}, {-.82, .19, .7}, {-.84, .37, .9}, {-.72, .52, .9}, {-.10, .62, 1}, {.20, .665, .3},
    {.46, .97, .8}, {.78, 1.005, 1}, {1.24, .955, .5}, {1.52, .665, .4}, {1.60, .58, .5}, {1.62, .30, .7}, {1.52, .16, .4}};
constexpr Corner kHatchGlass[] = {{.275, .665, .15}, {.48, .905, .5}, {.78, .935, .9}, {1.16, .90, .4}, {1.36, .69, .3}};
constexpr Corner kHatchDoor[] = {{.27, .665}, {.26, .40, .4}, {.33, .21, .5}, {.68, .21, .3}, {.72, .665}};
constexpr Corner kHatchHeadlamp[] = {{-.88, .43}, {-.62, .45, .5}, {-.44, .55, .5}, {-.80, .55}};
constexpr Corner kHatchTailLamp[] = {{1.54, .46, .4}, {1.70, .46}, {1.70, .70}, {1.40, .70, .3}};
constexpr Corner kHatchGrille[] = {{-.95, .21}, {-.68, .21, .4}, {-.74, .31, .4}, {-.95, .33}};

constexpr Corner kCoupeBody[] = {
    {-.80, .16, .3}, {-.90, .19, .7}, {-.93, .36, .8}, {-.82, .49, .9}, {-.10, .60, 1}, {.27, .655, .3},
    {.52, .96, .9}, {.74, 1.01, 1}, {.98, .955, 1}, {1.32, .71, .6}, {1.70, .68, .3}, {1.80, .60, .5}, {1.78, .32, .8}, {1.66, .17, .4}};
constexpr Corner kCoupeGlass[] = {{.345, .66, .15}, {.54, .90, .5}, {.74, .94, .9}, {.93, .885, .8}, {1.10, .70, .3}};
constexpr Corner kCoupeDoor[] = {{.32, .66}, {.31, .40, .4}, {.38, .22, .5}, {.74, .22, .3}, {.80, .665}};
constexpr Corner kCoupeHeadlamp[] = {{-.95, .42}, {-.70, .43, .5}, {-.52, .52, .4}, {-.86, .50}};
constexpr Corner kCoupeTailLamp[] = {{1.58, .50, .3}, {1.90, .50}, {1.90, .62}, {1.55, .62, .3}};
constexpr Corner kCoupeGrille[] = {{-1.0, .21}, {-.76, .21, .4}, {-.82, .31, .4}, {-1.0, .33}};

constexpr Corner kFastbackBody[] = {
    {-.80, .16, .3}, {-.92, .19, .7}, {-.94, .37, .8}, {-.80, .51, .9}, {-.10, .615, 1}, {.24, .66, .3},
    {.49, .965, .9}, {.72, 1.01, 1}, {1.04, .95, 1}, {1.50, .74, .5}, {1.64, .71, .3}, {1.70, .60, .5}, {1.70, .32, .8}, {1.60, .17, .4}};
constexpr Corner kFastbackGlass[] = {{.315, .665, .15}, {.51, .905, .5}, {.72, .94, .9}, {1.0, .885, .8}, {1.28, .71, .3}};
constexpr Corner kFastbackDoor[] = {{.29, .665}, {.28, .40, .4}, {.35, .22, .5}, {.70, .22, .3}, {.75, .67}};
constexpr Corner kFastbackHeadlamp[] = {{-1.0, .42}, {-.66, .45, .5}, {-.40, .56, .4}, {-.82, .53}};
constexpr Corner kFastbackTailLamp[] = {{1.48, .55, .3}, {1.80, .50}, {1.80, .66}, {1.40, .66, .3}};
constexpr Corner kFastbackGrille[] = {{-1.0, .21}, {-.74, .21, .4}, {-.80, .32, .4}, {-1.0, .35}};

constexpr Corner kSaloonBody[] = {
    {-.76, .15, .3}, {-.86, .19, .7}, {-.88, .38, .8}, {-.80, .52, .8}, {-.10, .62, 1}, {.21, .66, .3},
    {.43, .955, .7}, {.68, 1.005, 1}, {1.00, .95, .8}, {1.24, .72, .5}, {1.70, .70, .3}, {1.79, .60, .5}, {1.78, .30, .8}, {1.66, .16, .4}};
constexpr Corner kSaloonGlass[] = {{.28, .665, .15}, {.45, .895, .5}, {.68, .935, .9}, {.94, .89, .6}, {1.10, .69, .3}};
constexpr Corner kSaloonDoor[] = {{.27, .66}, {.26, .40, .4}, {.32, .20, .5}, {.585, .20, .2}, {.60, .665}};
constexpr Corner kSaloonRearDoor[] = {{.60, .665}, {.585, .20, .2}, {.78, .20, .6}, {.86, .50, .7}, {.93, .68}};
constexpr Corner kSaloonHeadlamp[] = {{-.95, .43}, {-.62, .44, .4}, {-.50, .54, .4}, {-.90, .53}};
constexpr Corner kSaloonTailLamp[] = {{1.58, .50, .3}, {1.90, .50}, {1.90, .66}, {1.52, .66, .3}};
constexpr Corner kSaloonGrille[] = {{-1.0, .21}, {-.72, .21, .4}, {-.78, .31, .4}, {-1.0, .33}};

constexpr Corner kRearEnginedBody[] = {
    {-.74, .15, .3}, {-.86, .19, .8}, {-.88, .37, .9}, {-.74, .53, 1}, {-.12, .635, 1}, {.20, .67, .4},
    {.45, .965, .9}, {.66, 1.015, 1}, {.94, .955, 1}, {1.46, .70, .9}, {1.80, .60, .5}, {1.80, .34, .8}, {1.68, .17, .4}};
constexpr Corner kRearEnginedGlass[] = {{.275, .675, .15}, {.465, .905, .5}, {.66, .945, .9}, {.88, .89, .8}, {1.05, .735, .4}};
constexpr Corner kRearEnginedDoor[] = {{.265, .675}, {.25, .42, .4}, {.32, .22, .5}, {.69, .22, .3}, {.76, .69}};
constexpr Corner kRearEnginedHeadlamp[] = {{-.78, .46, 1}, {-.50, .46, 1}, {-.46, .62, 1}, {-.74, .60, 1}};
constexpr Corner kRearEnginedTailLamp[] = {{1.58, .50, .3}, {1.95, .48}, {1.95, .575}, {1.54, .575, .3}};
constexpr Corner kRearEnginedGrille[] = {{-1.0, .21}, {-.70, .21, .4}, {-.76, .29, .4}, {-1.0, .31}};

constexpr Corner kSpeedsterBody[] = {
    {-.72, .14, .3}, {-.84, .17, .7}, {-.86, .33, .9}, {-.62, .50, 1}, {0, .62, 1}, {.30, .66, .5}, {.36, .64, .5},
    {.60, .59, .7}, {.66, .70, .7}, {.76, .82, .9}, {1.04, .73, 1}, {1.50, .64, .5}, {1.60, .55, .5}, {1.58, .32, .8}, {1.48, .16, .4}};
constexpr Corner kSpeedsterScreen[] = {{.27, .655}, {.43, .93, .3}, {.465, .93, .3}, {.36, .645}};
constexpr Corner kSpeedsterDoor[] = {{.33, .655}, {.32, .40, .4}, {.38, .21, .5}, {.62, .21, .3}, {.64, .62}};
constexpr Corner kSpeedsterHeadlamp[] = {{-.82, .41, .5}, {-.55, .43, .8}, {-.28, .57, .6}, {-.62, .51, .6}};
constexpr Corner kSpeedsterTailLamp[] = {{1.50, .50, .8}, {1.68, .50}, {1.68, .61}, {1.50, .61, .8}};
constexpr Corner kSpeedsterGrille[] = {{-1.0, .19}, {-.68, .19, .4}, {-.74, .28, .4}, {-1.0, .30}};
constexpr Corner kSpeedsterHoop[] = {{.655, .60}, {.70, 1.0, .5}, {.755, 1.0, .5}, {.86, .70}};

constexpr Corner kClubBody[] = {
    {-.16, .28, .5}, {-.27, .33, .6}, {-.30, .54, .7}, {-.20, .635, .7}, {.10, .69, 1}, {.50, .785, .4}, {.545, .76, .5},
    {.63, .56, .7}, {.80, .56, .6}, {.85, .73, .6}, {1.10, .75, .9}, {1.38, .68, .8}, {1.48, .48, .6}, {1.38, .30, .4},
    {.98, .17, .3}, {.22, .17, .3}};
constexpr Corner kClubScreen[] = {{.50, .77}, {.545, 1.0, .3}, {.563, 1.0, .3}, {.53, .77}};
constexpr Corner kClubHeadlamp[] = {{-.20, .63, .4}, {-.02, .66, 1}, {-.02, .76, 1}, {-.20, .79, .4}};
constexpr Corner kClubTailLamp[] = {{1.40, .52, .8}, {1.56, .52}, {1.56, .62}, {1.40, .62, .8}};
constexpr Corner kClubHoop[] = {{.845, .60}, {.865, 1.04, .4}, {.90, 1.04, .4}, {1.02, .70}};
// clang-format on

}  // namespace

const RoadStyle kCityCar{.fill = 0.79,
                         .body = kCityBody,
                         .glass = kCityGlass,
                         .frontDoor = kCityDoor,
                         .headlamp = kCityHeadlamp,
                         .tailLamp = kCityTailLamp,
                         .grille = kCityGrille,
                         .pillar = 0.71,
                         .crease = 0.53};
const RoadStyle kHatchback{.fill = 0.81,
                           .body = kHatchBody,
                           .glass = kHatchGlass,
                           .frontDoor = kHatchDoor,
                           .headlamp = kHatchHeadlamp,
                           .tailLamp = kHatchTailLamp,
                           .grille = kHatchGrille,
                           .pillar = 0.73};
const RoadStyle kCoupe{.fill = 0.82,
                       .body = kCoupeBody,
                       .glass = kCoupeGlass,
                       .frontDoor = kCoupeDoor,
                       .headlamp = kCoupeHeadlamp,
                       .tailLamp = kCoupeTailLamp,
                       .grille = kCoupeGrille,
                       .pillar = 0.805};
const RoadStyle kFastback{.fill = 0.82,
                          .body = kFastbackBody,
                          .glass = kFastbackGlass,
                          .frontDoor = kFastbackDoor,
                          .headlamp = kFastbackHeadlamp,
                          .tailLamp = kFastbackTailLamp,
                          .grille = kFastbackGrille,
                          .pillar = 0.76};
const RoadStyle kSaloon{.fill = 0.80,
                        .body = kSaloonBody,
                        .glass = kSaloonGlass,
                        .frontDoor = kSaloonDoor,
                        .rearDoor = kSaloonRearDoor,
                        .headlamp = kSaloonHeadlamp,
                        .tailLamp = kSaloonTailLamp,
                        .grille = kSaloonGrille,
                        .pillar = 0.60,
                        .rearPillar = 0.93};
const RoadStyle kRearEngined{.fill = 0.82,
                             .body = kRearEnginedBody,
                             .glass = kRearEnginedGlass,
                             .frontDoor = kRearEnginedDoor,
                             .headlamp = kRearEnginedHeadlamp,
                             .tailLamp = kRearEnginedTailLamp,
                             .grille = kRearEnginedGrille,
                             .pillar = 0.77};
const RoadStyle kSpeedster{.fill = 0.90,
                           .body = kSpeedsterBody,
                           .glass = kSpeedsterScreen,
                           .frontDoor = kSpeedsterDoor,
                           .headlamp = kSpeedsterHeadlamp,
                           .tailLamp = kSpeedsterTailLamp,
                           .grille = kSpeedsterGrille,
                           .hoop = kSpeedsterHoop,
                           .crease = 0.47};
const RoadStyle kClubRoadster{.fill = 0.85,
                              .body = kClubBody,
                              .glass = kClubScreen,
                              .headlamp = kClubHeadlamp,
                              .tailLamp = kClubTailLamp,
                              .hoop = kClubHoop,
                              .crease = 0.55,
                              .cycleWings = true};

}  // namespace zolv::pictures
