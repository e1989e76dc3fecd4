#include "search/straights.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace zolv {
namespace {

TEST(Straights, ReadsAnyOfTheUnitsOfItsHeader) {
    const auto [file, error] = ReadStraights(
        "\xEF\xBB\xBFName, Entry speed [km/h] ,Length (km)\r\n"
        "Back straight,90,0.6\r\n"
        "\r\n"
        "\"Hill, \"\"the\"\" long one\" , 36.0 ,1.25\r\n"
        ",0,.402");
    ASSERT_FALSE(error);
    EXPECT_EQ(file.SpeedUnit, "km/h");
    EXPECT_EQ(file.LengthUnit, "km");
    ASSERT_EQ(file.Straights.size(), 3U);
    EXPECT_EQ(file.Straights[0].Name, "Back straight");
    EXPECT_NEAR(file.Straights[0].EntrySpeed, 25, 1e-12);
    EXPECT_EQ(file.Straights[0].Length, 600);
    EXPECT_EQ(file.Straights[1].Name, "Hill, \"the\" long one");
    EXPECT_NEAR(file.Straights[1].EntrySpeed, 10, 1e-12);
    EXPECT_EQ(file.Straights[2], (Straight{"", 0, 402}));
}

TEST(Straights, SaysWhichLineIsWrongAndWhy) {
    const std::string head = "name,entry speed [m/s],length [m]\n";
    std::string many = head;
    for (std::size_t i = 0; i <= kMostStraights; ++i) many += "s,10,100\n";
    using enum StraightsFault;
    const struct {
        std::string text;
        StraightsError error;
    } cases[] = {
        {"", {NoHeader, 1, ""}},
        {"a,10,100\n", {NoHeader, 1, "a,10,100"}},
        {"name,entry speed [furlongs],length\n", {UnknownUnit, 1, "furlongs"}},
        {"name,entry speed,length [m/s]\n", {UnknownUnit, 1, "m/s"}},
        {head, {None, 1, ""}},
        {head + "a,10,100\nb,10\n", {WrongColumns, 3, "b,10"}},
        {head + "a,10,1,5\n", {WrongColumns, 2, "a,10,1,5"}},
        {head + "\n\"a,10,100\n", {UnclosedQuotes, 3, "\"a,10,100"}},
        {head + "a,ten,100\n", {NotANumber, 2, "ten"}},
        {head + "a,10,100 m\n", {NotANumber, 2, "100 m"}},
        {head + "a,10,nan\n", {NotANumber, 2, "nan"}},
        {head + "a,10,\n", {NotANumber, 2, ""}},
        {head + "a,-1,100\n", {EntryOutOfRange, 2, "-1"}},
        {head + "a,201,100\n", {EntryOutOfRange, 2, "201"}},
        {head + "a,10,0\n", {LengthOutOfRange, 2, "0"}},
        {head + "a,10,1e9\n", {LengthOutOfRange, 2, "1e9"}},
        {many, {TooMany, 1002, "s"}},
    };
    for (const auto& [text, error] : cases) {
        const StraightsRead read = ReadStraights(text);
        ASSERT_TRUE(read.Error) << text;
        EXPECT_EQ(read.Error->Fault, error.Fault) << text;
        EXPECT_EQ(read.Error->Line, error.Line) << text;
        EXPECT_EQ(read.Error->Text, error.Text) << text;
        EXPECT_EQ(read.File, StraightsFile{}) << text;
    }
}

TEST(Straights, WritesWhatReadsTheSameAgain) {
    const StraightsFile file{"mph", "ft", {{"Pits, \"left\" ", 70 * 0.44704, 1320 * 0.3048}, {"", 0, 0.5 * 0.3048}}};
    const std::string text = StraightsText(file);
    EXPECT_EQ(text, "name,entry speed [mph],length [ft]\n\"Pits, \"\"left\"\" \",70,1320\n,0,0.5\n");
    const StraightsRead again = ReadStraights(text);
    ASSERT_FALSE(again.Error);
    EXPECT_EQ(StraightsText(again.File), text);
    EXPECT_NEAR(again.File.Straights[0].EntrySpeed, 31.2928, 1e-9);
}

/// The examples that come with the program read, and are written as they stand.
TEST(Straights, ShippedExamplesAreWhole) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ZOLV_SOURCE_DIR "/examples")) {
        if (entry.path().extension() != ".straights") continue;
        ++files;
        std::stringstream text;
        text << std::ifstream(entry.path()).rdbuf();
        const StraightsRead read = ReadStraights(text.str());
        EXPECT_FALSE(read.Error) << entry.path();
        EXPECT_EQ(read.File.Straights.size(), 5U) << entry.path();
        EXPECT_EQ(StraightsText(read.File), text.str()) << entry.path();
    }
    EXPECT_EQ(files, 2);
}

}  // namespace
}  // namespace zolv
