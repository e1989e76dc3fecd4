#include "units/apply_units.h"

#include <string>
#include <variant>
#include <vector>

#include "fields/guards.h"
#include "fields/windows.h"
#include "gearing/gearing_state.h"
#include "support/zolv_test.h"
#include "units/option_state.h"
#include "units/options_panel.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

enum SpeedUnit { kMs, kKmh, kMph, kKn, kFps };

std::vector<std::string> SpeedBoxes() {
    std::vector<std::string> boxes;
    for (const TextBox& box : Zolv.Speeds.Input) boxes.push_back(box.Text());
    return boxes;
}

void PickSpeed(SpeedUnit unit) { OptionsPanel.Units[0].Select.Pick(unit); }

class ApplyUnits : public StartedTest {};

TEST_F(ApplyUnits, EveryRowOfEveryQuantityIsTakenAndFollowedOnce) {
    for (std::size_t i = 0; i < kQuantities; ++i) {
        const QuantityUnits& quantity = UnitCatalogue()[i];
        Quantity& state = units.*quantity.state;
        UnitChoice& choice = OptionsPanel.Units[i];
        int followed = 0;
        unitFollowUps.*quantity.picked = [&] { ++followed; };
        ASSERT_EQ(choice.Select.Rows().size(), quantity.rows.size());
        for (int row = static_cast<int>(quantity.rows.size()) - 1; row >= 0; --row) {
            choice.Select.Pick(row);
            const UnitRow& unit = quantity.rows[static_cast<std::size_t>(row)];
            EXPECT_EQ(state.Unit, row) << choice.Select.Name();
            EXPECT_EQ(state.Suffix, unit.suffix);
            EXPECT_EQ(choice.Caption.Caption(), unit.caption);
        }
        EXPECT_EQ(followed, static_cast<int>(quantity.rows.size())) << choice.Select.Name();
    }
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

// By hand: 16 m/s are 57.6 km/h, whose slider makes 58 of it; 115 km/h are 71.46 mph, of which the box takes 71.5 and
// the slider 72.
TEST_F(ApplyUnits, SpeedBoxesAreConvertedAndTakeTheWholeNumbersOfTheirSliders) {
    int ratiosFound = 0;  // speeds are not the input
    gearingFollowUps.RatiosFound = [&] { ++ratiosFound; };
    PickSpeed(kKmh);
    EXPECT_EQ(SpeedBoxes(), (std::vector<std::string>{"58", "83", "115", "140", "180", "216"}));
    EXPECT_EQ(Zolv.Label_SPD[6].Caption(), " km/h");
    EXPECT_EQ(OptionsPanel.SpeedPlotX.Units.Caption(), " km/h");
    PickSpeed(kMph);
    EXPECT_EQ(SpeedBoxes(), (std::vector<std::string>{"36", "52", "72", "87", "112", "134"}));
    EXPECT_EQ(ratiosFound, 0);
}

// 1 mph is 0.868976 kn: the slider stays at 1, so that the box keeps its decimal.
TEST_F(ApplyUnits, ABoxWhoseSliderStaysKeepsItsDecimal) {
    PickSpeed(kMph);
    Zolv.Speeds.Input[1].Enter("1");
    PickSpeed(kKn);
    EXPECT_EQ(Zolv.Speeds.Input[1].Text(), "0.9");
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

TEST_F(ApplyUnits, ControlsAreOnlyEverMovedAwayFromTheirStateAtStart) {
    const auto apply = [](bool away) {
        for (const PlotFlag& flag : PlotFlags()) {
            std::visit([&](auto member) { options.*member = flag.checkedAtStart != away; }, flag.flag);
        }
        options.RevsMaxMode = options.RevLimitOn = away;
        options.AutoRevs = options.AccelerationOn = !away;
        ApplyOptions();
    };
    const auto expectMoved = [](bool moved) {
        for (const PlotFlag& flag : PlotFlags()) EXPECT_EQ(flag.box.Checked() != flag.checkedAtStart, moved);
        EXPECT_EQ(OptionsPanel.RevsP.Checked(), moved);
        EXPECT_EQ(OptionsPanel.RevLimitEnable.Checked(), moved);
        EXPECT_EQ(OptionsPanel.RC_Fixed.Checked(), moved);
        EXPECT_EQ(OptionsPanel.AccelerationTestingEnable.Checked(), !moved);
    };
    apply(false);
    expectMoved(false);
    apply(true);
    expectMoved(true);
    apply(false);
    expectMoved(true);
    EXPECT_TRUE(options.AutoRevs && options.AccelerationOn && !options.RevLimitOn);
}

}  // namespace
}  // namespace zolv
