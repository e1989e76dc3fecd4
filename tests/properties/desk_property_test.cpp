// Two set-ups on one desk, and every step back and forth.

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "desk/held.h"
#include "desk/history.h"
#include "files/settings_file.h"
#include "gearing/gearing_state.h"
#include "properties/set_ups.h"
#include "shell/fresh_start.h"
#include "text/number_text.h"

namespace zolv {
namespace {

using Texts = std::map<std::string, std::string>;

Texts HeldFigures() {
    Texts figures;
    for (const Field* field : Zolv.Fields()) {
        if (field->Kind() != FieldKind::Label) continue;
        const std::string& held = static_cast<const Label*>(field)->Held();
        if (!held.empty()) figures[field->Name()] = held;
    }
    return figures;
}

/// Whether it is a figure of one page of the gearing, but for reverse, which both have.
bool IsOfPage(const std::string& name, int mode) {
    GearingPanel& panel = Zolv.GearingOf(mode);
    const auto has = [&](auto& row, int last) {
        for (int gear = 1; gear <= last; ++gear) {
            if (row[gear].Name() == name) return true;
        }
        return false;
    };
    return has(panel.Result, 6) || has(panel.RPM, 6) || has(panel.RAC, 5) || has(panel.Torque, 6) ||
           panel.TorqueR.Name() == name;
}

class TwoSetUps : public AnySetUps {
protected:
    zolv::SetUp AnyInOrder() {
        while (true) {
            if (zolv::SetUp setUp = Any(); Evaluate(setUp, rows_).WrongOrder.empty()) return setUp;
        }
    }

private:
    RunRows rows_{};
};

// However the units, the car and the direction have changed meanwhile.
TEST_P(TwoSetUps, HeldFiguresReadAsThePagesDid) {
    constexpr int kPairs = 40;
    for (int i = 0; i < kPairs; ++i) {
        ASSERT_TRUE(LayOut(AnyInOrder()));
        const zolv::SetUp first = PresentSetUp();
        HoldPresent();
        ASSERT_TRUE(LayOut(Any()));
        if (i % 4 == 0) PickAnyUnits();
        const Texts held = HeldFigures();

        ASSERT_TRUE(LayOut(first));  // its choice of shift points, too
        ASSERT_TRUE(LayOutExactly(first));
        constexpr std::size_t kFewest = 90;  // of a car of two gears without fittings
        ASSERT_GT(held.size(), kFewest);
        for (const auto& [name, text] : held) {
            if (IsOfPage(name, first.From == Direction::FromRatios ? 1 : 0)) continue;  // which keeps older figures
            if (!first.AirSpeed && name.starts_with("AeroSpeed")) continue;  // shows the slider, which is not in force
            ASSERT_EQ(text, Shown(name)) << name;
        }
    }
}

TEST_P(TwoSetUps, AFileIsHeldAsItWouldBeLaidOut) {
    constexpr int kFiles = 20;
    for (int i = 0; i < kFiles; ++i) {
        const std::string number = std::to_string(random_.Whole(0, 900));
        std::string content = "CarName: " + random_.OneOf(Zolv.Select_Car.Rows());
        const char* const beyond[] = {number.c_str(), "9", "0.1", "0.3", "999"};
        for (const char* const key :
             {"FPressure", "RPressure", "GearF", "Gear1", "Gear2", "Gear3", "Gear4", "Gear5", "Gear6", "Final",
              "Speed1", "Speed2", "Speed3", "Speed4", "Speed5", "Speed6", "FWing", "RWing"}) {
            content += std::string("\r\n") + key + ": " + (random_.Whole(0, 2) == 0 ? random_.OneOf(beyond) : "2");
        }
        WriteContent("any.zolv", content + "\r\n");
        HoldSettingsFile("any.zolv");
        const Texts held = HeldFigures();
        OpenSettingsFile("any.zolv");
        HoldPresent();
        Texts laidOut = HeldFigures();
        laidOut["Label_Held"] = held.contains("Label_Held") ? held.at("Label_Held") : std::string();
        std::erase_if(laidOut, [](const auto& figure) { return figure.second.empty(); });
        ASSERT_EQ(held, laidOut);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TwoSetUps, testing::Range(1, 4));

/// Everything but what is older than the inputs: the figures of the page of the gearing that is not in force, and all
/// of the gearing's while its order is wrong.
std::vector<std::string> AllThatFollows() {
    std::vector<std::string> shown;
    if (!gearing.WrongOrder.empty()) return shown;
    for (std::string& line : EverythingShown()) {
        const std::string name = line.substr(line.find('.') + 1, line.find(' ') - line.find('.') - 1);
        const bool names = name == "EditUndo" || name == "EditRedo";
        if (!names && !IsOfPage(name, gearing.RatiosMode ? 1 : 0)) shown.push_back(std::move(line));
    }
    return shown;
}

std::string FirstDifference(const std::vector<std::string>& one, const std::vector<std::string>& other) {
    const auto [a, b] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
    return a == one.end() && b == other.end() ? std::string()
                                              : (a == one.end() ? "" : *a) + " | " + (b == other.end() ? "" : *b);
}

/// One thing that a driver does.
struct Action {
    Field* field;
    std::string value;
};

class Steps : public StartedTest, public testing::WithParamInterface<int> {
protected:
    Action AnyAction() {
        Field* const fields[] = {&Zolv.Select_Car,
                                 &Zolv.Direction1,
                                 &Zolv.Direction2,
                                 &Zolv.Select_Tyres,
                                 &Zolv.BlowTyres,
                                 &Zolv.Select_PressureF,
                                 &Zolv.Select_FrontWingAngle,
                                 &Zolv.Select_RearWingAngle,
                                 &Zolv.Select_AeroSpeed,
                                 &Zolv.UseFixedSpeed,
                                 &Zolv.UseSliderSpeed,
                                 &Zolv.Ratios.Input[random_.Whole(1, 6)],
                                 &Zolv.Ratios.InputSlider[random_.Whole(1, 6)],
                                 &Zolv.Speeds.Input[random_.Whole(1, 6)],
                                 &Zolv.Speeds.FinalDrive,
                                 &Zolv.Ratios.FinalDriveSlider,
                                 &Zolv.SetUpHold,
                                 &Zolv.SetUpSwap,
                                 &OptionsPanel.Units[0].Select};
        Field* const field = fields[random_.Whole(0, static_cast<int>(std::size(fields)) - 1)];
        std::string value;
        if (field->Kind() == FieldKind::PickList) value = random_.OneOf(static_cast<PickList*>(field)->Rows());
        if (field->Kind() == FieldKind::Slider) value = std::to_string(random_.Whole(0, 8000));
        if (field->Kind() == FieldKind::CheckBox) value = random_.Coin() ? "on" : "off";
        if (field->Kind() == FieldKind::TextBox) value = RoundedText(random_.Real(0, 90), random_.Whole(0, 4)) + "0";
        return {field, value};
    }

    /// Every page is worked out after each action, so that what follows depends on the inputs alone.
    static void Do(const Action& action) {
        if (!action.field->Enabled()) return;
        if (action.field->Kind() == FieldKind::MenuEntry) {
            static_cast<MenuEntry*>(action.field)->Click();
        } else {
            Set(action.field->Owner().Name() + '.' + action.field->Name(), action.value);
        }
        NoteInput(*action.field);
        deskFollowUps.LaidOut();
    }

    Random random_{static_cast<std::uint64_t>(GetParam())};
};

TEST_P(Steps, UndoneAndRedoneEndWhereTheyEndAlone) {
    constexpr int kActions = 60;
    std::vector<Action> actions;
    for (int i = 0; i < kActions; ++i) {
        actions.push_back(AnyAction());
        Do(actions.back());
        const int steps = random_.Whole(0, 3) == 0 ? random_.Whole(1, 6) : 0;
        const auto there = history.Done.size();
        for (int step = 0; step < steps; ++step) Undo();
        for (auto left = history.Done.size(); left < there; ++left) Redo();
        deskFollowUps.LaidOut();
    }
    const zolv::SetUp setUp = PresentSetUp();
    const BoxTexts boxes = PresentBoxTexts();
    const std::vector<std::string> shown = AllThatFollows();

    FreshStart();
    Start();
    for (const Action& action : actions) Do(action);
    EXPECT_TRUE(PresentSetUp() == setUp && PresentBoxTexts() == boxes);
    EXPECT_EQ(FirstDifference(AllThatFollows(), shown), "");
}

TEST_P(Steps, AThousandBackLeadToTheStart) {
    ASSERT_TRUE(LayOutExactly(PresentSetUp()));
    const std::vector<std::string> before = AllThatFollows();
    std::size_t most = 0;
    while (history.Done.size() < 1000) {
        const Action action = AnyAction();
        const bool isOption = &action.field->Owner() == &OptionsPanel;
        if (isOption || action.field == &Zolv.SetUpHold) continue;  // which are no steps, and stay
        Do(action);
        most = std::max(most, history.Done.size());
    }
    while (!history.Done.empty()) Undo();
    EXPECT_EQ(history.Undone.size(), most);
    EXPECT_EQ(FirstDifference(AllThatFollows(), before), "");
}

INSTANTIATE_TEST_SUITE_P(Seeds, Steps, testing::Range(1, 4));

}  // namespace
}  // namespace zolv
