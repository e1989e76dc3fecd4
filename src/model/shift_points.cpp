#include "model/shift_points.h"

#include <algorithm>
#include <cmath>

namespace zolv {

float AutomaticShiftPoint(const ShiftRules& rules, double ratio, double nextRatio) {
    constexpr double kExponent = 0.44;
    return static_cast<float>(rules.PowerRPM * std::pow(ratio / nextRatio, kExponent));
}

void SetTopGearRevs(const ShiftRules& rules, ByGear& revs) {
    const auto top = static_cast<float>(rules.TopRevs());
    for (int gear = 2; gear < kGears; ++gear) {
        if (rules.NumGears < gear + 1) revs[gear] = top;
    }
    revs[kGears] = top;
}

ByGear ShiftPoints(const ShiftRules& rules, const ByGear& ratios) {
    ByGear revs{};
    for (int gear = 1; gear < kGears; ++gear) {
        if (!rules.AutoRevs) {
            revs[gear] = static_cast<float>(rules.CustomRevs);
            continue;
        }
        revs[gear] = AutomaticShiftPoint(rules, ratios[gear], ratios[gear + 1]);
        if (rules.RevLimitOn && revs[gear] > rules.RevLimit()) revs[gear] = static_cast<float>(rules.RevLimit());
    }
    SetTopGearRevs(rules, revs);
    return revs;
}

}  // namespace zolv
