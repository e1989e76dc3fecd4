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

/// Fills the gearbox of the set-up's direction, unless what was given is in the wrong order.
void FillGears(const SetUp& setUp, const GearedCar& car, Sheet& sheet) {
    Gearbox& box = sheet.Gears;
    const bool fromRatios = setUp.From == Direction::FromRatios;
    const ByGear given = WithoutLackingGears(Single(fromRatios ? setUp.Ratios : setUp.Speeds), car.Rules.NumGears,
                                             fromRatios ? kLackingRatio : kLackingSpeed);
    sheet.WrongOrder = GearsInWrongOrder(given, setUp.From);
    if (!sheet.WrongOrder.empty()) return;

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
}

GearedCar GearedCarOf(const SetUp& setUp, const Sheet& sheet) {
    const CarRecord& car = setUp.Car;
    const AirProfile profile = ProfileOf(car, sheet.Air.Parts);
    return {.Rolling = RollingOn(profile, car, TyreSizesOf(car), sheet.Front.Stiffness, sheet.Rear.Stiffness),
            .Rules = RulesOf(car, setUp.Shifts),
            .Torque = car.Torque,
            .Efficiency = car.Efficiency};
}

const AccelTargets& TargetsOf(const SetUp& setUp) { return AccelTargetTable[static_cast<std::size_t>(setUp.Targets)]; }

}  // namespace

Sheet EvaluateStill(const SetUp& setUp) {
    const CarRecord& car = setUp.Car;
    const TyreSizes sizes = TyreSizesOf(car);
    const Fittings fittings = FittingsOf(car, setUp.FrontWingAngle, setUp.RearWingAngle);
    const AirProfile profile = ProfileOf(car, fittings);

    Sheet sheet;
    sheet.Curve = FittedCurve(EngineOf(car));
    sheet.Top = TopSpeedOf(profile, PowerAtWheels(car));
    sheet.Air = AirOf(setUp, fittings, profile, sheet.Top);
    sheet.Front = FrontTyre(car, sizes, setUp.Blown ? 0 : setUp.FrontPressure, sheet.Air.FrontWheelForce);
    sheet.Rear = RearTyre(car, sizes, setUp.Blown ? 0 : setUp.RearPressure, sheet.Air.RearWheelForce);
    sheet.PatchRatio = PatchRatioOf(sheet.Front, sheet.Rear);
    FillGears(setUp, GearedCarOf(setUp, sheet), sheet);
    return sheet;
}

AccelerationSetup StartOf(const SetUp& setUp, const Sheet& still) {
    return RunOf(GearedCarOf(setUp, still).Rolling, setUp.Car, still.Curve, setUp.TyreMu, still.Gears,
                 TargetsOf(setUp).Distances[1]);
}

Sheet Evaluate(const SetUp& setUp, RunRows& rows) {
    Sheet sheet = EvaluateStill(setUp);
    if (!sheet.WrongOrder.empty()) return sheet;
    const AccelerationResult run = Accelerate(StartOf(setUp, sheet), rows);
    sheet.Run = {
        .LastRow = run.LastRow,
        .Speed = run.Speed,
        .Results = ResultsOf(std::span(rows).first(static_cast<std::size_t>(run.LastRow) + 1), TargetsOf(setUp))};
    return sheet;
}

}  // namespace zolv
