#pragma once

#include <algorithm>
#include <array>
#include <optional>

#include "desk/present.h"
#include "properties/random.h"
#include "support/zolv_test.h"
#include "units/unit_catalogue.h"

/// Any set-up that a driver could have, of all cars and three of one's own.
namespace zolv {

class AnySetUps : public StartedTest, public testing::WithParamInterface<int> {
protected:
    AnySetUps() {
        // Three cars of one's own: light and strong, heavy and weak, and one that no cubic fits.
        UseCustomCar("Series Mu", {{CarField::Mass, 420}, {CarField::Cl, -0.4}, {CarField::DrivetrainType, 2}});
        UseCustomCar("Mote 900", {{CarField::Mass, 2400}, {CarField::Power, 18}, {CarField::NumGears, 3}});
        UseCustomCar("Wisp 6", {{CarField::TorqueRPM, 8429}, {CarField::FWS, 13.5}, {CarField::RWS, 16}});
    }

    PerGear<double> Gears(double low, double high, bool rising) {
        PerGear<double> gears;
        for (int gear = 1; gear <= kGears; ++gear) gears[gear] = random_.Real(low, high);
        // One in a dozen stays in disorder.
        if (random_.Whole(0, 11) > 0) std::sort(gears.values.begin() + 1, gears.values.end());
        if (!rising) std::reverse(gears.values.begin() + 1, gears.values.end());
        return gears;
    }

    zolv::SetUp Any() {  // not the fixture's own
        zolv::SetUp setUp = PresentSetUp();
        setUp.CarName = random_.OneOf(Zolv.Select_Car.Rows());
        setUp.From = random_.Coin() ? Direction::FromRatios : Direction::FromSpeeds;
        setUp.Ratios = Gears(0.6, random_.Coin() ? 4 : 7.4, false);
        setUp.Speeds = Gears(4, random_.Coin() ? 60 : 110, true);
        setUp.FinalDrive = {random_.Real(0.6, 7.4), random_.Real(0.6, 7.4)};
        setUp.FrontPressure = random_.Whole(100, 400);
        setUp.RearPressure = random_.Whole(100, 400);
        setUp.Blown = random_.Whole(0, 9) == 0;
        setUp.TyreType = random_.Whole(0, 7);
        setUp.TyreMu = random_.OneOf(std::to_array<float>({1.25F, 1.1F, 1.0F, 1.65F, 1.5F}));
        setUp.FrontWingAngle = random_.Whole(0, 15);
        setUp.RearWingAngle = random_.Whole(0, 30);
        setUp.AirSpeed = random_.Coin() ? std::optional(random_.Whole(0, 120)) : std::nullopt;
        setUp.Shifts = {.AutoRevs = random_.Whole(0, 3) > 0,
                        .CustomRevs = static_cast<double>(random_.Whole(2000, 9000)),
                        .RevLimitOn = random_.Coin(),
                        .RevsMaxMode = random_.Coin()};
        return setUp;
    }

    void PickAnyUnits() {
        for (int quantity = 0; quantity < kQuantities; ++quantity) {
            PickList& list = OptionsPanel.Units[static_cast<std::size_t>(quantity)].Select;
            list.Pick(random_.Whole(0, static_cast<int>(list.Rows().size()) - 1));
        }
        (random_.Coin() ? Zolv.FrontTyreAnal : Zolv.RearTyreAnal).Choose();
    }

    Random random_{static_cast<std::uint64_t>(GetParam())};
};

}  // namespace zolv
