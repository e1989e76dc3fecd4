// The finder's window through its fields: what it refuses, files of straights, and searches beside the fields.

#include "studies/finder_page.h"

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "desk/held.h"
#include "desk/history.h"
#include "shell/start_up.h"
#include "support/posted.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

using Inputs = std::vector<std::pair<const char*, const char*>>;

class FinderPage : public StartedTest {
protected:
    ~FinderPage() override { finderWork.Abandon(); }

    FinderPage() {
        Set("Select_Car", "Wisp 4");  // 58 m/s at the most, no wings
        SetAll({{"Finder.FreeFinalDrive", "on"}, {"Finder.LowFinalDrive", "3.9"}, {"Finder.HighFinalDrive", "4.1"}});
    }
    static void SetAll(const Inputs& inputs) {
        for (const auto& [field, value] : inputs) Set(field, value);
    }
};

TEST_F(FinderPage, TellsWhatCannotBeFound) {
    const struct {
        Inputs inputs;
        const char* message;
    } kCases[] = {
        {{{"Finder.FreeFinalDrive", "off"}}, "Nothing may be changed"},
        {{{"Finder.FreeFinalDrive", "off"}, {"Finder.FreeRearWing", "on"}}, "Nothing may be changed"},
        {{{"Finder.HighFinalDrive", "3.8"}}, "The bounds of Final Drive leave nothing: no value that"},
        {{{"Finder.FreeRatios", "on"}, {"Finder.LowRatio4", "2"}, {"Finder.HighRatio3", "1,9"}},
         "The bounds of Ratio 3 leave nothing: no value lies between them in the order"},
        {{{"Finder.Distance", "0"}}, "The distance must be above 0 m."},
        {{{"Finder.Distance", "90000"}}, "No gearbox covers 90000 m within 90 s; the most is "},
        {{{"Finder.Goal", "Quickest to a Speed"}, {"Finder.ToSpeed", ""}}, "The speed to reach must be above 0."},
        {{{"Finder.Goal", "Quickest to a Speed"}, {"Finder.ToSpeed", "90"}},
         "No gearbox reaches 90 m/s; the most is 5"},
        {{{"Finder.Goal", "Quickest between Speeds"}, {"Finder.FromSpeed", "20"}, {"Finder.ToSpeed", "20"}},
         "The speed to start from must be 0 or more, and below the speed to reach."},
        {{{"Finder.Goal", "Quickest along Straights"}}, "There are no straights"},
        {{{"Finder.WishTopSpeed", "on"}, {"Finder.TopSpeed", "70"}}, "the wished top speed of 70 m/s; the most is 5"},
        {{{"Finder.WishDownforce", "on"}}, "No angle of the wings"},
        {{{"Finder.WishTopSpeed", "on"}, {"Finder.TopSpeed", "fast"}}, "\"fast\" is not a number."},
        {{{"Finder.WishTopSpeed", "on"}, {"Finder.TopSpeed", ""}}, "The speed of a wish must be above 0."},
        {{{"Finder.WishDownforce", "on"}, {"Finder.DownforceSpeed", "-3"}}, "The speed of a wish must be above 0."},
        {{{"Finder.LowFinalDrive", "3,9x"}}, "Final Drive: \"3.9x\" is not a number."},
    };
    const std::string gearbox = Shown({"Gear1", "Gear4", "GearF"});
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.message);
        Finder.Reset();
        LoadFinder();
        SetAll({{"Finder.FreeFinalDrive", "on"}, {"Finder.LowFinalDrive", "3.9"}, {"Finder.HighFinalDrive", "4.1"}});
        SetAll(row.inputs);
        Finder.Start.Click();
        ExpectMessage(HasSubstr(row.message));
        Finder.TakeOver.Click();
        ExpectMessage("There is nothing to be taken over yet.");
        EXPECT_EQ(Finder.Table.Text(), "");
    }
    EXPECT_EQ(Shown({"Gear1", "Gear4", "GearF"}), gearbox);
}

