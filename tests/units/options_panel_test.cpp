#include "units/options_panel.h"

#include <utility>

#include "fields/windows.h"
#include "support/zolv_test.h"
#include "text/texts.h"
#include "units/option_state.h"

namespace zolv {
namespace {

/// The options panel with its follow-ups counted in place of the work behind them.
class OptionsOnPanel : public ZolvTest {
protected:
    void SetUp() override {
        Start();
        optionFollowUps.GearingOptionChanged = [this] { ++recalculated; };
        optionFollowUps.PlotOptionChanged = [this] { ++redrawn; };
    }

    int recalculated = 0;
    int redrawn = 0;
};

TEST_F(OptionsOnPanel, EachCheckBoxOfThePlotsSwitchesItsOwnFlag) {
    for (const PlotFlag& flag : PlotFlags()) {
        EXPECT_EQ(flag.box.Checked(), flag.checkedAtStart) << flag.box.Name();
        flag.box.SetChecked(!flag.checkedAtStart);
        for (const PlotFlag& other : PlotFlags()) {
            EXPECT_EQ(other.On(), other.box.Checked()) << flag.box.Name() << ", " << other.box.Name();
        }
    }
    EXPECT_EQ(redrawn, 6);
    EXPECT_EQ(recalculated, 0);
}

TEST_F(OptionsOnPanel, EachSliderMovesItsOwnScale) {
    for (const PlotScale& scale : PlotScales()) {
        EXPECT_EQ(options.*scale.value, scale.slider.Value()) << scale.slider.Name() << " at start";
        redrawn = 0;
        scale.slider.Drag(scale.slider.Min());
        EXPECT_EQ(redrawn, 1) << scale.slider.Name();
        for (const PlotScale& other : PlotScales()) EXPECT_EQ(options.*other.value, other.slider.Value());
    }
}

TEST_F(OptionsOnPanel, RevsOfTopGearFollowTheirButtons) {
    OptionsPanel.RevsP.Choose();
    EXPECT_TRUE(options.RevsMaxMode);
    OptionsPanel.RevsR.Choose();
    EXPECT_FALSE(options.RevsMaxMode);
    OptionsPanel.RevLimitEnable.SetChecked(true);
    EXPECT_TRUE(options.RevLimitOn);
    EXPECT_EQ(recalculated, 3);
}

TEST_F(OptionsOnPanel, FixedRevsOpenTheirBoxAndCloseTheLimiter) {
    OptionsPanel.RC_Fixed.Choose();
    EXPECT_FALSE(options.AutoRevs);
    EXPECT_EQ(options.CustomRevs, 7000);
    EXPECT_TRUE(OptionsPanel.RC_FixedVal.Enabled());
    EXPECT_FALSE(OptionsPanel.RevLimitEnable.Enabled());
    EXPECT_EQ(recalculated, 1);
    for (const auto& [text, revs] : {std::pair("650.5", 650), std::pair("651.5", 652), std::pair("", 0)}) {
        OptionsPanel.RC_FixedVal.Enter(text);
        EXPECT_EQ(options.CustomRevs, revs) << text;
    }
    OptionsPanel.RC_Auto.Choose();
    EXPECT_TRUE(options.AutoRevs);
    EXPECT_FALSE(OptionsPanel.RC_FixedVal.Enabled());
    EXPECT_TRUE(OptionsPanel.RevLimitEnable.Enabled());
    EXPECT_EQ(recalculated, 5);
}

TEST_F(OptionsOnPanel, AccelerationThatIsOffHidesItsFiguresAndLocksTheGraphs) {
    Zolv.Select_Graphs.Pick(2);
    OptionsPanel.AccelerationTestingEnable.SetChecked(false);
    EXPECT_FALSE(options.AccelerationOn);
    EXPECT_FALSE(Zolv.ShowAcc.Visible());
    EXPECT_TRUE(Zolv.Select_Graphs.Locked());
    EXPECT_EQ(Zolv.Select_Graphs.Text(), texts.GraphNames[0]);
    EXPECT_TRUE(Zolv.SpeedPlot.Visible());
    EXPECT_EQ(recalculated, 0);
    OptionsPanel.AccelerationTestingEnable.SetChecked(true);
    EXPECT_TRUE(options.AccelerationOn);
    EXPECT_TRUE(Zolv.ShowAcc.Visible());
    EXPECT_FALSE(Zolv.Select_Graphs.Locked());
    EXPECT_EQ(recalculated, 1);
}

}  // namespace
}  // namespace zolv
