#pragma once

#include <array>
#include <cstdint>

namespace zolv {

/// One value for each gear: 0 reverse, 1 to 6 the forward gears. Stored in single precision, and later steps read the
/// rounded value.
using ByGear = std::array<float, 7>;

inline constexpr int kGears = 6;

/// Engine speeds at which the driver changes up.
struct ShiftRules {
    double PowerRPM = 0;      // [rpm]
    int NumGears = 0;         // of the car
    bool AutoRevs = true;     // by gear; otherwise CustomRevs in all gears
    double CustomRevs = 0;    // [rpm]
    bool RevLimitOn = false;  // automatic shift points end at RevLimit
    bool RevsMaxMode = false;

    [[nodiscard]] double RevLimit() const { return PowerRPM * 1.27; }

    /// Engine speed up to which the top gear and reverse run [rpm]: peak power's, or 1.15 times it.
    [[nodiscard]] double TopRevs() const { return RevsMaxMode ? PowerRPM : PowerRPM * 1.15; }
};

/// The automatic shift point out of a gear [rpm]: PowerRPM (ratio / ratio of the next gear)^0.44. A fit: the wider the
/// step, the further past peak power it pays to hold the gear.
[[nodiscard]] float AutomaticShiftPoint(const ShiftRules& rules, double ratio, double nextRatio);

/// Sets the car's top gear and every gear beyond it to TopRevs. Gear 1 is never touched.
void SetTopGearRevs(const ShiftRules& rules, ByGear& revs);

/// Shift points of gears 1 to 6 for given ratios. Entry 0 is 0.
/// @param ratios  of gears 1 to 6, above 0
[[nodiscard]] ByGear ShiftPoints(const ShiftRules& rules, const ByGear& ratios);

}  // namespace zolv
