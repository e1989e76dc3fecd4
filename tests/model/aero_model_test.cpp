#include "model/aero_model.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zolv {
namespace {

/// A car of 1000 kg, half of it in front, with 1.2 kg/m^3 of air around it.
AirProfile PlainCar() {
    AirProfile car;
    car.Mass = 1000;
    car.WeightDist = 0.5;
    car.Cd = 0.5;
    car.FrontalArea = 2;
    car.AirDensity = 1.2;
    return car;
}

TEST(AeroModel, WhatACarLacksAddsNothing) {
    for (const Fitting& none : {UndertrayOf(0), FrontWingOf(0, 15), RearWingOf(0, 30), UndertrayOf(4),
                                FrontWingOf(5, 9), RearWingOf(-32768, 9)}) {
        EXPECT_EQ(none.CdA, 0);
        EXPECT_EQ(none.ClA, 0);
    }
}

TEST(AeroModel, TopSpeedEndsWhereThereIsNoPowerOrNoResistance) {
    EXPECT_EQ(TopSpeedOf(PlainCar(), 0).speed, 0);
    EXPECT_EQ(TopSpeedOf(PlainCar(), -5).speed, 0);
    EXPECT_EQ(TopSpeedOf(PlainCar(), 0).forces.TotalFriction, 0);
    AirProfile lifted = PlainCar();
    lifted.Cl = 1000;
    EXPECT_TRUE(std::isfinite(TopSpeedOf(lifted, 100).speed));
    EXPECT_EQ(TopSpeedOf(PlainCar(), std::nan("")).speed, 0);
}

}  // namespace
}  // namespace zolv
