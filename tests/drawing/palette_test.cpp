#include "drawing/palette.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace zolv {
namespace {

// Contrasts of #777777 and #ff0000 to white as the W3C's "Understanding WCAG" and its checkers give them.
TEST(Palette, ContrastIsThatOfWcag) {
    EXPECT_NEAR(Contrast(kWhite, kBlack), 21, 1e-9);
    EXPECT_NEAR(Contrast({0x77, 0x77, 0x77}, kWhite), 4.48, 0.005);
    EXPECT_NEAR(Contrast(kWhite, kRed), 4.00, 0.005);
}

TEST(Palette, EveryColourIsReadableAsWords) {
    for (int role = static_cast<int>(Role::PeakPower); role <= static_cast<int>(Role::Series6); ++role) {
        for (const Standing standing : {Standing::Present, Standing::Held, Standing::Doubtful}) {
            EXPECT_GE(Contrast(ColourOf({static_cast<Role>(role), standing}), kWhite), 4.5) << role;
        }
    }
    for (const Rgb pure : {kRed, kGreen, kBlue, kMagenta, kCyan}) EXPECT_GE(Contrast(Softened(pure), kWhite), 4.5);
    EXPECT_GE(Contrast(kWordsInk, kWhite), 4.5);
}

TEST(Palette, CurvesOfOnePlotDiffer) {
    using enum Role;
    const std::vector<std::vector<Role>> plots{{DrivingForce, Resistance, NetForce, FrontLoad, RearLoad},
                                               {PeakPower, PeakTorque, Limiter},
                                               {Power, Torque, Limiter},
                                               {Downforce, Drag}};
    for (const std::vector<Role>& roles : plots) {
        for (std::size_t i = 0; i < roles.size(); ++i) {
            for (std::size_t k = 0; k < i; ++k) EXPECT_NE(ColourOf(roles[i]), ColourOf(roles[k])) << i << " and " << k;
        }
    }
}

using Linear = std::array<double, 3>;

/// A colour as eyes without one kind of cone see it, by the matrices of Machado, Oliveira and Fernandes (2009) for
/// severity 1, on linear light; and then in CIE L*a*b* under D65.
Linear SeenBy(const std::array<Linear, 3>& eyes, Rgb colour) {
    const auto linear = [](std::uint8_t part) {
        return part <= 10 ? part / 255.0 / 12.92 : std::pow((part / 255.0 + 0.055) / 1.055, 2.4);
    };
    const Linear rgb{linear(colour.red), linear(colour.green), linear(colour.blue)};
    Linear seen{};
    for (std::size_t i = 0; i < 3; ++i) {
        seen[i] = std::clamp(eyes[i][0] * rgb[0] + eyes[i][1] * rgb[1] + eyes[i][2] * rgb[2], 0.0, 1.0);
    }
    const auto root = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
    const double x = root((0.4124 * seen[0] + 0.3576 * seen[1] + 0.1805 * seen[2]) / 0.9505);
    const double y = root(0.2126 * seen[0] + 0.7152 * seen[1] + 0.0722 * seen[2]);
    const double z = root((0.0193 * seen[0] + 0.1192 * seen[1] + 0.9505 * seen[2]) / 1.089);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

// A difference of 15 in L*a*b* is six times what can just be noticed side by side.
TEST(Palette, GearsDifferForEveryEye) {
    constexpr double kWellApart = 15;
    constexpr std::array<std::array<Linear, 3>, 4> kEyes{{
        {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
        {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
        {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
        {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}},
    }};
    for (const auto& eyes : kEyes) {
        for (int one = 1; one <= 6; ++one) {
            for (int other = one + 1; other <= 6; ++other) {
                const Linear a = SeenBy(eyes, GearColour(one));
                const Linear b = SeenBy(eyes, GearColour(other));
                EXPECT_GE(std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]), kWellApart)
                    << one << " and " << other << " of eyes " << &eyes - kEyes.data();
            }
        }
    }
}

}  // namespace
}  // namespace zolv
