#include <array>
#include <filesystem>
#include <functional>
#include <regex>
#include <set>
#include <utility>

#include "fields/field_row.h"
#include "shell/fresh_start.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// A window with one field of each kind, or a few, that notes the events it hears.
class Form : public Window {
public:
    Form() : Window("Form", "A form", true) {
        Box.OnChange = [this] { events.push_back("change " + Box.Text()); };
        Bar.OnScroll = [this] { events.push_back("scroll " + std::to_string(Bar.Value())); };
        Bar.OnChange = [this] { events.push_back("change " + std::to_string(Bar.Value())); };
        List.OnClick = [this] { events.push_back("click " + List.Text()); };
        Check.OnClick = [this] { events.emplace_back(Check.Checked() ? "on" : "off"); };
        for (OptionButton* button : {&Left, &Right, &Other}) {
            button->OnClick = [this, button] { events.push_back("chose " + button->Name()); };
        }
    }

    std::vector<std::string> events;
    std::vector<std::string> TakeEvents() { return std::exchange(events, {}); }

    Label Text{*this, "Text", {.caption = "text"}};
    TextBox Box{*this, "Box", {.text = "1", .maxLength = 5}};
    Slider Bar{*this, "Bar", {.min = 10, .max = 20, .value = 15}};
    PickList List{*this, "List", {.rows = {"a", "b", "b"}, .picked = 0}};
    CheckBox Check{*this, "Check"};
    OptionButton Left{*this, "Left", {.checked = true, .group = 1}};
    OptionButton Right{*this, "Right", {.group = 1}};
    OptionButton Other{*this, "Other", {.checked = true, .group = 2}};
    FieldArray<Panel, 2> Sheet{*this, "Sheet", [](int i) { return PanelState{.stack = 1, .front = i == 0}; }};
    Panel Alone{*this, "Alone", {.stack = 2, .front = true}};
    TabStrip Tabs{*this, "Tabs", 2};
    Picture Photo{*this, "Photo"};
    CanvasField Plot{*this, "Plot", 100, 50};
};

class Fields : public testing::Test {
protected:
    Form form;
};

TEST_F(Fields, ABoxRaisesChangeOnlyWhenItsTextDiffers) {
    form.Box.SetText("1");
    EXPECT_THAT(form.TakeEvents(), IsEmpty());
    form.Box.SetText("1.0");
    form.Box.Enter("1.0");
    EXPECT_THAT(form.TakeEvents(), ElementsAre("change 1.0"));
}

TEST_F(Fields, KeyPressesAndTheMaximumLengthAreForTheUserAlone) {
    form.Box.OnKeyPress = [](char typed) { return typed == ',' ? '.' : typed; };
    form.Box.Enter("1,5");
    form.Box.SetText("2,5,123456");
    form.Box.Enter("äöü€ß!");  // characters, not bytes
    EXPECT_THAT(form.TakeEvents(), ElementsAre("change 1.5", "change 2,5,123456", "change äöü€ß"));
}

TEST_F(Fields, ANewTextPutsTheCaretBack) {
    form.Box.SetText("some text");
    form.Box.SetCaret(400);
    EXPECT_EQ(form.Box.Caret(), 9U);
    form.Box.SetText("other");
    EXPECT_EQ(form.Box.Caret(), 0U);
}

TEST_F(Fields, ASliderLimitsWhatItIsGiven) {
    form.Bar.SetValue(15);
    form.Bar.SetValue(99);
    form.Bar.SetValue(21);  // stands at 20 already
    form.Bar.Drag(20);
    form.Bar.Drag(-5);
    EXPECT_THAT(form.TakeEvents(), ElementsAre("change 20", "scroll 10", "change 10"));
}

TEST_F(Fields, ANewRangeMovesTheValueIntoItself) {
    form.Bar.SetRange(0, 15);
    EXPECT_THAT(form.TakeEvents(), IsEmpty());
    form.Bar.SetRange(0, 12);
    form.Bar.SetRange(14, 14);
    EXPECT_THAT(form.TakeEvents(), ElementsAre("change 12", "change 14"));
}

TEST_F(Fields, APickRaisesClickAlsoOnTheRowAlreadyPicked) {
    form.List.Pick(0);
    form.List.SetText("a");
    form.List.SetText("b");
    EXPECT_EQ(form.List.Picked(), 1);  // the first of that text
    form.List.SetText("none of them");
    form.List.Pick(3);
    form.List.Pick(-1);
    EXPECT_THAT(form.TakeEvents(), ElementsAre("click a", "click a", "click b"));
    form.List.Clear();
    EXPECT_EQ(form.List.Text(), "");
    EXPECT_THAT(form.TakeEvents(), IsEmpty());
}

TEST_F(Fields, ButtonsRaiseClickWhenTheirStateChanges) {
    for (const bool on : {false, true, true, false}) form.Check.SetChecked(on);
    form.Left.Choose();
    form.Right.Choose();
    EXPECT_THAT(form.TakeEvents(), ElementsAre("on", "off", "chose Right"));
    EXPECT_FALSE(form.Left.Checked());
    EXPECT_TRUE(form.Other.Checked()) << "of another group";
}

