#include "gearing/gearing_state.h"

#include "aero/aero_state.h"
#include "tyres/tyre_state.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

RollingCar PresentRollingCar() {
    return RollingOn(aero.Profile(), vehicle.CurrentCar, vehicle.Tyres, tyres.FrontTyreStiffness,
                     tyres.RearTyreStiffness);
}

}  // namespace

GearedCar PresentGearedCar() {
    return {.Rolling = PresentRollingCar(),
            .Rules = PresentShiftRules(),
            .Torque = vehicle.CurrentCar.Torque,
            .Efficiency = vehicle.CurrentCar.Efficiency};
}

ShiftOptions PresentShiftOptions() {
    return {.AutoRevs = options.AutoRevs,
            .CustomRevs = static_cast<double>(options.CustomRevs),
            .RevLimitOn = options.RevLimitOn,
            .RevsMaxMode = options.RevsMaxMode};
}

ShiftRules PresentShiftRules() { return RulesOf(vehicle.CurrentCar, PresentShiftOptions()); }

AccelerationSetup PresentAccelerationSetup() {
    return RunOf(PresentRollingCar(), vehicle.CurrentCar, gearing.Curve, tyres.TyreMu, gearing.Present(),
                 PresentTargets().Distances[1]);
}

const AccelTargets& PresentTargets() { return AccelTargetTable[static_cast<std::size_t>(units.Speed.Unit)]; }

}  // namespace zolv
