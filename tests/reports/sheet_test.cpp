#include <filesystem>
#include <map>
#include <sstream>
#include <vector>

#include "desk/held.h"
#include "desk/present.h"
#include "drawing/document.h"
#include "reports/sheet_document.h"
#include "reports/sheet_file.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

using testing::HasSubstr;
using testing::Not;

class Sheet : public StartedTest {};

/// The times are those of a calculation apart from the program (tools/accuracy): of the table, and interpolated.
TEST_F(Sheet, HasAFigureALineAndTheRowsBesideIt) {
    Set("Select_Tyres", "Road Super");
    ASSERT_EQ(WriteSheet(InFolder("sheet.csv")), "");
    const std::string csv = ContentOf(InFolder("sheet.csv"));
    EXPECT_THAT(csv, HasSubstr("\r\nAcceleration,0-15 m/s,4.15,s\r\nAcceleration,0-15 m/s (interpolated),4.125,s\r\n"));
    EXPECT_THAT(csv, HasSubstr("\r\nAcceleration,0-1000m (interpolated),31.261,s\r\n"));
    EXPECT_THAT(csv, HasSubstr("\r\nLog of the Run,"));
    EXPECT_THAT(csv, HasSubstr("\r\nInfo,Mass,1027,kg\r\n"));
    // The weight of 1027 kg on both axles, before it moves: 1027 * 9.80665 * 0.561 and 0.439.
    EXPECT_THAT(ContentOf(InFolder("sheet-run.csv")), HasSubstr(",5650,4421\r\n0.05,"));
}

TEST_F(Sheet, HasEachPlotUnderItsTitle) {
    const Document sheet = SetUpSheet();
    const DocumentSection& plots = sheet.Sections.back();
    EXPECT_THAT(plots.PictureTitles, testing::Contains(Zolv.Select_RunView.Rows()[1]));
    EXPECT_THAT(plots.PictureTitles, testing::SizeIs(6));
    ASSERT_EQ(plots.Pictures.size(), 6U);
    for (const Canvas& picture : plots.Pictures) EXPECT_GT(picture.Operations().size(), 10U);
}

TEST_F(Sheet, GoesByTheEndingOfItsName) {
    EXPECT_EQ(WriteSheet(InFolder("sheet.HTML")), "");
    EXPECT_THAT(ContentOf(InFolder("sheet.HTML")), HasSubstr("<!DOCTYPE html>"));
    EXPECT_EQ(WriteSheet(InFolder("sheet.txt")), "");
    EXPECT_THAT(ContentOf(InFolder("sheet.txt")), HasSubstr("Tarmaq Zolv: Pell S\n==================="));
    EXPECT_THAT(WriteSheet(InFolder("sheet.doc")), HasSubstr("must end in"));
    EXPECT_FALSE(std::filesystem::exists(InFolder("sheet.doc")));
}

TEST_F(Sheet, ThatCannotBeWrittenSaysWhyAndLeavesNothing) {
    Answer(InFolder("missing/sheet.html"));
    Zolv.FileSheet.Click();
    ExpectMessage(HasSubstr("sheet.html: "));
#ifndef _WIN32
    WriteContent(InFolder("sheet.csv"), "old");
    const FullDisk full(100);
    EXPECT_THAT(WriteSheet(InFolder("sheet.csv")), HasSubstr("sheet-run.csv"));
    EXPECT_EQ(ContentOf(InFolder("sheet.csv")), "old");
    EXPECT_FALSE(std::filesystem::exists(InFolder("sheet-run.csv")));
#endif
}

/// Section and name of each figure, with one of its columns: 2 the number, 4 that of the held set-up.
std::map<std::string, std::string> ColumnOf(std::size_t column) {
    std::map<std::string, std::string> figures;
    std::istringstream lines(Replaced(CsvOf(SetUpSheet(), {"s", "f", "v", "u", "h"}), "\r", ""));
    for (std::string line; std::getline(lines, line);) {
        std::vector<std::string> cells{""};
        bool quoted = false;
        for (const char c : line) {
            if (c == '"') quoted = !quoted;
            if (c == ',' && !quoted) {
                cells.emplace_back();
            } else if (c != '"') {
                cells.back() += c;
            }
        }
        cells.resize(5);
        figures[cells[0] + '/' + cells[1]] = cells[column];
    }
    return figures;
}

// What a set-up reads while it is present, it reads as the held one: another car of another number of gears lies there.
TEST_F(Sheet, HoldsBesideEachFigureWhatStoodThere) {
    for (const auto& [held, present] : {std::pair("Series Mu", "Pell S"), {"Pell S", "Series Mu"}}) {
        SCOPED_TRACE(held);
        ReleaseHeld();
        Set("Select_Car", held);
        Set("Select_Tyres", "Slick R2");
        Set("Select_PressureR", "210");
        ASSERT_TRUE(LayOut(PresentSetUp()));  // the tyres at the loads of the set-up, not of the last run's end
        const auto stood = ColumnOf(2);
        HoldPresent();
        Set("Select_Car", present);
        Set("Select_Tyres", "Road Normal");
        const auto beside = ColumnOf(4);
        for (const auto& [name, number] : stood) {
            const bool named = name == "Info/Select your car" || name == "s/f";
            if (named || name.starts_with("Log of the Run") || !beside.contains(name)) continue;
            EXPECT_EQ(beside.at(name), number) << name;
        }
        EXPECT_THAT(beside.at("Info/Select your car"), testing::StartsWith(held));
        EXPECT_TRUE(beside.contains("Gearing/6th, Ratio"));
        EXPECT_TRUE(beside.contains("Tyres/Contact patch width, Rear"));
    }
}

TEST_F(Sheet, HasNoReverseOfAHeldCarWithoutOne) {
    UseCustomCar("Series Mu", {{CarField::Reverse, 1}});
    HoldPresent();
    Set("Select_Car", "Pell S");
    EXPECT_EQ(ColumnOf(2).at("Gearing/Reverse, Ratio"), "7.5");
    EXPECT_EQ(ColumnOf(4).at("Gearing/Reverse, Ratio"), "");
    EXPECT_EQ(Zolv.Ratios.SpeedR.Held(), "");
}

TEST_F(Sheet, LeavesOutWhatDoesNotFollowFromWrongGears) {
    Set("Gear2", "4");
    const std::string text = TextOf(SetUpSheet());
    EXPECT_THAT(text, HasSubstr("The ratio for 2nd cannot be shorter than the ratio for 1st"));
    EXPECT_THAT(text, Not(HasSubstr("0-15 m/s")));
    EXPECT_EQ(WriteSheet(InFolder("sheet.csv")), "");
    EXPECT_FALSE(std::filesystem::exists(InFolder("sheet-run.csv")));
}

}  // namespace
}  // namespace zolv
