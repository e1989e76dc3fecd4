#include "language/language_file.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "fields/all_windows.h"
#include "language/caption_table.h"
#include "language/language_state.h"
#include "platform/text_files.h"
#include "support/zolv_test.h"
#include "tyres/tyre_state.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

/// A language whose line n reads "Ln".
std::string MadeUp(int lines = 339, const char* lineEnd = "\r\n") {
    std::string text = "L0";
    for (int n = 1; n < lines; ++n) text += lineEnd + ("L" + std::to_string(n));
    return text;
}

std::string PathOf(const std::string& language) { return platform.AppPath + "language_" + language + ".txt"; }

class LanguageFile : public StartedTest {
protected:
    void Load(const std::string& language) {
        LanguageSelection.LanguageList.Clear();
        LanguageSelection.LanguageList.Add(language);
        LanguageSelection.LanguageList.Pick(0);
    }
    void LoadText(const std::string& text) {
        WriteContent(PathOf("Test"), text);
        Load("Test");
    }
};

/// What a target holds now.
std::string TextOf(const Target& target) {
    const auto row = static_cast<std::size_t>(target.row);
    switch (target.kind) {
        case Target::Kind::None: return {};
        case Target::Kind::Caption: return FindFields(target.field).front()->Caption();
        case Target::Kind::ToolTip: return FindFields(target.field).front()->ToolTip();
        case Target::Kind::Tab: return dynamic_cast<TabStrip&>(*FindFields(target.field).front()).Rows()[row];
        case Target::Kind::Text: return texts.*target.text;
        case Target::Kind::TyreTypeName: return Zolv.Select_Tyres2.Rows()[row];
        case Target::Kind::SlickNames: return Zolv.Select_Tyres.Rows()[row].substr(0, 3);  // less " R1"
        case Target::Kind::GraphName: return Zolv.Select_Graphs.Rows()[row];
        case Target::Kind::GearName: return texts.GearNames[row];
        case Target::Kind::UnitName: return (units.*target.quantity).UnitNames[row];
        case Target::Kind::AboutParagraph: return texts.AboutParagraphs[row];
    }
    return {};
}

TEST_F(LanguageFile, EachLineReachesAllItsTargetsAndWhatIsBuiltFromIt) {
    LoadText(MadeUp());
    for (const CaptionLine& line : CaptionTable()) {
        for (const Target& target : line.targets) {
            // The list of speeds, rebuilt later, has put the unit's short name there.
            if (target.kind == Target::Kind::None || target.field == "SpeedPlot_XUnits") continue;
            EXPECT_EQ(TextOf(target), std::string(target.before) + "L" + std::to_string(line.number)) << target.field;
        }
    }

    // Lines with an addition, and texts that are built from lines.
    EXPECT_EQ(Zolv.AboutZolv.Caption(), "L46\r\nL47\r\n\r\nL48\r\n\r\nL49\r\n\r\nL50\r\n\r\nL51");
    EXPECT_EQ(CustomPresets.Label_Perc[2].Caption(), "% L189");
    EXPECT_EQ(OptionsPanel.SpeedPlotX.Units.Caption(), " m/s");
    EXPECT_THAT(Zolv.Select_Tyres.Rows(),
                ElementsAre("L64", "L65", "L66", "L67", "L68 R1", "L68 R2", "L68 R3", "L68 R4"));
    EXPECT_EQ(Zolv.Info_DT.Caption(), "L39");
    EXPECT_EQ(Zolv.Info_WD.Caption(), "56.1% L31 /\r\n43.9% L32");
    EXPECT_THAT(Zolv.Ratios.RPM[1].Caption(), EndsWith(" L89"));
    EXPECT_THAT(Zolv.AccelerationData.Text(), StartsWith("L96\tL77"));
}

TEST_F(LanguageFile, EachUnitListHasItsOwnLines) {
    LoadText(MadeUp());
    constexpr int kFirst[] = {251, 256, 261, 266, 271, 277, 282, 284, 289, 293, 297, 304, 310};
    for (std::size_t quantity = 0; quantity < 12; ++quantity) {
        std::vector<std::string> rows;
        for (int n = kFirst[quantity]; n < kFirst[quantity + 1]; ++n) rows.push_back("L" + std::to_string(n));
        EXPECT_EQ(OptionsPanel.Units[quantity].Select.Rows(), rows);
        EXPECT_EQ(OptionsPanel.Units[quantity].Select.Picked(), 0);
    }
}

