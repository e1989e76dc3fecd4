#include "model/air_sheet.h"

namespace zolv {

Fittings FittingsOf(const CarRecord& car, int frontWingAngle, int rearWingAngle) {
    return {UndertrayOf(car.UndertrayType), FrontWingOf(car.FrontWingType, frontWingAngle),
            RearWingOf(car.RearWingType, rearWingAngle)};
}

AirProfile ProfileOf(const CarRecord& car, const Fittings& fittings) {
    return ProfileOf(car, fittings.Undertray, fittings.FrontWing, fittings.RearWing, kAirDensity);
}

StoredForces RoundedForces(const AirForces& forces) {
    const auto single = [](double force) { return static_cast<float>(force); };
    return {.BodyDrag = single(forces.BodyDrag),
            .BodyLift = single(forces.BodyLift),
            .UndertrayDrag = single(forces.UndertrayDrag),
            .UndertrayLift = single(forces.UndertrayLift),
            .FrontWingDrag = single(forces.FrontWingDrag),
            .FrontWingLift = single(forces.FrontWingLift),
            .RearWingDrag = single(forces.RearWingDrag),
            .RearWingLift = single(forces.RearWingLift),
            .TotalDrag = single(forces.TotalDrag),
            .TotalLift = single(forces.TotalLift),
            .RollingResistance = single(forces.RollingResistance),
            .TotalFriction = single(forces.TotalFriction)};
}

StoredForces ForcesAtChosenSpeed(double speed, const AirProfile& car) {
    StoredForces forces = RoundedForces(ForcesAt(speed, car));
    const auto sum = [](double a, double b, double c, double d) { return static_cast<float>(a + b + c + d); };
    forces.TotalDrag = sum(forces.BodyDrag, forces.UndertrayDrag, forces.FrontWingDrag, forces.RearWingDrag);
    forces.TotalLift = sum(forces.BodyLift, forces.UndertrayLift, forces.FrontWingLift, forces.RearWingLift);
    forces.RollingResistance =
        static_cast<float>(RollingCoefficient(speed) * (car.Mass * kGravity - static_cast<double>(forces.TotalLift)));
    forces.TotalFriction = static_cast<float>(static_cast<double>(forces.TotalDrag) + forces.RollingResistance);
    return forces;
}

AirSheet StandUnder(const StoredForces& forces, const Fittings& fittings, const AirProfile& car) {
    const AxleLoads lift = LiftOnAxles(forces.BodyLift, forces.UndertrayLift, forces.FrontWingLift, forces.RearWingLift,
                                       car, car.Undertray.Position);
    const AxleLoads loads = LoadsUnder(lift, car);
    AirSheet sheet{.Forces = forces,
                   .Parts = fittings,
                   .FrontWheelForce = static_cast<float>(loads.front),
                   .RearWheelForce = static_cast<float>(loads.rear)};
    const double front = sheet.FrontWheelForce;
    const double weight = car.Mass * kGravity;
    sheet.ForceDistribution = front / (static_cast<double>(sheet.RearWheelForce) + front);
    sheet.AeroDistribution = lift.front == 0 ? 0 : lift.front / (lift.front + lift.rear);
    sheet.WeightMultiple = (weight - forces.TotalLift) / weight;
    return sheet;
}

}  // namespace zolv
