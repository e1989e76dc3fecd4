#include "model/gear_speeds.h"

#include <gtest/gtest.h>

#include <tuple>

namespace zolv {
namespace {

/// 1000 kg, half on each axle, without air; tyres of 0.3 m on 100 kN/m in front, of 0.4 m on 200 kN/m in the rear.
RollingCar Car() {
    RollingCar car;
    car.Air.Mass = 1000;
    car.Air.WeightDist = 0.5;
    car.Air.AirDensity = 1.2;
    car.Front = {.UnloadedRadius = 0.3, .Stiffness = 100'000, .MaxDeformation = 0.1};
    car.Rear = {.UnloadedRadius = 0.4, .Stiffness = 200'000, .MaxDeformation = 0.1};
    car.TyreSlip = 0.01;
    return car;
}

// By hand: 4903.325 N on an axle squash its tyres by 24.517 mm in front, 12.258 mm in the rear. 6000 rpm through 2 and
// 3 are 1000 at the wheel; a metre of radius makes 2 pi / 60 * 0.99 = 0.1036726 m/s of each.
TEST(GearSpeeds, AreThoseOfTheDrivenTyresUnderTheirLoad) {
    const SettledGear front = SettleGear(Car(), 6000, 2, 3, kForwardRounds);
    EXPECT_NEAR(front.Deformation, 0.024516625, 1e-9);
    EXPECT_NEAR(front.Speed, 0.275483375 * 103.6726, 1e-4);
    EXPECT_NEAR(front.SpeedFactor, front.Speed / 1000, 1e-8);

    RollingCar rearDriven = Car();
    rearDriven.RearDriven = true;
    const SettledGear rear = SettleGear(rearDriven, 6000, 2, 3, kForwardRounds);
    EXPECT_NEAR(rear.Speed, 0.3877416875 * 103.6726, 1e-4);
    EXPECT_EQ(rear.Deformation, static_cast<double>(static_cast<float>(rear.Deformation)));  // stored single
    EXPECT_NE(front.Deformation, static_cast<double>(static_cast<float>(front.Deformation)));
}

// A soft, tall tyre under an absurd undertray, so that the rounds swing far. From a separate calculation in Python.
TEST(GearSpeeds, SettleDownforceAndSpeedByTheNumberOfRounds) {
    RollingCar car = Car();
    car.Air.Undertray.ClA = -20;
    car.Front = {.UnloadedRadius = 0.4, .Stiffness = 100'000, .MaxDeformation = 0.3};
    for (const auto& [rounds, speed, deformation] :
         {std::tuple(1, 35.066577, 0.2308782), std::tuple(kReverseRounds, 47.195520, 0.1723818),
          std::tuple(kForwardRounds, 63.999322, 0.0913391)}) {
        const SettledGear gear = SettleGear(car, 6000, 1, 3, rounds);
        EXPECT_NEAR(gear.Speed, speed, 1e-4);
        EXPECT_NEAR(gear.Deformation, deformation, 1e-7);
    }
}
static_assert(kReverseRounds == 3 && kForwardRounds == 4);

TEST(GearSpeeds, TakeTheirLoadsFromAGivenSpeed) {
    RollingCar car = Car();
    car.Air.FrontWing = {0, -1, 1};
    const SettledGear gear = SettleGear(car, 6000, 2, 3, kForwardRounds, 50.0);
    EXPECT_NEAR(gear.Loads.front, 4903.325 + 1500, 1e-3);  // 0.6 * 50^2 on the front alone
    EXPECT_NEAR(gear.Loads.rear, 4903.325, 1e-3);
    EXPECT_EQ(GearAxleLoadsAt(car, 50).front, gear.Loads.front);
}

}  // namespace
}  // namespace zolv
