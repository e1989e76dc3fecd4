#include "studies/sweep_names.h"

#include <array>
#include <cmath>

#include "drawing/canvas.h"
#include "model/acceleration_targets.h"
#include "studies/study_text.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

ShownAs InUnit(const Quantity& quantity, int moreDecimals) {
    return {quantity.Factor, quantity.Decimals + moreDecimals, AxisUnit(quantity.Suffix)};
}

std::string DistanceName(int targets, std::size_t k) {
    constexpr std::array<std::array<const char*, 2>, 5> kNames{{{"500 m", "1000 m"},
                                                                {"500 m", "1000 m"},
                                                                {"\u00BC mi", "1 mi"},
                                                                {"\u00BC nmi", "1 nmi"},
                                                                {"1000 ft", "6000 ft"}}};
    return kNames[static_cast<std::size_t>(targets)][k];
}

std::string SpeedName(int targets, std::size_t k) {
    return units.Speed.Text(AccelTargetTable[static_cast<std::size_t>(targets)].Speeds[k]);
}

std::string Counted(WordName word, std::size_t number) {
    return words.Sentence(word, {NumberText(static_cast<std::int32_t>(number))});
}

/// Rows of SweepResults that follow each other and differ by a number; the rest has a word of its own.
constexpr std::size_t kTimesToSpeed = 0;
constexpr std::size_t kTimesOverDistance = 5;
constexpr std::size_t kSpeedsAtDistance = 7;
constexpr std::size_t kSingleSpeeds = 9;
constexpr std::size_t kShiftSpeeds = 11;
constexpr std::size_t kShiftPoints = 16;
constexpr std::size_t kRatios = 21;
constexpr std::size_t kRest = 27;

const std::string& SingleName(std::size_t result) {
    switch (result) {
        case kSingleSpeeds: return words["HighestRunSpeed"];
        case kSingleSpeeds + 1: return words["TopSpeedResult"];
        case kRest: return words["TorqueInFirst"];
        case kRest + 1: return words["TotalDragResult"];
        case kRest + 2: return words["TotalLiftResult"];
        case kRest + 3: return words["RollingResistanceResult"];
        case kRest + 4: return words["TotalFrictionResult"];
        case kRest + 5: return words["FrontLoadResult"];
        case kRest + 6: return words["RearLoadResult"];
        case kRest + 7: return words["LoadInFront"];
        case kRest + 8: return words["LiftInFront"];
        case kRest + 9: return words["LoadOverWeight"];
        case kRest + 10: return words["FrontPatchResult"];
        case kRest + 11: return words["RearPatchResult"];
        default: return words["PatchRatioResult"];
    }
}

}  // namespace

std::string ShownAs::Number(double base) const { return FixedText(base * Factor, Decimals); }

std::string ShownAs::Text(double base) const {
    const std::string number = Number(base);
    return Unit.empty() || !std::isfinite(base) ? number : number + ' ' + Unit;
}

ShownAs ShownIn(SweepQuantity quantity) {
    switch (quantity) {
        case SweepQuantity::Time: return {1, 3, "s"};
        case SweepQuantity::Speed: return {units.Speed.Factor, 3, AxisUnit(units.Speed.Suffix)};
        case SweepQuantity::Force: return InUnit(units.Force, 1);
        case SweepQuantity::Revs: return {1, 0, AxisUnit(texts.RpmSuffix)};
        case SweepQuantity::Torque: return InUnit(units.Torque, 1);
        case SweepQuantity::Degrees: return {1, 0, words["Degrees"]};
        case SweepQuantity::Pressure: return InUnit(units.Pressure, units.Pressure.Factor < 1 ? 1 : 0);
        case SweepQuantity::Share: return {100, 2, "%"};
        case SweepQuantity::Area: return InUnit(units.Area, 3);
        default: return {};
    }
}

std::string NameOf(const SweepChoice& choice) {
    using enum SweepInput;
    switch (choice.Input) {
        case FinalDrive: return words["FinalDriveInput"];
        case FrontPressure: return words["FrontPressureInput"];
        case RearPressure: return words["RearPressureInput"];
        case FrontWing: return words["FrontWingInput"];
        case RearWing: return words["RearWingInput"];
        case AirSpeed: return words["AirSpeedInput"];
        case TyreMu: return words["TyreFrictionInput"];
        default: break;
    }
    const auto number = static_cast<std::size_t>(choice.Input) + 1;
    constexpr auto kSpeeds = static_cast<std::size_t>(Speed1);
    return number > kSpeeds ? Counted("SpeedNumber", number - kSpeeds) : RatioName(static_cast<int>(number));
}

std::string ResultName(std::size_t result, int targets) {
    if (result >= kRest) return SingleName(result);
    if (result >= kRatios) return RatioName(static_cast<int>(result - kRatios) + 1);
    if (result >= kShiftPoints) return Counted("ShiftPointNumber", result - kShiftPoints + 1);
    if (result >= kShiftSpeeds) return Counted("ShiftSpeedNumber", result - kShiftSpeeds + 1);
    if (result >= kSingleSpeeds) return SingleName(result);
    if (result >= kSpeedsAtDistance) {
        return words.Sentence("SpeedAtDistance", {DistanceName(targets, result - kSpeedsAtDistance)});
    }
    if (result >= kTimesOverDistance) {
        return words.Sentence("TimeOverDistance", {DistanceName(targets, result - kTimesOverDistance)});
    }
    return words.Sentence("TimeToSpeed", {SpeedName(targets, result - kTimesToSpeed)});
}

}  // namespace zolv
