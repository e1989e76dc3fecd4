// What is held, and the steps of the driver, by hand-made cases.

#include "desk/held.h"

#include <algorithm>

#include "desk/history.h"
#include "support/drawn.h"
#include "support/zolv_test.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

class Desk : public StartedTest {
protected:
    static void Give(const char* name, const char* value, int gesture = 0) {
        Set(name, value);
        NoteInput(*Zolv.Find(name), gesture);
    }
};

// 1.7 of the Pell S at start reaches 32.9 m/s in 3rd; at 2.0 it is 32.9 * 1.7 / 2.0 * (a shift point 7.6 % higher).
TEST_F(Desk, ChangesStandBesideFiguresWhileOneIsHeld) {
    EXPECT_EQ(Zolv.Ratios.Result[3].Held(), "");
    EXPECT_FALSE(Zolv.SetUpSwap.Enabled());
    Zolv.SetUpHold.Click();
    EXPECT_EQ(Zolv.Ratios.Result[3].Held(), "32.9 m/s");
    EXPECT_EQ(Zolv.Ratios.Result[3].Change(), "");
    Give("Select_RearWingAngle", "20");
    EXPECT_EQ(Zolv.WingAngleRear.Change(), "+6");
    EXPECT_EQ(BetterWayOf(Zolv.Aero_TopSpeed), BetterWay::Up);
    EXPECT_EQ(BetterWayOf(Zolv.AccDataLabel[1]), BetterWay::Down);
    EXPECT_EQ(BetterWayOf(Zolv.AccDataLabel[7]), BetterWay::Up);
    EXPECT_EQ(BetterWayOf(Zolv.Aero_TotalDrag), BetterWay::Neither);
    Give("Gear3", "2");
    EXPECT_EQ(ChangeOf(Zolv.Ratios.Result[3]), Zolv.Ratios.Result[3].Change());
    EXPECT_NE(ChangeOf(Zolv.AccDataLabel[1]), "");
    Give("Gear1", "1.9");  // wrong order: what follows from the gears is older than they are
    EXPECT_EQ(ChangeOf(Zolv.Ratios.Result[3]) + ChangeOf(Zolv.AccDataLabel[1]), "");
    EXPECT_EQ(ChangeOf(Zolv.WingAngleRear), "+6");
    Zolv.SetUpRelease.Click();
    EXPECT_EQ(Zolv.Ratios.Result[3].Held(), "");
    EXPECT_FALSE(Zolv.Label_Held.Visible());
    EXPECT_FALSE(Zolv.SetUpRelease.Enabled());
}

TEST_F(Desk, WhatIsHeldIsDrawnAtOnce) {
    const auto held = [](const CanvasField& plot) {
        return std::ranges::any_of(plot.Drawing().Operations(), [](const DrawingOperation& operation) {
            return operation.meaning.standing == Standing::Held;
        });
    };
    const auto drawnOf = [&] {
        std::string drawn;
        for (const CanvasField* plot : {&Zolv.TorquePowerPlot, &Zolv.CPS, &Zolv.SpeedPlot, &Zolv.TorquePlot}) {
            if (held(*plot)) drawn += plot->Name() + '|';
        }
        return drawn;
    };
    EXPECT_EQ(drawnOf(), "");
    Zolv.SetUpHold.Click();
    EXPECT_EQ(drawnOf(), "TorquePowerPlot|CPS|SpeedPlot|TorquePlot|");
    const auto run = Drawn(Zolv.SpeedTimeGraph.Drawing());
    Set("TimeDifference", "on");
    EXPECT_NE(Drawn(Zolv.SpeedTimeGraph.Drawing()), run);
    Set("Gear2", "4");  // whose report stands on the plot of the torque, and stays there
    const auto report = Drawn(Zolv.TorquePlot.Drawing());
    Zolv.SetUpRelease.Click();
    EXPECT_EQ(drawnOf(), "");
    EXPECT_EQ(Drawn(Zolv.TorquePlot.Drawing()), report);
}

TEST_F(Desk, FiguresOfTheTyreThatIsPickedAreHeld) {
    Set("Select_PressureF", "130");
    Zolv.SetUpHold.Click();
    const std::string front = Zolv.CPL.Held();
    Set("RearTyreAnal", "on");
    const std::string rear = Zolv.CPL.Held();
    EXPECT_NE(rear, front);
    Zolv.SetUpHold.Click();
    EXPECT_EQ(Zolv.CPL.Held(), rear);
}

TEST_F(Desk, SwapTakesEachForTheOther) {
    Zolv.SetUpHold.Click();
    Give("Gear3", "2");
    Zolv.SetUpSwap.Click();
    EXPECT_EQ(Shown("Gear3"), "1.7");
    EXPECT_EQ(desk.Held->SetUp.Ratios[3], 2);
    NoteInput(Zolv.SetUpSwap);
    Zolv.EditUndo.Click();
    EXPECT_EQ(Shown("Gear3"), "2");
    EXPECT_EQ(desk.Held->SetUp.Ratios[3], 1.7);
}