TEST_F(FinderPage, ShowsTheBoxesOfTheGoalAndWarnsOfFreeWings) {
    const auto visible = [](const std::string& goal) {
        Set("Finder.Goal", goal);
        std::string shown;
        for (const Field* field : std::initializer_list<const Field*>{&Finder.FromSpeed, &Finder.ToSpeed,
                                                                      &Finder.Distance, &Finder.StraightsFrame}) {
            if (field->Visible()) shown += field->Name() + '|';
        }
        return shown;
    };
    EXPECT_EQ(visible("Quickest between Speeds"), "FromSpeed|ToSpeed|");
    EXPECT_EQ(visible("Quickest to a Speed"), "ToSpeed|");
    EXPECT_EQ(visible("Highest Top Speed"), "");
    EXPECT_EQ(visible("Quickest along Straights"), "StraightsFrame|");
    EXPECT_EQ(visible("Quickest over a Distance"), "Distance|");

    // The Series Lo has both wings, the Pell S none.
    for (const auto& [car, has] : {std::pair("Series Lo", true), {"Pell S", false}}) {
        Set("Select_Car", car);
        for (const Field* field :
             std::initializer_list<const Field*>{&Finder.FreeFrontWing, &Finder.LowFrontWing, &Finder.HighFrontWing,
                                                 &Finder.FreeRearWing, &Finder.LowRearWing, &Finder.HighRearWing}) {
            EXPECT_EQ(field->Visible(), has) << car << ' ' << field->Name();
        }
    }

    std::string warned;
    const auto set = [&](const char* field, const char* value) {
        Set(field, value);
        warned += Shown("Finder.Note").empty() ? '-' : 'W';
    };
    set("Finder.FreeFrontWing", "on");  // no wings yet
    Set("Select_Car", "Series Mu");
    set("Finder.FreeRearWing", "on");
    set("Finder.FreeFrontWing", "off");
    set("Finder.FreeRearWing", "off");
    set("Finder.FreeFrontWing", "on");
    set("Finder.WishDownforce", "on");
    set("Finder.WishDownforce", "off");
    EXPECT_EQ(warned, "-WW-W-W");
}

/// The cells of a column, one after the other.
std::string ColumnOf(const std::string& table, int column) {
    std::string cells;
    std::istringstream lines(table);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream row(line);
        std::string cell;
        for (int i = 0; i <= column; ++i) std::getline(row, cell, '\t');
        cells += cell + '|';
    }
    return cells;
}

TEST_F(FinderPage, TimesOfTheHeldSetUpStandBesideThePresentOnes) {
    Finder.SetVisible(true);
    Set("Finder.Straights", "name,entry speed,length\nHill,20,300\n");
    const auto cells = [](int column) { return ColumnOf(Finder.StraightTimes.Text(), column); };
    const std::string time = cells(3);
    HoldPresent();
    Set("Gear2", "2");
    EXPECT_NE(cells(3), time);
    EXPECT_EQ(Replaced(cells(5), "Time, held", "Time"), time);
    ReleaseHeld();
    EXPECT_THAT(Finder.StraightTimes.Text(), testing::Not(HasSubstr("held")));
}

TEST_F(FinderPage, TheOldOneIsHeldBesideTheFoundOne) {
    SetAll({{"Finder.FreeFinalDrive", "on"}, {"Finder.LowFinalDrive", "3.5"}, {"Finder.HighFinalDrive", "3.6"}});
    Finder.Start.Click();
    Set("GearF", "3.3");
    NoteInput(Zolv.Ratios.FinalDrive);
    Finder.HoldOld.Click();
    Finder.TakeOver.Click();
    EXPECT_EQ(desk.Held->SetUp.PresentFinalDrive(), 4);
    NoteInput(Finder.TakeOver);
    EXPECT_EQ(Zolv.EditUndo.Caption(), "&Undo found set-up");
    Undo();
    EXPECT_EQ(Shown("GearF"), "3.3");
}