TEST_F(Fields, APanelInFrontCoversTheOthersOfItsStack) {
    form.Sheet[1].BringToFront();
    EXPECT_FALSE(form.Sheet[0].InFront());
    EXPECT_TRUE(form.Sheet[1].InFront() && form.Alone.InFront());
}

TEST_F(Fields, EventsRunInsideTheWrite) {
    form.Box.OnChange = [this] {
        form.events.push_back("box " + form.Box.Text());
        form.Bar.SetValue(12);
        form.events.emplace_back("box done");
    };
    form.Bar.OnChange = [this] {
        form.events.push_back("bar " + std::to_string(form.Bar.Value()));
        form.Box.SetText("12");
    };
    form.Box.SetText("12.0");
    EXPECT_THAT(form.TakeEvents(), ElementsAre("box 12.0", "bar 12", "box 12", "box done", "box done"));
}

TEST_F(Fields, AWindowKnowsWhatChangedEachOnce) {
    EXPECT_TRUE(form.TakeChanged().empty());
    form.Text.SetCaption("text");
    form.Text.SetColour(std::nullopt);
    form.Bar.SetRange(10, 20);
    form.Alone.BringToFront();
    form.Photo.SetPath("");
    EXPECT_THAT(form.TakeChanged(), IsEmpty());

    form.Text.SetCaption("new");
    form.Text.SetColour(kRed);
    form.Bar.SetValue(11);
    form.Right.Choose();
    form.Sheet[1].BringToFront();
    form.Plot.Draw().Line(Role::Shape, 0, 0, 1, 1);
    form.SetTitle("Another");
    EXPECT_THAT(form.TakeChanged(), UnorderedElementsAre(&form.Text, &form.Bar, &form.Left, &form.Right, &form.Sheet[0],
                                                         &form.Sheet[1], &form.Plot, &form));
    EXPECT_THAT(form.TakeChanged(), IsEmpty());
    form.Text.SetCaption("newer");
    EXPECT_THAT(form.TakeChanged(), ElementsAre(&form.Text));
}

TEST_F(Fields, EachWriteThatChangesSomethingIsKnown) {
    const std::pair<Field*, std::function<void()>> kWrites[] = {{&form.Text, [&] { form.Text.SetToolTip("tip"); }},
                                                                {&form.Text, [&] { form.Text.SetVisible(false); }},
                                                                {&form.Text, [&] { form.Text.SetEnabled(false); }},
                                                                {&form.Box, [&] { form.Box.SetText("other"); }},
                                                                {&form.Box, [&] { form.Box.SetCaret(3); }},
                                                                {&form.Bar, [&] { form.Bar.SetRange(0, 40); }},
                                                                {&form.List, [&] { form.List.Pick(1); }},
                                                                {&form.List, [&] { form.List.Add("c"); }},
                                                                {&form.List, [&] { form.List.SetRow(0, "A"); }},
                                                                {&form.List, [&] { form.List.SetLocked(true); }},
                                                                {&form.List, [&] { form.List.Clear(); }},
                                                                {&form.Tabs, [&] { form.Tabs.SetToolTipOf(1, "tip"); }},
                                                                {&form.Check, [&] { form.Check.SetChecked(true); }},
                                                                {&form.Photo, [&] { form.Photo.SetPath("a.jpg"); }},
                                                                {&form, [&] { form.Show(); }}};
    for (const auto& [field, write] : kWrites) {
        write();
        EXPECT_THAT(form.TakeChanged(), ElementsAre(field));
    }
}

TEST_F(Fields, ResetIsSilentAndComplete) {
    form.Box.SetText("9");
    form.Bar.SetRange(30, 40);
    form.List.Clear();
    form.Right.Choose();
    form.Check.SetChecked(true);
    for (Field* field : form.Fields()) {
        field->SetVisible(false);
        field->SetEnabled(false);
    }
    form.Sheet[1].BringToFront();
    form.Tabs.Pick(1);
    form.Tabs.SetToolTipOf(1, "tip");
    form.Photo.SetPath("a.jpg");
    form.Plot.Draw().Line(Role::Shape, 0, 0, 1, 1);
    form.SetTitle("Another");
    form.Show();
    form.TakeEvents();
    form.Reset();
    EXPECT_FALSE(form.TakeToFront());
    EXPECT_THAT(form.TakeEvents(), IsEmpty());
    EXPECT_EQ(form.Box.Text() + form.List.Text() + form.Photo.Path() + form.Title(), "1aA form");
    EXPECT_THAT((std::vector{form.Bar.Value(), form.Bar.Max()}), ElementsAre(15, 20));
    EXPECT_TRUE(form.Left.Checked() && !form.Right.Checked() && !form.Check.Checked());
    for (const Field* field : form.Fields()) EXPECT_TRUE(field->Visible() && field->Enabled()) << field->Name();
    EXPECT_TRUE(form.Sheet[0].InFront() && form.Tabs.Picked() == 0 && form.Tabs.ToolTips()[1].empty());
    EXPECT_TRUE(form.Plot.Drawing().Operations().empty());
}

