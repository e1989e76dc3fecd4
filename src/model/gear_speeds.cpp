#include "model/gear_speeds.h"

#include <algorithm>

#include "model/tyre_geometry.h"
#include "model/tyre_model.h"

namespace zolv {

StoredLoads GearAxleLoadsAt(const RollingCar& car, double speed) {
    const AxleLoads loads = AxleLoadsAt(speed, car.Air);
    return {static_cast<float>(loads.front), static_cast<float>(loads.rear)};
}

double DrivenDeformation(const RollingCar& car, const StoredLoads& loads) {
    const AxleTyres& tyre = car.Driven();
    const double deformation =
        TyreDeformation(car.RearDriven ? loads.rear : loads.front, tyre.Stiffness, tyre.MaxDeformation);
    return car.RearDriven ? static_cast<float>(deformation) : deformation;  // rear figures are single
}

float SpeedFactorOn(const RollingCar& car, double radius) {
    return static_cast<float>((radius * 2 * kPi / 60) * (1 - car.TyreSlip));
}

SettledGear SettleGear(const RollingCar& car, double revs, double ratio, double finalDrive, int rounds,
                       std::optional<double> loadSpeed) {
    const double radius = car.Driven().UnloadedRadius;
    const double unloadedFactor = (radius * 2 * kPi / 60) * (1 - car.TyreSlip);  // not stored, so not rounded
    SettledGear gear;
    gear.Speed = static_cast<float>(unloadedFactor * revs / (ratio * finalDrive));
    for (int round = 0; round < rounds; ++round) {
        gear.Loads = GearAxleLoadsAt(car, loadSpeed.value_or(gear.Speed));
        gear.Deformation = DrivenDeformation(car, gear.Loads);
        gear.SpeedFactor = SpeedFactorOn(car, radius - gear.Deformation);
        gear.Speed = static_cast<float>(revs * gear.SpeedFactor / (ratio * finalDrive));
    }
    return gear;
}

float RevsAfterChangeOf(double speed, double speedFactor, double nextRatio, double finalDrive) {
    return static_cast<float>(speed * nextRatio * finalDrive / speedFactor);
}

}  // namespace zolv
