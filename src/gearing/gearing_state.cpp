#include "gearing/gearing_state.h"

#include "aero/aero_state.h"
#include "tyres/tyre_state.h"
#include "units/option_state.h"
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

}  // namespace zolv
