#include "language/field_words.h"

#include <filesystem>
#include <string>
#include <string_view>

#include "fields/all_windows.h"
#include "language/caption_table.h"
#include "support/zolv_test.h"
#include "text/words.h"

namespace zolv {
namespace {

namespace fs = std::filesystem;

class FieldWords : public StartedTest {
protected:
    FieldWords() {
        WriteContent("language_English.txt", BuiltInLanguage());
        WriteContent("language_Other.txt", BuiltInLanguage());
        LanguageSelection.LanguageList.Clear();
        for (const char* name : {"English", "Other"}) LanguageSelection.LanguageList.Add(name);
    }
    static void Load(const char* language) { LanguageSelection.LanguageList.SetText(language); }
};

TEST_F(FieldWords, AWordReachesItsPlaceAndEnglishComesBack) {
    Zolv.Select_Car.SetText("Series Mu");  // which has wings
    UnitConv.Torque.Select.SetText("kgfm");
    UnitConv.Torque.Input.Enter("12");
    Load("English");
    const std::vector<std::string> english = EverythingShown();
    const std::string frontLoad = Zolv.Aero_ForceFrontWheels.Caption();
    WriteContent("words_Other.txt",
                 "CustomPresets = A\nGearR2.ToolTip = B\nSelect_Page(1).ToolTip = C\nDegrees = D\nUndersteer = E\n"
                 "Oversteer = E\nNeutral = E\nConvertedIs = F {0}\nGoalTopSpeed = G\nFinalDriveInput = H\n");
    Load("Other");
    EXPECT_EQ(CustomPresets.Title(), "A");
    EXPECT_EQ(Zolv.Speeds.GearR.ToolTip(), "B");
    EXPECT_EQ(Zolv.Select_Page.ToolTips()[1], "C");
    EXPECT_EQ(Zolv.WingAngleRear.Caption(), "14 D");
    EXPECT_EQ(Zolv.Aero_AeroDistribution.ToolTip(), "E");
    EXPECT_EQ(UnitConv.Torque.Output.Caption(), "F 118 Nm");
    EXPECT_EQ(UnitConv.Mass.Output.Caption(), "F ? kg");
    EXPECT_EQ(Finder.Goal.Rows()[3], "G");
    EXPECT_EQ(Finder.Goal.Picked(), 1);
    EXPECT_EQ(SweepPanel.First.Input.Text(), "H");
    EXPECT_EQ(Zolv.Aero_ForceFrontWheels.Caption(), frontLoad) << "words calculate nothing";
    Load("English");
    EXPECT_EQ(EverythingShown(), english);

    // A file that cannot be read: English, and a message.
    fs::remove("words_Other.txt");
    fs::create_directory("words_Other.txt");
    Load("Other");
    ExpectMessage(testing::HasSubstr("words_Other.txt"));
    EXPECT_EQ(Zolv.WingAngleRear.Caption(), "14 degrees");
}

TEST_F(FieldWords, LongNamesInTheConverterAreThoseOfTheUnits) {
    WriteContent("language_Other.txt", Replaced(BuiltInLanguage(), "Tons (Long)", "Britische Tonnen"));
    UnitConv.Mass.Select.SetText("Tons (Long)");
    UnitConv.Mass.Input.Enter("2");
    Load("Other");
    EXPECT_EQ(UnitConv.Mass.Select.Text(), "Britische Tonnen");
    EXPECT_EQ(UnitConv.Mass.Output.Caption(), "is 2032 kg");  // 2 * 2240 lb of 0.45359237 kg
}

/// All sources of the program, one behind the other.
std::string Sources() {
    std::string text;
    for (const auto& file : fs::recursive_directory_iterator(fs::path(ZOLV_SOURCE_DIR) / "src")) {
        const fs::path& path = file.path();
        if (path.extension() == ".cpp" || (path.extension() == ".h" && path.filename() != "words.h")) {
            text += ContentOf(path.string());
        }
    }
    return text;
}

TEST_F(FieldWords, EachRowGoesToAFieldOrIsUsed) {
    const std::string sources = Sources();
    for (const WordRow& row : kWordTable) {
        const std::string name(row.name);
        EXPECT_TRUE(GoesToField(name) || sources.find('"' + name + '"') != std::string::npos) << name;
    }
}

}  // namespace
}  // namespace zolv