TEST_F(ZolvTest, AFreshStartLeavesNothingOfTheRunBefore) {
    const std::vector<std::string> before = EverythingShown();
    Start();
    Set("Select_Car", "Series Mu");
    Set("UseFixedSpeed", "on");
    Set("Gear1", "3,9");
    Set("OptionsPanel.Select_SpeedUnits", "Miles per Hour");
    Set("RC_Fixed", "on");  // which disables a check box and enables a text box
    Set("Select_Graphs", "Acceleration Data Table");
    Set("AccelerationTestingEnable", "off");  // which hides a panel and locks a list
    EXPECT_NE(EverythingShown(), before);
    FreshStart();
    EXPECT_EQ(EverythingShown(), before);
}

// The range at the start, the value, and the steps of arrow keys and of Page Up: what the hand learns.
TEST_F(ZolvTest, EachSliderMovesInItsSteps) {
    // clang-format off
    constexpr struct { const char* name; int min, max, value, small, large, tick; } kSliders[] = {
        {"Select_XScale_SpeedPlot", 10, 50, 20, 5, 10, 10},
        {"Select_YScale_SpeedPlot", 200, 2000, 1000, 100, 200, 500},
        {"Select_XScale_TorquePlot", 100, 1000, 250, 100, 200, 250},
        {"Select_YScale_TorquePlot", 100, 2500, 500, 100, 500, 500},
        {"Select_XScale_TEPlot", 5, 20, 10, 5, 10, 5},
        {"Select_YScale_TEPlot", 200, 5000, 1000, 200, 500, 1000},
        {"Select_XScale_SpeedTimeGraph", 5, 20, 10, 5, 10, 5},
        {"Select_YScale_SpeedTimeGraph", 10, 50, 20, 5, 10, 10},
    };
    constexpr struct { const char* name; int small, large; } kOthers[] = {
        {"Select_Ratio1", 10, 100}, {"Select_Ratio6", 10, 100}, {"Select_Speed1", 1, 5}, {"Select_Speed6", 1, 5},
        {"Select_FinalDrive1", 100, 500}, {"Select_FinalDrive2", 100, 500}, {"Select_PressureF", 1, 10},
        {"Select_PressureR", 1, 10}, {"Select_FrontWingAngle", 1, 3}, {"Select_RearWingAngle", 1, 3},
        {"Select_AeroSpeed", 1, 10}, {"Select_AeroSpeed_TyreTab", 1, 10},
    };
    // clang-format on
    const auto sliderOf = [](const char* name) -> const Slider& {
        return static_cast<const Slider&>(*FindFields(name).at(0));
    };
    for (const auto& [name, min, max, value, small, large, tick] : kSliders) {
        const Slider& slider = sliderOf(name);
        EXPECT_THAT((std::array{slider.Min(), slider.Max(), slider.Value(), slider.SmallStep(), slider.LargeStep(),
                                slider.Tick()}),
                    ElementsAre(min, max, value, small, large, tick))
            << name;
    }
    for (const auto& [name, small, large] : kOthers) {
        EXPECT_THAT((std::pair{sliderOf(name).SmallStep(), sliderOf(name).LargeStep()}), testing::Pair(small, large))
            << name;
    }
}

TEST(Registry, FindsEveryFieldByItsName) {
    for (const Window* window : AllWindows()) {
        std::set<std::string> names;
        for (const Field* field : window->Fields()) {
            EXPECT_TRUE(names.insert(field->Name()).second) << field->Name() << " twice in " << window->Name();
            EXPECT_THAT(FindFields(window->Name() + '.' + field->Name()), ElementsAre(field));
        }
    }
    EXPECT_THAT(FindFields("GearingLabel(30)"), ElementsAre(&Zolv.GearingLabel[30]));
    EXPECT_THAT(FindFields("Select_MassUnits"), testing::SizeIs(2));  // of two windows
    EXPECT_THAT(FindFields("OptionsPanel"), ElementsAre(&OptionsPanel));
    EXPECT_THAT(FindFields("Gear7"), IsEmpty());
    EXPECT_EQ(NearestFieldName("gaer3"), "Gear3");
}

// Scripts know a field by its name, the source by its member's. They are typed beside each other, and must not part.
TEST(Registry, NamesFieldsAsTheSourceDoes) {
    const std::regex declared(R"re((\w+)\{\s*\*this,\s*"(\w+)")re");
    int compared = 0;
    for (const auto& file : std::filesystem::directory_iterator(ZOLV_SOURCE_DIR "/src/fields")) {
        if (!file.path().string().ends_with("_window.h")) continue;
        const std::string text = ContentOf(file.path().string());
        for (std::sregex_iterator match(text.begin(), text.end(), declared), end; match != end; ++match) {
            const std::string member = (*match)[1];
            if (member == "UnitChoice" || member == "Second") continue;  // of several fields each
            const bool ofAero = member == "Undertray" || member == "FrontWing" || member == "RearWing";
            EXPECT_EQ((*match)[2], ofAero ? "Aero_" + member : member);
            ++compared;
        }
    }
    EXPECT_GT(compared, 250);
}

}  // namespace
}  // namespace zolv
