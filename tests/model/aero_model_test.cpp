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

/// The same with all fittings.
AirProfile WingedCar() {
    AirProfile car = PlainCar();
    car.WeightDist = 0.4;
    car.Undertray = {0.25F, -1.5F, 0.75F};
    car.FrontWing = {0.0625F, -0.5F, 1.125F};
    car.RearWing = {0.125F, -1.0F, 1.25F};
    return car;
}

// Worked by hand: at 7 degrees 0.04 + 0.020972, and -0.12 less 0.30303 times 1 - 49 * 0.000193; at 15 and 30 degrees
// the flattening leaves 0.956575 and 0.8263 of the slope.
TEST(AeroModel, WingsGrowWithTheirAngleAndFlatten) {
    EXPECT_NEAR(FrontWingOf(1, 7).CdA, 0.060972, 1e-6);
    EXPECT_NEAR(FrontWingOf(1, 7).ClA, -0.420164, 1e-6);
    EXPECT_NEAR(FrontWingOf(4, 15).ClA, -0.1827 - 0.956575 * 0.993, 1e-6);
    EXPECT_NEAR(RearWingOf(2, 30).CdA, 0.047 + 900 * 0.00049, 1e-6);
    EXPECT_NEAR(RearWingOf(3, 30).ClA, -0.1246 - 0.8263 * 1.3545, 1e-6);
    EXPECT_EQ(FrontWingOf(3, 0).ClA, -0.0997F);
    EXPECT_EQ(FrontWingOf(3, 0).Position, 1.05F);
    EXPECT_EQ(RearWingOf(3, 0).Position, 1.11F);
    EXPECT_EQ(UndertrayOf(3).ClA, UndertrayOf(2).ClA);
    EXPECT_EQ(UndertrayOf(3).Position, 0.45F);
}

TEST(AeroModel, WhatACarLacksAddsNothing) {
    for (const Fitting& none : {UndertrayOf(0), FrontWingOf(0, 15), RearWingOf(0, 30), UndertrayOf(4),
                                FrontWingOf(5, 9), RearWingOf(-32768, 9)}) {
        EXPECT_EQ(none.CdA, 0);
        EXPECT_EQ(none.ClA, 0);
    }
}

// By hand: 0.5 * 1.2 * 10^2 = 60 Pa. The lift of the body has no area in it.
TEST(AeroModel, ForcesAreThoseOfTheDynamicPressure) {
    AirProfile car = WingedCar();
    car.Cl = 0.1;
    const AirForces forces = ForcesAt(10, car);
    EXPECT_NEAR(forces.BodyDrag, 60, 1e-9);
    EXPECT_NEAR(forces.BodyLift, 6, 1e-9);
    EXPECT_NEAR(forces.TotalDrag, 60 + 15 + 3.75 + 7.5, 1e-9);
    EXPECT_NEAR(forces.TotalLift, 6 - 90 - 30 - 60, 1e-9);
    const AirForces twice = ForcesAt(20, car);
    EXPECT_NEAR(twice.TotalDrag, 4 * forces.TotalDrag, 1e-9);
    EXPECT_NEAR(twice.RearWingLift, 4 * forces.RearWingLift, 1e-9);
    // 0.01 and 3.6375e-7 times 10^2.5 = 316.228 of 9806.65 + 174 N.
    EXPECT_NEAR(forces.RollingResistance, (0.01 + 1.150279e-4) * 9980.65, 1e-3);
}

TEST(AeroModel, AxlesCarryTheWeightAndTheDownforceBetweenThem) {
    const AirProfile car = WingedCar();
    for (const double speed : {0.0, 30.0, 80.0}) {
        const AxleLoads loads = AxleLoadsAt(speed, car);
        EXPECT_NEAR(loads.front + loads.rear, 9806.65 - ForcesAt(speed, car).TotalLift, 1e-6);
    }
    // By hand: front 0.75 of 100, 1.125 of 40 and -0.25 of 80; body lift like the weight.
    const AxleLoads lift = LiftOnAxles(10, -100, -40, -80, car, 0.75);
    EXPECT_NEAR(lift.front, 4 - 75 - 45 + 20, 1e-9);
    EXPECT_NEAR(lift.rear, 6 - 25 + 5 - 100, 1e-9);
    // A gear's loads divide the undertray's lift like the weight: 0.4 of it in front, for all its position of 0.75.
    AirProfile undertray = PlainCar();
    undertray.WeightDist = 0.4;
    undertray.Undertray = car.Undertray;
    EXPECT_NEAR(AxleLoadsAt(10, undertray).front, 9806.65 * 0.4 + 36, 1e-6);
}

TEST(AeroModel, TopSpeedPassesTheBalanceByAtMostOneStep) {
    const AirProfile car = WingedCar();
    for (const double power : {20.0, 100.0, 400.0}) {
        const TopSpeedResult top = TopSpeedOf(car, power);
        EXPECT_GE(top.forces.TotalFriction * top.speed / 1000, power);
        const double before = static_cast<double>(top.speed) - 0.05;
        EXPECT_LT(ForcesAt(before, car).TotalFriction * before / 1000, power);
    }
    EXPECT_GT(TopSpeedOf(car, 200).speed, TopSpeedOf(car, 100).speed);
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
