#include "gearing/mark_reasons.h"

#include "aero/aero_state.h"
#include "gearing/gearing_state.h"
#include "model/ratio_search.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

std::string WhyAboveTopSpeed() { return words.Sentence("AboveTopSpeed", {units.Speed.Text(aero.TopSpeed)}); }

std::string WhyAboveRevLimit() {
    return words.Sentence("AboveRevLimit", {WithUnit(PresentShiftRules().RevLimit(), 0, texts.RpmSuffix)});
}

std::string WhyBelowPeakTorque() {
    return words.Sentence("BelowPeakTorque", {WithUnit(vehicle.CurrentCar.TorqueRPM, 0, texts.RpmSuffix)});
}

std::string WhyStillGaining() {
    return words.Sentence("StillGaining", {WithUnit((kAccelRows - 1) * kTimeStep, 0, " s")});
}

std::string WhyRatioIsMarked(int gear) {
    const ByGear& ratios = gearing.FromSpeeds.GearRatio;
    if (ratios[gear] > kHighestRatio) return words.Sentence("AboveHighestRatio", {NumberText(kHighestRatio)});
    if (gear > 1 && ratios[gear] > ratios[gear - 1]) return words["ShorterThanGearBelow"];
    return words.Sentence("BelowLowestRatio", {NumberText(kLowestRatio)});
}

}  // namespace zolv
