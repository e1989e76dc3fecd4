// Which windows and pages are in front, and what opens, closes and covers them.

#include <string>
#include <utility>

#include "shell/fresh_start.h"
#include "shell/shell_state.h"
#include "support/drawn.h"
#include "support/posted.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

/// Starts in a folder that lists a language, the first choice already made or not.
class OpenWindows : public ZolvTest {
protected:
    void StartWithLanguage(const char* number) {
        WriteContent("languages.lst", std::string("Language: ") + number + "\r\nKlingon\r\n");
        Start();
        ExpectMessage(testing::HasSubstr("language_Klingon.txt"));  // it is only listed
    }

    /// The names of the windows that are open.
    static std::string Open() {
        std::string open;
        for (const Window* window : AllWindows()) open += window->Visible() ? window->Name() + '|' : "";
        return open;
    }
};

TEST_F(OpenWindows, FollowTheirEntriesAndTheirCloseButtonsAndBoxes) {
    StartWithLanguage("1");
    EXPECT_EQ(Open(), "Zolv|");
    struct {
        Hook& opens;
        const char* open;
        std::vector<Hook*> closes;
    } const kCases[] = {
        {Zolv.ToolsOptions.OnClick, "Zolv|OptionsPanel|", {&OptionsPanel.CloseOptions.OnClick, &OptionsPanel.OnClose}},
        {Zolv.ToolsCustom.OnClick, "Zolv|CustomPresets|", {&CustomPresets.CloseCustom.OnClick, &CustomPresets.OnClose}},
        {CustomPresets.LoadUnitConv.OnClick, "Zolv|UnitConv|", {&UnitConv.CloseConv.OnClick, &UnitConv.OnClose}},
        {Zolv.ToolsLanguage.OnClick,
         "Zolv|LanguageSelection|",
         {&LanguageSelection.SaveLanguage.OnClick, &LanguageSelection.OnClose}},
        {Zolv.ToolsFinder.OnClick, "Zolv|Finder|", {&Finder.CloseFinder.OnClick, &Finder.OnClose}},
        {Zolv.ToolsSweep.OnClick, "Zolv|Sweep|", {&SweepPanel.CloseSweep.OnClick, &SweepPanel.OnClose}}};
    for (const auto& row : kCases) {
        for (const Hook* close : row.closes) {
            row.opens();
            EXPECT_EQ(Open(), row.open);
            (*close)();
            EXPECT_EQ(Open(), "Zolv|") << "behind " << row.open;
        }
    }
    EXPECT_TRUE(OptionsPanel.TakeToFront());  // opened, and not only shown
}

TEST_F(OpenWindows, OnAFirstRunTheMainWindowWaitsForTheLanguage) {
    StartWithLanguage("0");
    EXPECT_EQ(Open(), "LanguageSelection|");
    LanguageSelection.OnClose();
    EXPECT_EQ(Open(), "Zolv|");
    Zolv.SetVisible(false);
    Zolv.ToolsLanguage.Click();
    LanguageSelection.SaveLanguage.Click();
    EXPECT_EQ(Open(), "Zolv|");
    EXPECT_THAT(ContentOf("languages.lst"), testing::StartsWith("Language: 1\r\n"));
}

TEST_F(OpenWindows, EndWithTheMainWindow) {
    for (Hook* end : {&Zolv.FileExit.OnClick, &Zolv.OnClose}) {
        FreshStart();
        StartWithLanguage("1");
        OptionsPanel.Show();
        UnitConv.Show();
        int endings = 0;
        shellFollowUps.Ending = [&] { ++endings; };
        for (int twice = 0; twice < 2; ++twice) (*end)();
        EXPECT_EQ(Open(), "");
        EXPECT_EQ(endings, 1);
    }
}

TEST_F(StartedTest, PagesOfOneStripCoverEachOtherAndNoOthers) {
    const auto inFront = [] {
        std::string front;
        for (const Window* window : AllWindows()) {
            for (const Field* field : window->Fields()) {
                if (field->Kind() != FieldKind::Panel) continue;
                const auto& panel = static_cast<const Panel&>(*field);
                if (panel.Stack() != 0 && panel.InFront()) front += panel.Name() + '|';
            }
        }
        return front;
    };
    EXPECT_EQ(inFront(), "Page(0)|CalcSpeeds|OptionsPage(0)|");
    Set("Select_Page", "Aerodynamics");
    EXPECT_EQ(inFront(), "Page(3)|CalcSpeeds|OptionsPage(0)|");
    Set("Direction2", "on");
    EXPECT_EQ(inFront(), "Page(3)|CalcRatios|OptionsPage(0)|");
    Set("Select_Options", "Misc");
    EXPECT_EQ(inFront(), "Page(3)|CalcRatios|OptionsPage(2)|");
    Set("Direction1", "on");
    Set("Select_Page", "Gearing");
    EXPECT_EQ(inFront(), "Page(1)|CalcSpeeds|OptionsPage(2)|");
    CustomPresets.Frame_Add.BringToFront();  // lies alone
    EXPECT_EQ(inFront(), "Page(1)|CalcSpeeds|OptionsPage(2)|");
}

TEST_F(StartedTest, PagesAreTurnedOneByOneAndAround) {
    Set("RC_Fixed", "on");
    Set("RC_FixedVal", "5000");  // too early, as the page in view says
    std::string pages;
    const auto turn = [&](MenuEntry& entry) {
        entry.Click();
        pages += Shown("Select_Page") + (Shown("ShiftAdvice").empty() ? "|" : " with advice|");
    };
    for (int i = 0; i < 4; ++i) turn(Zolv.ViewNextPage);
    for (int i = 0; i < 2; ++i) turn(Zolv.ViewPreviousPage);
    EXPECT_EQ(pages, "Gearing with advice|Tyres|Aerodynamics|Info|Aerodynamics|Tyres|");
}

// While they are hidden, windows that cost time to draw wait; a window that opens shows the set-up of that moment.
TEST_F(StartedTest, StudiesAreUpToDateWhenTheirWindowsOpen) {
    Posted posted;
    Set("Finder.Straights", "name,entry speed,length\r\nHill,20,300\r\n");
    SweepPanel.Start.Click();
    while (Shown("Sweep.Table").empty()) posted.RunOne();
    const auto shown = [] { return std::pair(Shown("Finder.StraightTimes"), Drawn(SweepPanel.Plot.Drawing())); };
    const auto before = shown();
    Set("GearF", "3");
    EXPECT_EQ(shown(), before);
    Zolv.ToolsFinder.Click();
    Zolv.ToolsSweep.Click();
    const auto after = shown();
    EXPECT_NE(after.first, before.first);
    EXPECT_NE(after.second, before.second);
}

}  // namespace
}  // namespace zolv