TEST_F(FinderPage, AFileThatIsNoneChangesNothing) {
    WriteContent("good.straights", "name,entry speed [km/h],length [m]\r\n\"Hill, upper\",72,300\r\n");
    Answer("good.straights");
    Finder.StraightsOpen.Click();
    const std::string good = Finder.Straights.Text();
    EXPECT_THAT(Finder.StraightTimes.Text(), HasSubstr("Hill, upper\t20 m/s\t300 m\t"));

    std::string many = "name,entry speed,length\n";
    for (int i = 0; i < 1001; ++i) many += "s,10,100\n";
    const std::pair<std::string, const char*> kCases[] = {
        {"name,entry speed,length\nHill,20,300\nDip,2o,300\n", "Line 3: \"2o\" is not a number."},
        {"name,entry speed [furlongs],length\n", "Line 1: The unit \"furlongs\" is unknown."},
        {"Hill,20,300\n", "Line 1: The first line must be \"name,entry speed,length\"."},
        {"name,entry speed,length\nHill,201,300\n", "Line 2: The entry speed 201 is not from 0 to 200 m/s."},
        {"name,entry speed,length\nHill,20\n", "Line 2: A line must have a name, an entry speed and a length."},
        {many, "Line 1002: There are more than 1000 straights."},
    };
    for (const auto& [text, reason] : kCases) {
        WriteContent("bad.straights", text);
        Answer("bad.straights");
        Finder.StraightsOpen.Click();
        ExpectMessage(AllOf(HasSubstr("bad.straights"), HasSubstr(reason)));
        EXPECT_EQ(Finder.Straights.Text(), good);
    }
    Set("Finder.Straights", "");
    EXPECT_EQ(Finder.StraightTimes.Text(), "");
    Set("Finder.Straights", "name,entry speed,length\nRound the world,20,9000\n");  // not in the run's 90 s
    EXPECT_THAT(Finder.StraightTimes.Text(), HasSubstr("Round the world\t20 m/s\t9000 m\tN/A\tN/A"));
    EXPECT_THAT(Finder.StraightTimes.Text(), HasSubstr("All straights\t\t\tN/A"));
    Set("Finder.Straights", good);
    EXPECT_THAT(Finder.StraightTimes.Text(), HasSubstr("Hill, upper"));

    WriteContent("long.straights", good + std::string(std::size_t{1} << 20U, '\n'));
    Answer("long.straights");
    Finder.StraightsOpen.Click();
    ExpectMessage(HasSubstr("long.straights"));

    Answer("nowhere.straights");
    Finder.StraightsOpen.Click();
    ExpectMessage(HasSubstr("nowhere.straights"));
    Finder.StraightsOpen.Click();  // and cancelled
    Finder.StraightsSave.Click();

    Answer("saved.straights");
    Finder.StraightsSave.Click();
    EXPECT_EQ(ContentOf("saved.straights"), good);
    EXPECT_EQ(Requests().back().proposedName, "good.straights");
}

TEST_F(FinderPage, ASearchGoesOnForTheSetUpItWasStartedWith) {
    Posted posted;
    Finder.Start.Click();
    EXPECT_TRUE(finderWork.Running());
    EXPECT_EQ(Finder.Status.Caption(), "Searching for Wisp 4…");
    Set("Select_Car", "Series Mu");
    while (finderWork.Running()) posted.RunOne();
    EXPECT_THAT(Finder.Status.Caption(), AllOf(HasSubstr("Wisp 4"), HasSubstr("not for the one on the pages")));
    EXPECT_EQ(Finder.Found.Caption().substr(0, 3), "25.");
    Finder.TakeOver.Click();
    EXPECT_EQ(Shown("Select_Car"), "Wisp 4");
    EXPECT_EQ(Shown("GearF"), "3.93");  // the best of all 201 steps, by a separate calculation
    EXPECT_THAT(Finder.Status.Caption(), testing::Not(HasSubstr("on the pages")));
}

TEST_F(FinderPage, ASearchCanBeStoppedAndTheProgramClosed) {
    Posted posted;
    std::string track = "name,entry speed,length\n";
    for (int i = 0; i < 1000; ++i) track += "s," + std::to_string(i % 50) + "." + std::to_string(i) + ",9000\n";
    Set("Finder.Straights", track);
    SetAll({{"Finder.Goal", "Quickest along Straights"}, {"Finder.LowFinalDrive", "2"}, {"Finder.FreeRatios", "on"}});
    Finder.Start.Click();
    Finder.Stop.Click();
    while (finderWork.Running()) posted.RunOne();
    EXPECT_THAT(Finder.Status.Caption(), HasSubstr("Stopped"));

    Finder.Start.Click();
    ShutDown();
    EXPECT_FALSE(finderWork.Running());
    posted.RunRest();
    EXPECT_EQ(Finder.Table.Text(), "");
}

}  // namespace
}  // namespace zolv
