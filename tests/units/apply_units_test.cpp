#include "units/apply_units.h"

#include <string>
#include <variant>
#include <vector>

#include "fields/all_windows.h"
#include "fields/guards.h"
#include "gearing/gearing_state.h"
#include "support/zolv_test.h"
#include "units/option_state.h"
#include "units/options_panel.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

enum SpeedUnit { kMs, kKmh, kMph, kKn, kFps };

void PickSpeed(SpeedUnit unit) { OptionsPanel.Units[0].Select.Pick(unit); }

class ApplyUnits : public StartedTest {};

// By hand: 0.2 kW/kg are 271.92 PS or 268.20 hp on 2204.62 lb.
TEST(UnitCatalogue, WritesAValueInEachUnit) {
    EXPECT_EQ(TextsInAllUnits(&UnitState::Speed, 10),
              (std::vector<std::string>{"10 m/s", "36 km/h", "22.4 mph", "19.4 kn", "32.8 ft/s"}));
    EXPECT_EQ(TextsInAllUnits(&UnitState::P2W, 0.2),
              (std::vector<std::string>{"200 kW/t", "5 kg/kW", "272 PS/t", "243 hp/ton", "273 hp/ton", "3.9 hp/slug",
                                        "8.2 lb/hp"}));
}

TEST_F(ApplyUnits, NothingIsTakenDuringTheLoad) {
    guards.Loading = true;
    OptionsPanel.Units[1].Select.Pick(3);
    options.RedlineOn = true;
    ApplyOptions();
    EXPECT_EQ(units.Distance.Unit, 0);
    EXPECT_EQ(OptionsPanel.Units[1].Caption.Caption(), "m");
    EXPECT_FALSE(OptionsPanel.EnableRedline.Checked());
}

// The fastest gear at the end of the old unit's range, the unit picked in the list or put in force by an options file.
// By hand: 720 km/h are 656.17 ft/s, and 388.77 kn, which the slider's whole number takes beyond the knots' range.
TEST_F(ApplyUnits, SpeedRangeIsWidenedBeforeTheConversionAndNarrowedAfterTheRefresh) {
    struct {
        SpeedUnit from;
        const char* top;
        SpeedUnit to;
        bool fromFile;
        const char *whileFollowed, *after;  // the box while the refresh steps run and behind them
    } const kCases[] = {{kKmh, "720", kFps, false, "656", "656"}, {kKmh, "720", kKn, false, "389", "388"},
                        {kMs, "200", kKn, false, "388", "388"},   {kFps, "656", kKmh, false, "720", "720"},
                        {kKmh, "720", kMs, true, "720", "200"},   {kMs, "200", kKmh, true, "200", "200"},
                        {kKmh, "720", kFps, true, "656", "656"},  {kKmh, "720", kMph, true, "720", "447"}};
    for (const auto& row : kCases) {
        unitFollowUps.Speed = [] {};
        PickSpeed(row.from);
        Zolv.Speeds.Input[6].Enter(row.top);
        std::string seen;
        bool busy = true;
        unitFollowUps.Speed = [&] {
            seen = Zolv.Speeds.Input[6].Text();
            busy = guards.Busy;
        };
        if (row.fromFile) {
            units.Speed.Unit = row.to;
            ApplyOptions();
        } else {
            PickSpeed(row.to);
        }
        EXPECT_EQ(seen, row.whileFollowed);
        EXPECT_FALSE(busy);
        EXPECT_EQ(Zolv.Speeds.Input[6].Text(), row.after) << row.from << " to " << row.to;
        EXPECT_EQ(Zolv.Speeds.InputSlider[6].Max(), SpeedSliderMaximum(row.to));
    }
}

}  // namespace
}  // namespace zolv
