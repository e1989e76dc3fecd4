#include "model/gearbox.h"

#include <optional>

namespace zolv {

ByGear WithoutLackingGears(ByGear values, int numGears, float lacking) {
    for (int gear = 3; gear <= kGears; ++gear) {
        if (numGears < gear) values[gear] = lacking;
    }
    return values;
}

std::vector<int> GearsInWrongOrder(const ByGear& given, Direction direction) {
    std::vector<int> wrong;
    for (int gear = 1; gear < kGears; ++gear) {
        const float lower = given[gear];
        const float upper = given[gear + 1];
        if (direction == Direction::FromRatios ? upper > lower : upper < lower) wrong.push_back(gear);
    }
    return wrong;
}

void SettleReverse(const GearedCar& car, double finalDrive, Gearbox& box, GearLoads& loads) {
    box.GearRevs[0] = static_cast<float>(car.Rules.TopRevs());
    const SettledGear reverse = SettleGear(car.Rolling, box.GearRevs[0], box.GearRatio[0], finalDrive, kReverseRounds);
    box.GearSpeed[0] = reverse.Speed;
    loads.GearAxleLoads[0] = reverse.Loads;
    loads.GearSpeedFactor[0] = reverse.SpeedFactor;
}

void FindSpeeds(const GearedCar& car, const ByGear* loadSpeeds, Gearbox& box, GearLoads& loads) {
    const ByGear revs = ShiftPoints(car.Rules, box.GearRatio);
    for (int gear = 1; gear <= kGears; ++gear) {
        std::optional<double> loadSpeed;
        if (loadSpeeds != nullptr) loadSpeed = (*loadSpeeds)[gear];
        box.GearRevs[gear] = revs[gear];
        const SettledGear settled =
            SettleGear(car.Rolling, revs[gear], box.GearRatio[gear], box.FinalDrive, kForwardRounds, loadSpeed);
        box.GearSpeed[gear] = settled.Speed;
        loads.GearAxleLoads[gear] = settled.Loads;
        loads.GearSpeedFactor[gear] = settled.SpeedFactor;
        loads.Deformation = settled.Deformation;
    }
    for (int gear = 1; gear < kGears; ++gear) {
        box.RevsAfterChange[gear] = RevsAfterChangeOf(box.GearSpeed[gear], loads.GearSpeedFactor[gear],
                                                      box.GearRatio[gear + 1], box.FinalDrive);
    }
}

void FindAxleLoads(const RollingCar& car, const ByGear& speeds, GearLoads& loads) {
    for (int gear = 1; gear <= kGears; ++gear) loads.GearAxleLoads[gear] = GearAxleLoadsAt(car, speeds[gear]);
}

void FindSpeedFactors(const RollingCar& car, GearLoads& loads) {
    for (int gear = 1; gear <= kGears; ++gear) {
        loads.Deformation = DrivenDeformation(car, loads.GearAxleLoads[gear]);
        loads.GearSpeedFactor[gear] = SpeedFactorOn(car, car.Driven().UnloadedRadius - loads.Deformation);
    }
}

bool FindRatios(const GearedCar& car, const GearLoads& loads, Gearbox& box) {
    const FoundRatios found = SearchRatios(car.Rules, box.GearSpeed, loads.GearSpeedFactor, box.FinalDrive);
    for (int gear = 1; gear <= kGears; ++gear) {
        box.GearRevs[gear] = found.Revs[gear];
        box.GearRatio[gear] = found.Ratios[gear];
    }
    box.FinalDrive = found.FinalDrive;
    return found.Raised;
}

/// Not RevsAfterChangeOf: here the wheel's speed comes first, and the last digit goes by that.
void FindRevsAfterChange(const GearLoads& loads, Gearbox& box) {
    for (int gear = 1; gear < kGears; ++gear) {
        const double wheelRevs = static_cast<double>(box.GearSpeed[gear]) / loads.GearSpeedFactor[gear];
        box.RevsAfterChange[gear] = static_cast<float>(wheelRevs * box.FinalDrive * box.GearRatio[gear + 1]);
    }
}

void FindTorque(const GearedCar& car, Gearbox& box) {
    for (int gear = 0; gear <= kGears; ++gear) {
        box.GearTorque[gear] = static_cast<float>(car.Torque * car.Efficiency * box.GearRatio[gear] * box.FinalDrive);
    }
}

}  // namespace zolv
