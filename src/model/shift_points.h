#pragma once

#include "model/by_gear.h"
#include "model/car_record.h"

namespace zolv {

/// What a driver may choose of the shift points. The values here are those of a start.
struct ShiftOptions {
    bool AutoRevs = true;      // by gear; otherwise CustomRevs in all gears
    double CustomRevs = 0;     // [rpm], whole
    bool RevLimitOn = false;   // automatic shift points end at RevLimit
    bool RevsMaxMode = false;  // top and reverse gear run to peak power; otherwise to 1.15 times its engine speed

    bool operator==(const ShiftOptions&) const = default;
};

/// Engine speeds at which the driver changes up.
struct ShiftRules {
    double PowerRPM = 0;    // [rpm]
    int NumGears = 0;       // of the car
    bool AutoRevs = true;   // as in ShiftOptions, and so the next three
    double CustomRevs = 0;  // [rpm]
    bool RevLimitOn = false;
    bool RevsMaxMode = false;

    [[nodiscard]] double RevLimit() const { return PowerRPM * 1.27; }

    /// Engine speed up to which the top gear and reverse run [rpm]: peak power's, or 1.15 times it.
    [[nodiscard]] double TopRevs() const { return RevsMaxMode ? PowerRPM : PowerRPM * 1.15; }
};

[[nodiscard]] inline ShiftRules RulesOf(const CarRecord& car, const ShiftOptions& shifts) {
    return {.PowerRPM = car.PowerRPM,
            .NumGears = car.NumGears,
            .AutoRevs = shifts.AutoRevs,
            .CustomRevs = shifts.CustomRevs,
            .RevLimitOn = shifts.RevLimitOn,
            .RevsMaxMode = shifts.RevsMaxMode};
}

/// The automatic shift point out of a gear [rpm]: PowerRPM (ratio / ratio of the next gear)^0.44: the wider the
/// step, the further past peak power it pays to hold the gear. A fit without a stated source, meant for the steps of
/// gearboxes, from equal ratios up to some 1.7; wider ones reach engine speeds at which the rev limiter would cut in.
[[nodiscard]] float AutomaticShiftPoint(const ShiftRules& rules, double ratio, double nextRatio);

/// Sets the car's top gear and every gear beyond it to TopRevs. Gear 1 is never touched.
void SetTopGearRevs(const ShiftRules& rules, ByGear& revs);

/// Shift points of gears 1 to 6 for given ratios. Entry 0 is 0.
/// @param ratios  of gears 1 to 6, above 0
[[nodiscard]] ByGear ShiftPoints(const ShiftRules& rules, const ByGear& ratios);

}  // namespace zolv
