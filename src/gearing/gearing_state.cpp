#include "gearing/gearing_state.h"

#include "aero/aero_state.h"
#include "model/acceleration_targets.h"
#include "tyres/tyre_state.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

GearingState gearing;

RollingCar PresentRollingCar() {
    return {.Air = aero.Profile(),
            .Front = {.UnloadedRadius = vehicle.FrontUnloadedRadius,
                      .Stiffness = tyres.FrontTyreStiffness,
                      .MaxDeformation = vehicle.FrontMaxDeformation},
            .Rear = {.UnloadedRadius = vehicle.RearUnloadedRadius,
                     .Stiffness = tyres.RearTyreStiffness,
                     .MaxDeformation = vehicle.RearMaxDeformation},
            .RearDriven = vehicle.CurrentCar.IsRearDriven(),
            .TyreSlip = tyres.TyreSlip};
}

ShiftRules PresentShiftRules() {
    return {.PowerRPM = vehicle.CurrentCar.PowerRPM,
            .NumGears = vehicle.CurrentCar.NumGears,
            .AutoRevs = options.AutoRevs,
            .CustomRevs = static_cast<double>(options.CustomRevs),
            .RevLimitOn = options.RevLimitOn,
            .RevsMaxMode = options.RevsMaxMode};
}

AccelerationSetup PresentAccelerationSetup() {
    const auto mode = static_cast<std::size_t>(gearing.Mode());
    const CarRecord& car = vehicle.CurrentCar;
    return {.Car = PresentRollingCar(),
            .Motor = EngineOf(car),
            .Curve = gearing.Curve,
            .Efficiency = car.Efficiency,
            .Wheelbase = car.Wheelbase,
            .NumGears = car.NumGears,
            .DrivetrainType = car.DrivetrainType,
            .TyreMu = tyres.TyreMu,
            .Ratios = gearing.GearRatio[mode],
            .FinalDrive = gearing.FinalDrive[mode],
            .ShiftRevs = gearing.GearRevs[mode],
            .LongDistance = AccelTargetTable[static_cast<std::size_t>(units.Speed.Unit)].Distances[1]};
}

}  // namespace zolv