TEST_F(LanguageFile, ListsKeepTheirRows) {
    Zolv.Select_Tyres.Pick(6);
    Zolv.Select_Graphs.Pick(1);
    OptionsPanel.Units[0].Select.Pick(2);
    OptionsPanel.Units[11].Select.Pick(5);
    CustomPresets.New.Drivetrain.Pick(2);
    const std::string speed = Zolv.Speeds.Input[3].Text();
    LoadText(MadeUp());
    EXPECT_EQ(Shown({"Select_Tyres", "Select_Tyres2", "Select_Graphs", "NewDrivetrain"}), "L68 R3|L68 R3|L71|L41|");
    EXPECT_EQ(tyres.TyreMu, 1.55F);
    EXPECT_TRUE(Zolv.SpeedTimeGraph.Visible());
    EXPECT_EQ(OptionsPanel.Units[0].Select.Text(), "L253");
    EXPECT_EQ(units.Speed.Unit, 2);
    EXPECT_EQ(Zolv.Speeds.Input[3].Text(), speed);
    EXPECT_EQ(OptionsPanel.SpeedPlotX.Units.Caption(), " mph");
    EXPECT_EQ(OptionsPanel.Units[11].Select.Text(), "L309");
    EXPECT_EQ(units.T2W.Unit, 5);
    EXPECT_THAT(CustomPresets.Edit.Drivetrain.Rows(), ElementsAre("L39", "L40", "L41"));
    EXPECT_EQ(CustomPresets.Edit.Drivetrain.Picked(), -1);
}

TEST_F(LanguageFile, FollowUpComesOnceWithAllLinesInPlace) {
    std::vector<std::string> seen;
    languageFollowUps.LanguageChanged = [&] { seen.push_back(OptionsPanel.OptionsSave.Caption()); };
    Zolv.Select_Graphs.Clear();  // a list without a current row comes back on the first
    LoadText(MadeUp());
    EXPECT_THAT(seen, ElementsAre("L338"));
    EXPECT_EQ(Zolv.Select_Graphs.Picked(), 0);
}

TEST_F(LanguageFile, WordsAreTakenAsTheyStand) {
    std::string text = "\xEF\xBB\xBF" + Replaced(MadeUp(), "\nL3\r", "\n  \xC3\x96&ffnen &&& & \t\r");
    text = Replaced(text, "\nL8\r", "\n\r");
    text.erase(text.rfind("L338"));  // 338 lines, and the last line end makes an empty one
    LoadText(text);
    EXPECT_EQ(LanguageSelection.LanguageNow.Caption(), "L0");
    EXPECT_EQ(Zolv.FileOpen.Caption(), "  \xC3\x96&ffnen &&& & \t");
    EXPECT_EQ(Zolv.FileSave.Caption(), "");
    EXPECT_EQ(OptionsPanel.OptionsSave.Caption(), "");
}

constexpr const char* kNotFound = "The language file cannot be found: ";
constexpr const char* kLineCount = "Language file does not have the correct number of lines. Loading failed.";

TEST_F(LanguageFile, ThatIsNoneIsRefusedAndChangesNothing) {
    fs::create_directory(PathOf("folder"));
    fs::create_directory(platform.AppPath + "language_a");
    WriteContent(PathOf("a/b"), MadeUp());  // in another folder
    WriteContent(PathOf("empty"), "");
    WriteContent(PathOf("short"), MadeUp(338));
    WriteContent(PathOf("long"), MadeUp() + "\r\n");
    WriteContent(PathOf("line feeds"), MadeUp(339, "\n"));
    WriteContent(PathOf("one line feed"), Replaced(MadeUp(), "L7\r\n", "L7\n"));
    WriteContent(PathOf("huge"), MadeUp() + std::string(1 << 20, 'x'));
    for (const char* name : {"missing", "empty", "folder", "a/b"}) {
        Load(name);
        ExpectMessage(kNotFound + PathOf(name));
    }
    for (const auto& [name, found] :
         {std::pair("short", "It has 338 in place of 339."),
          std::pair("long", "It has 340 in place of 339, the last one empty: behind the last line stands no line end."),
          std::pair("line feeds", "Its lines end in LF alone; they must end in CR LF."),
          std::pair("one line feed", "It has 338 in place of 339, as some end in LF alone and not in CR LF.")}) {
        Load(name);
        ExpectMessage(std::string(kLineCount) + ' ' + found);
    }
    Load("huge");
    ExpectMessage(std::string(kLineCount) + " Cannot read " + PathOf("huge") + ": Longer than 65536 bytes");
    EXPECT_EQ(LanguageSelection.LanguageNow.Caption(), "English");
    EXPECT_EQ(Zolv.Select_Tyres.Rows()[0], "Road Super");
    EXPECT_EQ(texts.TextOptionsMissing, "Error: Options.ini does not exist.");
}

TEST_F(LanguageFile, BuiltInLanguageIsWrittenWholeAndLoadsAgain) {
    EXPECT_THAT(WriteBuiltInLanguage("no such folder/English.txt"), HasSubstr("No such file"));
    ASSERT_EQ(WriteBuiltInLanguage(PathOf("English")), "");
    Load("English");
    const std::vector<std::string> english = EverythingShown();
    LoadText(MadeUp());
    EXPECT_NE(EverythingShown(), english);
    Load("English");
    EXPECT_EQ(EverythingShown(), english);
}

}  // namespace
}  // namespace zolv
