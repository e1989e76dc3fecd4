#include "search/goal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "model/run_steps.h"
#include "model/sheet.h"
#include "search/search_cars.h"

namespace zolv {
namespace {

Goal GoalOf(GoalKind kind, double from, double to, double distance = 0) {
    return {.Kind = kind, .FromSpeed = from, .ToSpeed = to, .Distance = distance, .Straights = {}};
}

AccelerationSetup StartWith(std::string_view car) {
    const zolv::SetUp setUp = SetUpWith(car);
    return StartOf(setUp, EvaluateStill(setUp));
}

/// In air without density, on wheels that do not sink in, with 160 Nm at any engine speed.
AccelerationSetup EvenPull() {
    AccelerationSetup setup;
    setup.Car.Air.Mass = 1000;
    setup.Car.Air.WeightDist = 0.5;
    setup.Car.Front = setup.Car.Rear = {.UnloadedRadius = 0.3, .Stiffness = 1e15, .MaxDeformation = 0.1};
    setup.Motor = {.Power = 1000, .PowerRPM = 60'000, .Torque = 160, .TorqueRPM = 0, .IdleRPM = 0};
    setup.Curve.CurveD = 160;
    setup.Efficiency = 1;
    setup.Wheelbase = 2.5;
    setup.NumGears = 2;
    setup.DrivetrainType = 1;
    setup.TyreMu = 100;
    setup.Ratios = {0, 5, 4, 3, 3, 3, 3};
    setup.FinalDrive = 1;
    setup.ShiftRevs = {0, 1e9F, 1e9F, 1e9F, 1e9F, 1e9F, 1e9F};
    setup.LongDistance = 1000;
    return setup;
}

// By hand: 160 Nm through 5 on 0.3 m pull with 2666.667 N, against which 1 % of the weight stands; what rolling takes
// more at speed is 4 N at 16 m/s and shifts no time by 0.002 s. Speed gains a dt in each step; the distance after n of
// them is v0 n dt + a dt^2 n (n + 1) / 2. A standing start passes half the torque in its first step, and its clock
// reads a step less.
TEST(Goals, TakeThePullIntoTimes) {
    const AccelerationSetup start = EvenPull();
    const double pull = (160 * 5 / 0.3 - 98.0665) / 1000;
    const double lost = 160 * 5 / 0.3 / 2 / 1000 * 0.05;  // [m/s] in the first step
    const auto timeOver = [&](double entry, double way) {
        const double speed = entry + pull * 0.05 / 2;
        return (std::sqrt(speed * speed + 2 * pull * way) - speed) / pull;
    };
    EXPECT_NEAR(ValueOf(GoalOf(GoalKind::ToSpeed, 0, 10), start).Value, (10 + lost) / pull - 0.05, 0.002);
    EXPECT_NEAR(ValueOf(GoalOf(GoalKind::BetweenSpeeds, 5, 12), start).Value, 7 / pull, 0.002);
    EXPECT_NEAR(ValueOf(GoalOf(GoalKind::OverDistance, 0, 0, 50), start).Value, timeOver(-lost, 50) - 0.05, 0.002);

    const auto straights = TimesAlong({{"", 5, 50}, {"", 0, 50}, {"", 5, 20}}, start);
    EXPECT_NEAR(straights[0].Time, timeOver(5, 50), 0.002);
    EXPECT_NEAR(straights[0].Speed, 5 + pull * timeOver(5, 50), 0.01);
    EXPECT_NEAR(straights[1].Time, timeOver(-lost, 50) - 0.05, 0.002);
    EXPECT_NEAR(straights[2].Time, timeOver(5, 20), 0.002);
}

/// Between the row that passes and the one before it, for every car.
TEST(Goals, LieBetweenTheRowsOfThePage) {
    const auto rows = std::make_unique<RunRows>();
    for (const CatalogueCar& car : Catalogue()) {
        const zolv::SetUp setUp = SetUpWith(car.name);
        const Sheet sheet = Evaluate(setUp, *rows);
        const AccelerationSetup start = StartOf(setUp, EvaluateStill(setUp));
        for (std::size_t k = 0; k < 5; ++k) {
            const double target = AccelTargetTable[0].Speeds[k];
            const GoalValue value = ValueOf(GoalOf(GoalKind::ToSpeed, 0, target), start);
            const double row = sheet.Run.Results.SpeedTimes[k];
            ASSERT_EQ(value.Reached, row > 0) << car.name << target;
            if (value.Reached) {
                EXPECT_TRUE(value.Value <= row + 1e-5 && value.Value > row - 0.0501) << car.name << target;
            } else {
                EXPECT_NEAR(value.Most, sheet.Run.Speed, 0.5) << car.name;
            }
        }
        const double row = sheet.Run.Results.DistanceTimes[1];
        const double value = ValueOf(GoalOf(GoalKind::OverDistance, 0, 0, 1000), start).Value;
        EXPECT_TRUE(value <= row + 1e-5 && value > row - 0.0501) << car.name;
        float fastest = 0;
        for (int i = 0; i <= sheet.Run.LastRow; ++i) {
            fastest = std::max(fastest, (*rows)[static_cast<std::size_t>(i)][AccelColumn::Speed]);
        }
        EXPECT_EQ(static_cast<float>(ValueOf(GoalOf(GoalKind::TopSpeed, 0, 0), start).Value), fastest) << car.name;
    }
}

TEST(Goals, ChangeSmoothlyWithTheirTarget) {
    const AccelerationSetup start = StartWith("Wisp 4");
    double before = ValueOf(GoalOf(GoalKind::OverDistance, 0, 0, 900), start).Value;
    for (int i = 1; i <= 400; ++i) {  // in steps of 0.1 m, which take less than 0.003 s
        const double now = ValueOf(GoalOf(GoalKind::OverDistance, 0, 0, 900 + 0.1 * i), start).Value;
        ASSERT_TRUE(now > before && now < before + 0.003) << i;
        before = now;
    }
}

TEST(Goals, SayHowFarTheCarGetsTowardsOneOutOfReach) {
    const AccelerationSetup start = StartWith("Mote 900");
    const GoalValue near = ValueOf(GoalOf(GoalKind::ToSpeed, 0, 80), start);
    EXPECT_FALSE(near.Reached);
    const double top = ValueOf(GoalOf(GoalKind::TopSpeed, 0, 0), start).Value;
    EXPECT_NEAR(near.Most, top, 1e-9);
    const Goal goal = GoalOf(GoalKind::OverDistance, 0, 0, 10'000);
    const GoalValue way = ValueOf(goal, start);
    EXPECT_FALSE(way.Reached);
    EXPECT_TRUE(way.Most > 2000 && way.Most < 90 * top) << way.Most;
    EXPECT_GT(CostOf(goal, way), 90);
    EXPECT_LT(CostOf(goal, {.Most = 5000}), CostOf(goal, {.Most = 4000}));
}

TEST(Goals, ThatMakeNoSenseAreNamed) {
    using enum GoalKind;
    EXPECT_EQ(FaultOf(GoalOf(ToSpeed, 0, 0)), GoalFault::NoSpeed);
    EXPECT_EQ(FaultOf(GoalOf(ToSpeed, 0, NAN)), GoalFault::NoSpeed);
    EXPECT_EQ(FaultOf(GoalOf(BetweenSpeeds, 20, 20)), GoalFault::FromAboveTo);
    EXPECT_EQ(FaultOf(GoalOf(BetweenSpeeds, 30, 20)), GoalFault::FromAboveTo);
    EXPECT_EQ(FaultOf(GoalOf(OverDistance, 0, 0, 0)), GoalFault::NoDistance);
    EXPECT_EQ(FaultOf(GoalOf(AlongStraights, 0, 0)), GoalFault::NoStraights);
    EXPECT_EQ(FaultOf(GoalOf(BetweenSpeeds, 0, 20)), GoalFault::None);
    EXPECT_EQ(FaultOf(GoalOf(TopSpeed, 0, 0)), GoalFault::None);
}

/// Rolling at 20 m/s: of the gears short of their change, none pulls harder over the first step.
TEST(RollingStart, TakesTheGearThatPullsHardest) {
    for (const CatalogueCar& car : Catalogue()) {
        AccelerationSetup start = StartWith(car.name);
        RunSteps run(start, 20);
        run.Step();
        const AccelRow row = run.Row();
        const auto gear = static_cast<std::size_t>(row[AccelColumn::Gear]);
        EXPECT_LE(row[AccelColumn::Revs], start.ShiftRevs[gear]) << car.name;
        for (std::size_t other = 1; other <= kGears && static_cast<int>(other) <= start.NumGears; ++other) {
            // The same car with the other gear alone.
            AccelerationSetup alone = start;
            alone.NumGears = 1;
            alone.Ratios[1] = start.Ratios[other];
            RunSteps single(alone, 20);
            single.Step();
            if (single.Row()[AccelColumn::Revs] > start.ShiftRevs[other]) continue;
            EXPECT_LE(single.Row()[AccelColumn::DrivingForce], row[AccelColumn::DrivingForce]) << car.name << other;
        }
    }
}

}  // namespace
}  // namespace zolv
