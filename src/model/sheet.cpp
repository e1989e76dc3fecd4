#include "model/sheet.h"

namespace zolv {
namespace {

ByGear Single(const PerGear<double>& given) {
    ByGear single;
    for (int gear = 0; gear <= kGears; ++gear) single[gear] = static_cast<float>(given[gear]);
    return single;
}

AirSheet AirOf(const SetUp& setUp, const Fittings& fittings, const AirProfile& profile, const TopSpeedResult& top) {
    const StoredForces forces =
        setUp.AirSpeed ? ForcesAtChosenSpeed(*setUp.AirSpeed, profile) : RoundedForces(top.forces);
    return StandUnder(forces, fittings, profile);
}

/// Fills the gearbox of the set-up's direction; false where what was given is in the wrong order.
bool FillGears(const SetUp& setUp, const GearedCar& car, Sheet& sheet) {
    Gearbox& box = sheet.Gears;
    const bool fromRatios = setUp.From == Direction::FromRatios;
    const ByGear given = WithoutLackingGears(Single(fromRatios ? setUp.Ratios : setUp.Speeds), car.Rules.NumGears,
                                             fromRatios ? kLackingRatio : kLackingSpeed);
    sheet.WrongOrder = GearsInWrongOrder(given, setUp.From);
    if (!sheet.WrongOrder.empty()) return false;

    GearLoads loads;
    box.FinalDrive = static_cast<float>(setUp.PresentFinalDrive());
    if (fromRatios) {
        box.GearRatio = given;
        box.GearRatio[0] = setUp.Car.Reverse;
        FindSpeeds(car, nullptr, box, loads);
    } else {
        box.GearSpeed = given;
        box.GearRatio[0] = setUp.Car.Reverse;
        FindAxleLoads(car.Rolling, box.GearSpeed, loads);
        FindSpeedFactors(car.Rolling, loads);
        FindRatios(car, loads, box);
        FindRevsAfterChange(loads, box);
    }
    SettleReverse(car, box.FinalDrive, box, loads);
    FindTorque(car, box);
    return true;
}

RunSheet RunIn(const SetUp& setUp, const GearedCar& car, const Sheet& sheet, RunRows& rows) {
    const AccelTargets& targets = AccelTargetTable[static_cast<std::size_t>(setUp.Targets)];
    const AccelerationResult run =
        Accelerate(RunOf(car.Rolling, setUp.Car, sheet.Curve, setUp.TyreMu, sheet.Gears, targets.Distances[1]), rows);
    return {.LastRow = run.LastRow,
            .Speed = run.Speed,
            .Results = ResultsOf(std::span(rows).first(static_cast<std::size_t>(run.LastRow) + 1), targets)};
}

}  // namespace

Sheet Evaluate(const SetUp& setUp, RunRows& rows) {
    const CarRecord& car = setUp.Car;
    const TyreSizes sizes = TyreSizesOf(car);
    const Fittings fittings = FittingsOf(car, setUp.FrontWingAngle, setUp.RearWingAngle);
    const AirProfile profile = ProfileOf(car, fittings);

    Sheet sheet;
    sheet.Curve = FittedCurve(EngineOf(car));
    sheet.Top = TopSpeedOf(profile, static_cast<double>(car.Power) * car.Efficiency);
    sheet.Air = AirOf(setUp, fittings, profile, sheet.Top);
    sheet.Front = FrontTyre(car, sizes, setUp.Blown ? 0 : setUp.FrontPressure, sheet.Air.FrontWheelForce);
    sheet.Rear = RearTyre(car, sizes, setUp.Blown ? 0 : setUp.RearPressure, sheet.Air.RearWheelForce);
    sheet.PatchRatio = sheet.Front.PatchArea / sheet.Rear.PatchArea;

    const GearedCar geared{.Rolling = RollingOn(profile, car, sizes, sheet.Front.Stiffness, sheet.Rear.Stiffness),
                           .Rules = RulesOf(car, setUp.Shifts),
                           .Torque = car.Torque,
                           .Efficiency = car.Efficiency};
    if (FillGears(setUp, geared, sheet)) sheet.Run = RunIn(setUp, geared, sheet, rows);
    return sheet;
}

}  // namespace zolv