TEST_F(Desk, ACarThatIsNotTheSameAnyMoreIsNamed) {
    UseCustomCar("Series Mu", {{CarField::Mass, 420}});
    const std::string preset = Shown("Select_Car");
    StartHistory();
    Zolv.SetUpHold.Click();
    Give("Select_Car", "Mote 900");
    vehicle.CustomData[static_cast<std::size_t>(CarField::Mass) * kMaxPresets] = 430;
    for (void (*move)() : {Undo, SwapWithHeld}) {
        move();
        ExpectMessage(testing::HasSubstr(preset));
        EXPECT_EQ(Shown("Select_Car"), "Mote 900");
    }
    EXPECT_TRUE(Zolv.EditUndo.Enabled());
    EXPECT_EQ(desk.Held->SetUp.CarName, preset);
    vehicle.PresetsUsed = 0;
    Zolv.EditUndo.Click();
    ExpectMessage(testing::HasSubstr(preset));
}

TEST_F(Desk, StepsAreNamedAndDropWhatCouldBeRedone) {
    EXPECT_FALSE(Zolv.EditUndo.Enabled());
    Give("Gear3", "2");
    EXPECT_EQ(Zolv.EditUndo.Caption(), "&Undo 3rd gear ratio");
    Give("Select_PressureR", "160");
    Give("Select_PressureR", "160");  // changes nothing
    EXPECT_EQ(Zolv.EditUndo.Caption(), "&Undo rear tyre pressure");
    Zolv.EditUndo.Click();
    EXPECT_EQ(Zolv.EditRedo.Caption(), "&Redo rear tyre pressure");
    EXPECT_EQ(Shown({"Gear3", "Select_PressureR"}), "2|175|");
    Give("Select_PressureR", "175");  // as it is by now
    EXPECT_TRUE(Zolv.EditRedo.Enabled());
    Zolv.EditRedo.Click();
    EXPECT_EQ(Shown({"Gear3", "Select_PressureR"}), "2|160|");
    Zolv.EditUndo.Click();
    Give("Select_Tyres2", Zolv.Select_Tyres2.Rows()[1].c_str());
    EXPECT_EQ(Zolv.EditUndo.Caption(), "&Undo tyre type");
    EXPECT_FALSE(Zolv.EditRedo.Enabled());
}

TEST_F(Desk, MovesOfOneGestureAreOneStep) {
    for (const char* value : {"2500", "2600", "2700"}) Give("Select_Ratio2", value, 7);
    Give("Select_Ratio2", "2800", 8);
    EXPECT_EQ(history.Done.size(), 2U);
    for (const char* value : {"2900", "2800"}) Give("Select_Ratio2", value, 9);  // and back
    EXPECT_EQ(history.Done.size(), 2U);
    Zolv.EditUndo.Click();
    Zolv.EditUndo.Click();
    EXPECT_EQ(Shown("Gear2"), "2.4");

    for (const char* value : {"2500", "2600"}) Give("Select_Ratio2", value, 12);
    EXPECT_FALSE(TakeBack(11)) << "another gesture";
    EXPECT_TRUE(TakeBack(12));
    EXPECT_EQ(Shown("Gear2"), "2.4");
    EXPECT_FALSE(Zolv.EditUndo.Enabled() || Zolv.EditRedo.Enabled());
    EXPECT_FALSE(TakeBack(12));
}

// 17 in 1st raises the final drive of the Pell S to its most: one input, and one step back.
TEST_F(Desk, AFinalDriveThatTheSearchRaisedGoesBackWithItsInput) {
    Give("Direction2", "on");
    const std::string before = Shown({"B_Final", "B_Speed1"});
    Give("B_Speed1", "1");
    EXPECT_EQ(Shown("B_Final"), "7.5");
    Zolv.EditUndo.Click();
    EXPECT_EQ(Shown({"B_Final", "B_Speed1"}), before);
}

TEST_F(Desk, AnOpenedFileIsAStepWithItsName) {
    Zolv.FileSave.Click();
    ASSERT_EQ(Requests().size(), 1U);  // cancelled
    Answer(InFolder("road.zolv"));
    Zolv.FileSave.Click();
    Give("Gear2", "2.2");
    Answer(InFolder("road.zolv"));
    Zolv.FileOpen.Click();
    NoteInput(Zolv.FileOpen);
    EXPECT_EQ(Zolv.EditUndo.Caption(), "&Undo opening of road.zolv");
    Zolv.EditUndo.Click();
    EXPECT_EQ(Shown("Gear2"), "2.2");
}

TEST_F(Desk, WhatCannotBeHeldIsToldAndLeavesWhatIsHeld) {
    Zolv.SetUpHold.Click();
    const auto held = desk.Held;
    for (const auto& [content, message] : {std::pair("no set-up", "bad.zolv"), {"", "bad.zolv"}}) {
        WriteContent("bad.zolv", content);
        Answer(InFolder("bad.zolv"));
        Zolv.SetUpHoldFile.Click();
        ExpectMessage(testing::HasSubstr(message));
        EXPECT_EQ(desk.Held, held);
    }
}

}  // namespace
}  // namespace zolv
