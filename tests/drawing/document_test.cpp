#include "drawing/document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <regex>
#include <set>

namespace zolv {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Cells with all that a format has to take care of.
Document HandMade() {
    Canvas plot(100, 50);
    plot.SetAxes({.scale = 1, .end = 100}, {.origin = 50, .scale = -1, .start = 50});
    return {.Title = "A & B",
            .Subtitle = "<file>.zolv",
            .LanguageCode = "en",
            .Sections = {{.Title = "Car", .Figures = {{"Mass", "1027", "kg"}, {"Name", "\"Pell\", S"}}},
                         {.Title = "Gears",
                          .Table = {{"Gear", "Ratio", "After"}, {"1st", "3.5", "4800 rpm"}, {"2nd", "2.4", ""}},
                          .Beside = true},
                         {.Title = "Plots", .PictureTitles = {"Forces"}, .Pictures = {plot}, .OnNewPage = true}}};
}

/// The cells of a CSV text, read back by the rules of RFC 4180.
std::vector<std::vector<std::string>> ReadCsv(const std::string& csv) {
    std::vector<std::vector<std::string>> lines{{""}};
    bool quoted = false;
    for (std::size_t i = 0; i < csv.size(); ++i) {
        std::string& cell = lines.back().back();
        if (quoted && csv[i] == '"' && csv.substr(i, 2) == "\"\"") {
            cell += csv[++i];
        } else if (csv[i] == '"') {
            quoted = !quoted;
        } else if (!quoted && csv[i] == ',') {
            lines.back().emplace_back();
        } else if (!quoted && csv.substr(i, 2) == "\r\n") {
            lines.push_back({""});
            ++i;
        } else {
            cell += csv[i];
        }
    }
    lines.pop_back();
    return lines;
}

TEST(Document, ReadsBackFromCsvFigureByFigure) {
    using Lines = std::vector<std::vector<std::string>>;
    const std::vector<std::string> titles{"Section", "Figure", "Value", "Unit", "Held"};
    EXPECT_EQ(ReadCsv(CsvOf(HandMade(), titles)), (Lines{{"Section", "Figure", "Value", "Unit"},
                                                         {"Car", "Mass", "1027", "kg"},
                                                         {"Car", "Name", "\"Pell\", S", ""},
                                                         {"Gears", "1st, Ratio", "3.5", ""},
                                                         {"Gears", "1st, After", "4800", "rpm"},
                                                         {"Gears", "2nd, Ratio", "2.4", ""}}));
    Document held = HandMade();
    held.Sections[0].Figures[0].Held = "900 kg";
    held.Sections[0].Figures.push_back({.Name = "0-60", .Number = "N/A", .Held = "6.5s"});
    held.Sections[0].Figures.push_back({.Name = "Power", .Number = "181 kW @ 6021 rpm", .Held = "90 kW @ 5000 rpm"});
    held.Sections[0].Figures.push_back({.Name = "Weight", .Number = "54.3% Front / 45.7% Rear"});
    held.Sections[0].Figures.push_back({.Name = "Lift/Drag", .Number = "3.49 : 1"});
    held.Sections[1].Held = {{}, {"held", "3.6", "4900 rpm"}};
    EXPECT_EQ(ReadCsv(CsvOf(held, titles)), (Lines{titles,
                                                   {"Car", "Mass", "1027", "kg", "900"},
                                                   {"Car", "Name", "\"Pell\", S", "", ""},
                                                   {"Car", "0-60", "N/A", "s", "6.5"},
                                                   {"Car", "Power", "181", "kW", "90"},
                                                   {"Car", "Power, 2", "6021", "rpm", "5000"},
                                                   {"Car", "Weight", "54.3", "% Front", ""},
                                                   {"Car", "Weight, 2", "45.7", "% Rear", ""},
                                                   {"Car", "Lift/Drag", "3.49 : 1", "", ""},
                                                   {"Gears", "1st, Ratio", "3.5", "", "3.6"},
                                                   {"Gears", "1st, After", "4800", "rpm", "4900"},
                                                   {"Gears", "2nd, Ratio", "2.4", "", ""}}));
}

TEST(Document, IsTextInColumns) {
    EXPECT_EQ(TextOf(HandMade()),
              "A & B\n=====\n<file>.zolv\n\nCar\n---\n  Mass   1027 kg\n  Name   \"Pell\", S\n\nGears\n-----\n"
              "  Gear   Ratio      After\n  1st      3.5   4800 rpm\n  2nd      2.4\n");
}

TEST(Document, HasWhatIsHeldBesideAndBelow) {
    Document held = HandMade();
    held.HeldTitle = "Held";
    held.Sections[0].Figures[0].Held = "900 kg";
    held.Sections[1].Held = {{}, {"Held", "3.6", "4900 rpm"}};
    EXPECT_THAT(TextOf(held), HasSubstr("                     Held\n  Mass   1027 kg     900 kg\n"));
    EXPECT_THAT(TextOf(held), HasSubstr("  1st      3.5   4800 rpm\n  Held     3.6   4900 rpm\n  2nd      2.4\n"));
    EXPECT_THAT(HtmlOf(held), HasSubstr("<th>Held</th></tr>\n<tr><td>Mass</td>"));
    EXPECT_THAT(HtmlOf(held), HasSubstr("<td class=\"short\">kg</td><td class=\"short\">900 kg</td></tr>"));
    EXPECT_THAT(HtmlOf(held), HasSubstr("<td class=\"short\">3.6</td><td class=\"short\">4900 rpm</td></tr>\n<tr>"));
}

TEST(Document, StandsAloneAsHtml) {
    const std::string html = HtmlOf(HandMade());
    EXPECT_THAT(html, HasSubstr("<h1>A &amp; B</h1>\n<p>&lt;file&gt;.zolv</p>"));
    Document lines = HandMade();
    lines.Sections[0].Figures[0].Name = "Mass,\nwith fuel";
    EXPECT_THAT(HtmlOf(lines), HasSubstr("<td>Mass,\nwith fuel</td>"));
    EXPECT_THAT(
        html,
        HasSubstr("<tr><td>Mass</td><td class=\"number\" align=\"right\">1027</td><td class=\"short\">kg</td></tr>"));
    EXPECT_THAT(html, HasSubstr("<svg xmlns"));
    EXPECT_THAT(html, Not(HasSubstr("<?xml")));
    EXPECT_THAT(html, Not(HasSubstr("src=")));
    EXPECT_THAT(html, testing::EndsWith("</body>\n</html>\n"));
}

/// The tags of a document in order, "table" and "/table", without those that stand alone.
std::vector<std::string> TagsOf(const std::string& html) {
    const std::regex tag("<(/?[a-z0-9]+)([^>]*)>");
    std::vector<std::string> tags;
    for (std::sregex_iterator match(html.begin(), html.end(), tag), end; match != end; ++match) {
        if (!(*match)[2].str().ends_with('/')) tags.push_back((*match)[1]);
    }
    return tags;
}

/// What is held beside and below, and pictures in an odd number, so that every kind of table stands in it.
TEST(Document, EachTagIsClosedAndEachTableHasItsColumns) {
    Document held = HandMade();
    held.HeldTitle = "Held";
    held.Sections[0].Figures[0].Held = "900 kg";
    held.Sections[1].Held = {{}, {"Held", "3.6", "4900 rpm"}};
    std::vector<std::string> open;
    std::vector<int> columns;  // of the first row of each table that is open
    int cells = 0;
    for (const std::string& tag : TagsOf(HtmlOf(held))) {
        if (!tag.starts_with('/')) {
            open.push_back(tag);
            if (tag == "table") columns.push_back(0);
            if (tag == "tr") cells = 0;
            if (tag == "td" || tag == "th") ++cells;
            continue;
        }
        ASSERT_FALSE(open.empty()) << tag;
        ASSERT_EQ('/' + open.back(), tag);
        open.pop_back();
        if (tag == "/tr" && columns.back() == 0) columns.back() = cells;
        EXPECT_TRUE(tag != "/tr" || cells <= columns.back());
        if (tag == "/table") columns.pop_back();
    }
    EXPECT_TRUE(open.empty());
}

// The properties of CSS 2.2 that the sheet may use; one that is none would be passed over without a word.
TEST(Document, ItsStyleNamesPropertiesThatThereAre) {
    const std::set<std::string> known{
        "font-family",       "font-size",        "color",      "max-width",      "margin",      "margin-top", "padding",
        "border-bottom",     "border-collapse",  "text-align", "vertical-align", "white-space", "width",      "height",
        "page-break-before", "page-break-inside"};
    const std::string html = HtmlOf(HandMade());
    const std::size_t start = html.find("<style>");
    const std::string style = html.substr(start, html.find("</style>") - start);
    const std::regex property("[{;]([a-z-]+):");
    int count = 0;
    for (std::sregex_iterator match(style.begin(), style.end(), property), end; match != end; ++match, ++count) {
        EXPECT_TRUE(known.contains((*match)[1])) << (*match)[1];
    }
    EXPECT_GT(count, 20);
    EXPECT_EQ(std::ranges::count(style, '{'), std::ranges::count(style, '}'));
}

TEST(Document, HasNumberAndUnitOfAFigureOrItsTextWhole) {
    const std::vector<std::array<std::string, 3>> rows{{"12.5 m/s", "12.5", "m/s"},
                                                       {"4.15s", "4.15", "s"},
                                                       {"80%", "80", "%"},
                                                       {"0-15 m/s", "0-15 m/s", ""},
                                                       {"0.98 : 1", "0.98 : 1", ""},
                                                       {"N/A", "N/A", ""},
                                                       {"86 kW @ 7033 rpm", "86 kW @ 7033 rpm", ""},
                                                       {"-5 N", "-5", "N"},
                                                       {"0.3 m / 1.9 m", "0.3 m / 1.9 m", ""}};
    for (const auto& [text, number, unit] : rows) {
        const DocumentFigure figure = FigureOf("", text);
        EXPECT_EQ(figure.Number, number);
        EXPECT_EQ(figure.Unit, unit);
    }
}

}  // namespace
}  // namespace zolv
