// A gearbox turned into speeds, and the speeds into a gearbox again.

#include <algorithm>
#include <functional>
#include <string>

#include "aero/aero_state.h"
#include "fields/guards.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "gearing/ratios_page.h"
#include "gearing/speeds_page.h"
#include "properties/random.h"
#include "support/zolv_test.h"
#include "units/option_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

class GearingProperties : public ZolvTest {
protected:
    GearingProperties() { Start(); }

    /// Longer gears upward, as a driver would have them.
    ByGear RandomRatios() {
        ByGear ratios{};
        for (std::size_t gear = 1; gear <= kGears; ++gear) ratios[gear] = static_cast<float>(random.Real(0.5, 7.5));
        std::sort(ratios.values.begin() + 1, ratios.values.end(), std::greater<>());
        ratios[0] = vehicle.CurrentCar.Reverse;
        return ratios;
    }

    void SetRandomRules() {
        options.AccelerationOn = false;
        options.AutoRevs = random.Whole(0, 3) > 0;
        options.CustomRevs = random.Whole(1000, 12000);
        options.RevLimitOn = random.Coin();
        options.RevsMaxMode = random.Coin();
        Zolv.Select_FrontWingAngle.Drag(random.Whole(0, 15));
        Zolv.Select_PressureR.Drag(random.Whole(100, 400));
    }

    /// The speeds that a gearbox gives, taken to the other page without the whole numbers of its sliders.
    static void HandOverExactSpeeds() {
        gearing.RatiosMode = false;
        gearing.FromSpeeds.GearSpeed = gearing.FromRatios.GearSpeed;
        gearing.FromSpeeds.FinalDrive = gearing.FromRatios.FinalDrive;
        guards.Busy = true;  // a raised final drive is written to its box, which is to start nothing here
        CalcGearAxleLoads();
        CalcGearSpeedFactors();
        CalcGearRatios();
        guards.Busy = false;
    }

    static std::size_t Gears() { return static_cast<std::size_t>(vehicle.CurrentCar.NumGears); }

    /// Where no car gets, downforce squashes the tyres so much that the fixed rounds of the way there do not settle;
    /// what comes back is off by up to two hundredths.
    static bool GoesBeyondTopSpeed() {
        const ByGear& speeds = gearing.FromRatios.GearSpeed;
        return std::any_of(speeds.values.begin() + 1, speeds.values.begin() + 1 + static_cast<std::ptrdiff_t>(Gears()),
                           [](float speed) { return speed > aero.TopSpeed; });
    }

    Random random{4};
};

TEST_F(GearingProperties, RatiosComeBackFromTheirSpeeds) {
    constexpr int kCasesOfCar = 300;
    int compared = 0;
    for (const std::string& car : vehicle.CarName) {
        Set("Select_Car", car);
        for (int i = 0; i < kCasesOfCar; ++i) {
            SetRandomRules();
            gearing.RatiosMode = true;
            const ByGear ratios = gearing.FromRatios.GearRatio = RandomRatios();
            const auto finalDrive = static_cast<float>(random.Real(0.5, 7.5));
            gearing.FromRatios.FinalDrive = finalDrive;
            CalcGearSpeeds();
            HandOverExactSpeeds();
            if (gearing.FromSpeeds.FinalDrive != finalDrive) continue;  // the search had to raise it
            if (GoesBeyondTopSpeed()) continue;
            ++compared;
            for (std::size_t gear = 1; gear <= Gears(); ++gear) {
                ASSERT_NEAR(gearing.FromSpeeds.GearRatio[gear], ratios[gear], 0.001)
                    << car << ' ' << i << " gear " << gear;
            }
        }
    }
    EXPECT_GT(compared, 1500);
}

}  // namespace
}  // namespace zolv
