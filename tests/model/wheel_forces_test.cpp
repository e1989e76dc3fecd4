#include "model/wheel_forces.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

#include "model/catalogue.h"
#include "model/run_log.h"
#include "model/sheet.h"
#include "model/shift_advice.h"
#include "search/search_cars.h"

namespace zolv {
namespace {

/// 1000 kg, 60 % of them in front, on tyres that hardly give; 200 Nm at 4000 rpm, falling by 25 Nm each 1000 rpm from
/// there. Its two gears, 2 and 1.5 times 4, turn wheels of 0.3 m.
AccelerationSetup HandMade(int drivetrain) {
    AccelerationSetup car;
    car.Car.Air.Mass = 1000;
    car.Car.Air.WeightDist = 0.6;
    car.Car.Air.AirDensity = 1.25;
    car.Car.Front = car.Car.Rear = {.UnloadedRadius = 0.3, .Stiffness = 1e12, .MaxDeformation = 0.1};
    car.Car.RearDriven = drivetrain == 1;
    car.Motor = {.Power = 188.4, .PowerRPM = 6000, .Torque = 200, .TorqueRPM = 4000, .IdleRPM = 1000};
    car.Curve.CurveC = -0.025;
    car.Curve.CurveD = 300;
    car.Efficiency = 0.9;
    car.Wheelbase = 2.5;
    car.NumGears = 2;
    car.DrivetrainType = drivetrain;
    car.TyreMu = 1;
    car.Ratios = {3, 2, 1.5F, 0.5F, 0.5F, 0.5F, 0.5F};
    car.FinalDrive = 4;
    car.ShiftRevs = {0, 6000, 6900, 6900, 6900, 6900, 6900};
    car.LongDistance = 400;
    return car;
}

struct GripCase {
    const char* name;
    int drivetrain;
    double standing, withDownforce;
};
class GripLimit : public testing::TestWithParam<GripCase> {};

/// By hand, with g = 9.80665 and c = 0.45 / 2.5 = 0.18. Standing: R = 98.0665 N, axles 5883.99 and 3922.66 N, so that
/// (5883.99 + 0.18 R) / 1.18, (3922.66 - 0.18 R) / 0.82 and 9806.65. At 40 m/s 2 m^2 of downforce give 2000 N more
/// load, shared as the weight, and R = 0.013681 * 11806.65 = 161.526 N: (7083.99 + 0.18 R) / 1.18, (4722.66 - 0.18 R) /
/// 0.82.
TEST_P(GripLimit, CarriesItsOwnLoadTransfer) {
    AccelerationSetup car = HandMade(GetParam().drivetrain);
    EXPECT_NEAR(RoadForcesAt(car, 0).GripLimit, GetParam().standing, 0.01);
    car.Car.Air.Undertray.ClA = -2;
    EXPECT_NEAR(RoadForcesAt(car, 40).GripLimit, GetParam().withDownforce, 0.01);
}

INSTANTIATE_TEST_SUITE_P(ByHand, GripLimit,
                         testing::Values(GripCase{"Front", 0, 5001.391, 6028.015},
                                         GripCase{"Rear", 1, 4762.205, 5723.884},
                                         GripCase{"All", 2, 9806.65, 11806.65}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(GripLimit, EndsWhereACarCannotAccelerateAndWhereItLoadsItsOwnTyres) {
    AccelerationSetup car = HandMade(1);
    car.TyreMu = 0.01;  // 39.2266 N of grip against 98.0665 N of resistance
    EXPECT_NEAR(RoadForcesAt(car, 0).GripLimit, 39.2266, 0.001);
    car.TyreMu = 1;
    car.Wheelbase = 0.45;
    EXPECT_EQ(RoadForcesAt(car, 0).GripLimit, std::numeric_limits<double>::infinity());
}

/// By hand: 2500 rpm are 2500 / 8 * 2 pi * 0.3 / 60 = 9.817477 m/s in first gear, where the straight line gives 0.375 *
/// 200 / 3000 * 1500 + 125 = 162.5 Nm: 162.5 * 0.9 * 8 / 0.3 = 3900 N. The clutch closes there; at half of it three
/// quarters of the torque pass.
TEST(WheelForces, AreTheEnginesThroughTheGear) {
    for (const int drivetrain : {0, 1, 2}) {
        const AccelerationSetup car = HandMade(drivetrain);
        EXPECT_NEAR(WheelAt(car, 1, 9.817477).Force, 3900, 0.01);
        EXPECT_NEAR(WheelAtRevs(car, 1, 2500).Speed, 9.817477, 1e-5);
        EXPECT_NEAR(WheelAt(car, 1, 9.817477 / 2).Force, 2925, 0.01);
        EXPECT_NEAR(WheelAt(car, 1, 9.817477).Revs, 2500, 0.01);
    }
}

/// By hand: above 4000 rpm the torque is 300 - 0.025 n, so that two gears of ratios 2 and 1.5 pull alike where both
/// engine speeds together are 300 / 0.025 = 12000 rpm: at 12000 * 2 / 3.5 = 6857.14 rpm, 26.928 m/s, and 3085.71 N. The
/// engine turns 7620 rpm at most.
TEST(WheelForces, OfTwoGearsCrossWhereTheNextOneBeginsToPullHarder) {
    const ForcesOverSpeed forces = ForcesOver(HandMade(2));
    ASSERT_EQ(forces.Gears.size(), 2U);
    EXPECT_NEAR(forces.Gears[0].Crossing.value().Speed, 26.928, 0.001);
    EXPECT_NEAR(forces.Gears[0].Crossing->Force, 3085.71, 0.05);
    EXPECT_NEAR(forces.Gears[0].Shift.value().Revs, 6000, 1e-9);
    EXPECT_FALSE(forces.Gears[1].Crossing.has_value());
    EXPECT_NEAR(forces.Gears[1].Points.front().Revs, 1000, 1e-9);
    EXPECT_NEAR(forces.Gears[1].Points.back().Revs, 7620, 1e-9);
    EXPECT_NEAR(CrossingRevs(HandMade(2), forces)[1], 6857.14, 0.1);
}

TEST(WheelForces, SayWhatThereIsOfOddGears) {
    AccelerationSetup car = HandMade(1);
    car.Ratios[2] = 2;
    EXPECT_FALSE(ForcesOver(car).Gears[0].Crossing.has_value()) << "gears that are alike";
    car.Ratios[2] = 0;
    EXPECT_EQ(ForcesOver(car).Gears.size(), 1U) << "a gear without ratio";
    car.TyreMu = 0;
    EXPECT_FALSE(ForcesOver(car).Reached.has_value()) << "no grip";
    car.FinalDrive = 0;
    EXPECT_TRUE(ForcesOver(car).Gears.empty());
    EXPECT_FALSE(ForcesOver(car).Reached.has_value());
}

/// The run and its forces over the speed, for a built-in car.
struct Explained {
    explicit Explained(const CatalogueCar& car) {
        SetUp setUp = SetUpWith(car.name);
        setUp.Shifts.RevLimitOn = true;
        setup = StartOf(setUp, EvaluateStill(setUp));
        last = Accelerate(setup, *rows).LastRow;
        forces = ForcesOver(setup);
        log = LogOf(setup, AccelTargetTable[1]);
    }

    std::unique_ptr<RunRows> rows = std::make_unique<RunRows>();
    AccelerationSetup setup;
    int last = 0;
    ForcesOverSpeed forces;
    std::vector<RunEvent> log;
};

/// A row is driven at the speed that the row before ended with. Its load and its engine are still those of the
/// acceleration before, which makes the difference.
TEST(WheelForces, AreTheRowsOfTheRunAtTheirSpeedAndGear) {
    for (const CatalogueCar& car : Catalogue()) {
        const Explained run(car);
        int compared = 0;
        int driven = 0;  // rows since the drive was cut
        for (std::size_t i = 1; i <= static_cast<std::size_t>(run.last); ++i) {
            const AccelRow& row = (*run.rows)[i];
            driven = row[AccelColumn::DrivingForce] > 0 ? driven + 1 : 0;
            if (driven < 6) continue;  // the load transfer of a force that came at once settles over some rows
            const auto gear = static_cast<int>(row[AccelColumn::Gear]);
            const AccelRow& before = (*run.rows)[i - 1];
            const double put = WheelAt(run.setup, gear, before[AccelColumn::Speed]).Put;
            ASSERT_NEAR(row[AccelColumn::DrivingForce], put, 0.004 * put) << car.name << " row " << i;
            ++compared;
        }
        EXPECT_GT(compared, 100) << car.name;
    }
}

TEST(WheelForces, AreEqualWhereGearsCrossAndWhereTheSpeedIsReached) {
    for (const CatalogueCar& car : Catalogue()) {
        const Explained run(car);
        for (const GearForces& gear : run.forces.Gears) {
            if (!gear.Crossing) continue;
            const double speed = gear.Crossing->Speed;
            EXPECT_NEAR(WheelAt(run.setup, gear.Gear + 1, speed).Put, gear.Crossing->Put, 1) << car.name;
            EXPECT_GT(WheelAt(run.setup, gear.Gear + 1, speed * 1.01).Put,
                      WheelAt(run.setup, gear.Gear, speed * 1.01).Put);
        }
        ASSERT_TRUE(run.forces.Reached.has_value()) << car.name;
        const double end = (*run.rows)[static_cast<std::size_t>(run.last)][AccelColumn::Speed];
        if (run.forces.Reached->AtRevLimit) continue;
        EXPECT_NEAR(run.forces.Reached->Speed, end, 0.025 * end) << car.name;  // the run ends 5 N before
    }
}

/// From one event to the next the times add up to the run; each change stands where the rows change gear.
TEST(RunLog, GoesFromTheStartToTheEndOfTheRun) {
    for (const CatalogueCar& car : Catalogue()) {
        const Explained run(car);
        double sum = 0;
        double before = 0;
        int gear = 1;
        for (const RunEvent& event : run.log) {
            EXPECT_GE(event.Time, before) << car.name;
            sum += event.Time - before;
            before = event.Time;
            const auto row = static_cast<std::size_t>(std::lround(event.Time / kTimeStep));
            if (event.What != RunEvent::Kind::ChangesUp) continue;
            EXPECT_EQ(event.Gear, gear++);
            EXPECT_EQ((*run.rows)[row + 1][AccelColumn::Gear], static_cast<float>(gear)) << car.name;
            EXPECT_EQ((*run.rows)[row + 1][AccelColumn::Revs], static_cast<float>(event.After)) << car.name;
            EXPECT_GT(event.Before, run.setup.ShiftRevs[event.Gear]);
        }
        EXPECT_NEAR(sum, run.last * kTimeStep, 1e-9) << car.name;
        EXPECT_EQ(run.log.back().What, RunEvent::Kind::Ends);
    }
}

/// On the straight line between two rows, by hand: 10 m/s lie a quarter of the way from 9.75 to 10.75 m/s.
TEST(RunLog, PassesATargetBetweenTwoRows) {
    std::vector<AccelRow> rows(3);
    rows[0].values = {0.4F, 8.75F};
    rows[1].values = {0.9F, 9.75F};
    rows[2].values = {1.4F, 10.75F};
    const Passing passing = PassingOf(rows, AccelColumn::Speed, 10).value();
    EXPECT_NEAR(passing.Time, 0.0625, 1e-9);
    EXPECT_NEAR(passing.Distance, 1.025, 1e-6);
    EXPECT_EQ(PassingOf(rows, AccelColumn::Speed, 5)->Time, 0) << "no time before the table begins";
    EXPECT_FALSE(PassingOf(rows, AccelColumn::Speed, 10.75).has_value());
}

TEST(RunLog, SaysWhyARunEnds) {
    AccelerationSetup car = HandMade(0);
    const auto end = [&] { return LogOf(car, AccelTargetTable[0]).back().Why; };
    EXPECT_EQ(end(), RunEnd::GainsNoMore);
    car.LongDistance = 1e5;
    EXPECT_EQ(end(), RunEnd::TimeIsOver);
    car.TyreMu = 0;
    EXPECT_EQ(end(), RunEnd::Stands);
    EXPECT_EQ(LogOf(car, AccelTargetTable[0]).size(), 1U);
}

TEST(ShiftAdvice, CountsWhatEarlyChangesLose) {
    AccelerationSetup car = HandMade(1);
    car.ShiftRevs = CrossingRevs(car, ForcesOver(car));
    EXPECT_EQ(LossOfShiftPoints(car), 0);
    car.ShiftRevs[1] = 4000;
    EXPECT_GT(LossOfShiftPoints(car).value(), 0.05);
    car.TyreMu = 0;
    EXPECT_FALSE(LossOfShiftPoints(car).has_value());
}

}  // namespace
}  // namespace zolv
