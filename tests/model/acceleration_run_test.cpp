#include "model/acceleration_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace zolv {
namespace {

using enum AccelColumn;

/// A rear driven car of 1000 kg with an engine of 100 kW, in still air without wings.
AccelerationSetup PlainSetup() {
    AccelerationSetup setup;
    setup.Car.Air.Mass = 1000;
    setup.Car.Air.WeightDist = 0.5;
    setup.Car.Air.Cd = 0.35;
    setup.Car.Air.FrontalArea = 1.8;
    setup.Car.Air.AirDensity = 1.2;
    setup.Car.Front = setup.Car.Rear = {.UnloadedRadius = 0.3, .Stiffness = 500'000, .MaxDeformation = 0.1};
    setup.Car.RearDriven = true;
    setup.Car.TyreSlip = 0.01;
    setup.Motor = {.Power = 100, .PowerRPM = 6000, .Torque = 180, .TorqueRPM = 4000, .IdleRPM = 1000};
    setup.Curve = FittedCurve(setup.Motor);
    setup.Efficiency = 0.8;
    setup.Wheelbase = 2.5;
    setup.NumGears = 5;
    setup.DrivetrainType = 1;
    setup.TyreMu = 1.1;
    setup.Ratios = {0, 3.5F, 2.4F, 1.7F, 1.35F, 1.15F, 1};
    setup.FinalDrive = 4;
    setup.ShiftRevs = {0, 7083, 6900, 6600, 6400, 6900, 6900};
    setup.LongDistance = 1000;
    return setup;
}

struct RecordedRun {
    std::vector<AccelRow> rows = std::vector<AccelRow>(kAccelRows);
    AccelerationResult end;

    explicit RecordedRun(const AccelerationSetup& setup)
        : end(Accelerate(setup, std::span<AccelRow, kAccelRows>(rows.data(), kAccelRows))) {}
    double At(int row, AccelColumn column) const { return rows[static_cast<std::size_t>(row)][column]; }
};

// By hand: the engine held at 2500 rpm gives 146.25 Nm, half of which pass the clutch; through 0.8, 3.5 and 4 they are
// 819 Nm on a radius of 0.3 m less 4.9 mm. Against them stands 1 % of the weight.
TEST(AccelerationRun, StartsFromTheLaunchSpeedWithHalfTheTorque) {
    const RecordedRun run(PlainSetup());
    EXPECT_EQ(run.At(0, Revs), 2500);
    EXPECT_NEAR(run.At(0, DrivingForce), 819 / 0.295096675, 0.01);
    EXPECT_NEAR(run.At(0, Resistance), 98.0665, 1e-3);
    EXPECT_NEAR(run.At(0, Speed), (819 / 0.295096675 - 98.0665) / 1000 * 0.05, 1e-5);
    EXPECT_EQ(run.At(0, FrontLoad), 4903.325F);
}

/// The axles carry the weight between them; accelerating at 1 m/s^2, 1000 kg with a centre 0.45 m high shift 180 N over
/// a wheelbase of 2.5 m, a step later.
TEST(AccelerationRun, ShiftsLoadToTheRearWhileItGains) {
    const RecordedRun run(PlainSetup());
    for (int row = 1; row <= run.end.LastRow; ++row) {
        const double shifted = 180 * std::max(0.0, run.At(row - 1, Acceleration));
        ASSERT_NEAR(run.At(row, FrontLoad), 4903.325 - shifted, 2e-3) << row;
        ASSERT_NEAR(run.At(row, FrontLoad) + run.At(row, RearLoad), 9806.65, 2e-3) << row;
    }
    EXPECT_EQ(run.end.RearLoad, run.rows[static_cast<std::size_t>(run.end.LastRow)][RearLoad]);
}

TEST(AccelerationRun, CutsTheDriveForEightStepsAtAChangeOfGear) {
    const RecordedRun run(PlainSetup());
    for (int row = 1; row <= run.end.LastRow - 9; ++row) {
        if (run.At(row, Gear) == run.At(row - 1, Gear)) continue;
        EXPECT_EQ(run.At(row, Gear), run.At(row - 1, Gear) + 1);
        for (int step = 0; step < 8; ++step) EXPECT_EQ(run.At(row + step, DrivingForce), 0) << row << '+' << step;
        EXPECT_GT(run.At(row + 8, DrivingForce), 0) << row;
        EXPECT_GT(run.At(row - 1, DrivingForce), 0) << row;
    }
    EXPECT_EQ(run.At(0, Gear), 1);
    EXPECT_EQ(run.At(run.end.LastRow, Gear), 5);
}

TEST(AccelerationRun, CutsTheForceToTheGripOfTheDrivenAxles) {
    for (const int drivetrain : {0, 1, 2}) {  // front, rear and all wheels
        AccelerationSetup setup = PlainSetup();
        setup.DrivetrainType = drivetrain;
        setup.Car.RearDriven = drivetrain == 1;
        setup.TyreMu = 0.1;
        const RecordedRun run(setup);
        for (int row = 0; row < 40; ++row) {
            const double front = drivetrain == 1 ? 0 : run.At(row, FrontLoad);
            const double rear = drivetrain == 0 ? 0 : run.At(row, RearLoad);
            EXPECT_NEAR(run.At(row, DrivingForce), 0.1 * (front + rear), 1e-3) << drivetrain << ", row " << row;
        }
    }
}

TEST(AccelerationRun, EndsBehindTheLongDistanceOnceItGainsNoMore) {
    const RecordedRun run(PlainSetup());
    const int last = run.end.LastRow;
    ASSERT_LT(last, kAccelRows - 1);
    EXPECT_GT(run.At(last, Distance), 1000);
    EXPECT_LT(run.At(last, NetForce), 5);
    for (int row = 0; row < last; ++row) {
        const bool changing = run.At(row, DrivingForce) == 0;
        EXPECT_TRUE(changing || run.At(row, Distance) <= 1000 || run.At(row, NetForce) >= 5 ||
                    run.At(row + 1, Gear) > run.At(row, Gear))
            << row;
    }
    AccelerationSetup endless = PlainSetup();
    endless.LongDistance = 1e9;
    EXPECT_EQ(RecordedRun(endless).end.LastRow, 1800);
}

TEST(AccelerationRun, ACarThatCannotMoveOffCountsTwoRows) {
    AccelerationSetup setup = PlainSetup();
    setup.Efficiency = 0;
    std::vector<AccelRow> rows(kAccelRows);
    AccelRow second;
    second.values.fill(7);
    const AccelerationResult end = Accelerate(setup, std::span<AccelRow, kAccelRows>(rows.data(), kAccelRows), second);
    EXPECT_EQ(end.LastRow, 1);
    EXPECT_LT(rows[0][NetForce], 0);
    EXPECT_EQ(rows[1][Speed], 7);
}

}  // namespace
}  // namespace zolv
