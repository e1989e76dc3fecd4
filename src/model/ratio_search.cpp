#include "model/ratio_search.h"

#include <algorithm>

namespace zolv {
namespace {

/// One search under way.
class Search {
public:
    Search(const ShiftRules& rules, const ByGear& speeds, const ByGear& speedFactors, float finalDrive)
        : rules_(rules), speeds_(speeds), speedFactors_(speedFactors) {
        found_.FinalDrive = finalDrive;
    }

    FoundRatios Run() {
        constexpr int kPasses = 39;
        Seed();
        if (!rules_.AutoRevs) return found_;
        RunSeedRound();
        for (int pass = 0; pass < kPasses; ++pass) RunPass();
        return found_;
    }

private:
    /// Engine speed over final drive over wheel speed.
    float RatioOf(int gear) const {
        const double engine = static_cast<double>(found_.Revs[gear]) / found_.FinalDrive;
        const double wheel = static_cast<double>(speeds_[gear]) / speedFactors_[gear];
        return static_cast<float>(engine / wheel);
    }

    bool HasGearAbove(int gear) const { return rules_.NumGears > gear; }

    void Seed() {
        constexpr double kSeed = 1.1;  // times the engine speed of peak power; where the search starts
        const double revs = rules_.AutoRevs ? rules_.PowerRPM * kSeed : rules_.CustomRevs;
        for (int gear = 1; gear < kGears; ++gear) found_.Revs[gear] = static_cast<float>(revs);
        SetTopGearRevs(rules_, found_.Revs);
        for (int gear = 1; gear <= kGears; ++gear) found_.Ratios[gear] = RatioOf(gear);
    }

    float ShiftPointOf(int gear) const {
        return AutomaticShiftPoint(rules_, found_.Ratios[gear], found_.Ratios[gear + 1]);
    }

    /// Each gear takes the present ratio of the next one, and its own new ratio feeds nothing yet.
    void RunSeedRound() {
        for (int gear = 1; gear < kGears; ++gear) {
            if (!HasGearAbove(gear)) continue;
            found_.Revs[gear] = ShiftPointOf(gear);
            found_.Ratios[gear] = RatioOf(gear);
        }
    }

    void FindShiftPoints() {
        for (int gear = 1; gear < kGears; ++gear) {
            float& revs = found_.Revs[gear];
            if (HasGearAbove(gear)) revs = ShiftPointOf(gear);
            if (rules_.RevLimitOn && revs > rules_.RevLimit()) revs = static_cast<float>(rules_.RevLimit());
            // The ratios are found here, so that they can come out in the wrong order on the way.
            if (revs < rules_.PowerRPM) revs = static_cast<float>(rules_.PowerRPM);
        }
    }

    void RunPass() {
        FindShiftPoints();
        found_.Ratios[1] = RatioOf(1);
        // The top gear has no shift point to find: its ratio changes only once the final drive has moved.
        const int last = found_.Raised ? kGears : kGears - 1;
        for (int gear = 2; gear <= last; ++gear) {
            if (HasGearAbove(found_.Raised ? gear - 1 : gear)) found_.Ratios[gear] = RatioOf(gear);
        }
        if (found_.Ratios[1] > kHighestRatio) RaiseFinalDrive();
    }

    void RaiseFinalDrive() {
        const double raised = static_cast<double>(found_.Ratios[1]) * found_.FinalDrive / kHighestRatio;
        found_.FinalDrive = static_cast<float>(std::min(raised, kHighestRatio));
        found_.Raised = true;
    }

    const ShiftRules& rules_;
    const ByGear& speeds_;
    const ByGear& speedFactors_;
    FoundRatios found_;
};

}  // namespace

FoundRatios SearchRatios(const ShiftRules& rules, const ByGear& speeds, const ByGear& speedFactors, float finalDrive) {
    return Search(rules, speeds, speedFactors, finalDrive).Run();
}

}  // namespace zolv
