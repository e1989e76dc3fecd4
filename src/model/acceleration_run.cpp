#include "model/acceleration_run.h"

#include "model/run_steps.h"

namespace zolv {

AccelerationSetup RunOf(const RollingCar& rolling, const CarRecord& car, const EngineCurve& curve, double tyreMu,
                        const Gearbox& gears, double longDistance) {
    return {.Car = rolling,
            .Motor = EngineOf(car),
            .Curve = curve,
            .Efficiency = car.Efficiency,
            .Wheelbase = car.Wheelbase,
            .NumGears = car.NumGears,
            .DrivetrainType = car.DrivetrainType,
            .TyreMu = tyreMu,
            .Ratios = gears.GearRatio,
            .FinalDrive = gears.FinalDrive,
            .ShiftRevs = gears.GearRevs,
            .LongDistance = longDistance};
}

AccelerationResult Accelerate(const AccelerationSetup& setup, std::span<AccelRow, kAccelRows> rows,
                              const AccelRow& secondOfStanding) {
    RunSteps run(setup);
    int last = -1;
    do {
        run.Step();
        rows[static_cast<std::size_t>(++last)] = run.Row();
    } while (run.GoesOn() && last < kAccelRows - 1);
    if (run.Stands() && last == 0) rows[static_cast<std::size_t>(++last)] = secondOfStanding;
    return {last, run.Speed(), run.FrontLoad(), run.RearLoad()};
}

}  // namespace zolv
