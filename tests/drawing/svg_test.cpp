#include "drawing/svg.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "drawing/plot_labels.h"
#include "drawing/text_measure.h"
#include "text/number_text.h"

namespace zolv {
namespace {

// Written by hand after the W3C recommendation SVG 1.1. The frame takes a pixel on each side, so that the canvas's
// units are pixels.
TEST(Svg, OfAHandMadeCanvas) {
    Canvas canvas(300, 200.25);
    canvas.Line(Role::Shape, 0, 0, 10, 5);
    canvas.Line(Role::Shape, 10, 5, 20, 2.25);  // goes on from there
    canvas.Line(Role::Gear1, 20, 2.25, 30, 50);
    canvas.Line(Role::Shape, 20, 50, 30, 50);  // does not
    canvas.SetLineWidth(3);
    canvas.Line(Role::Shape, 30, 50, 40, 60, {1, 171, 255});
    canvas.FillRectangle(Role::Shape, 100, 80, 50, 20, kWhite);  // from its lower right corner
    canvas.FillCircle(Role::Shape, 150, -1e-7, 25, {1, 171, 255});
    canvas.AddName({Role::Gear1, Standing::Held}, "none of this drawing");
    EXPECT_EQ(SvgOf(canvas, {302, 202.25, CanvasShape::Proportional}), R"svg(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="326" height="226.25" viewBox="0 0 326 226.25" font-family="sans-serif">
<rect width="326" height="226.25" fill="#ffffff"/>
<g transform="translate(12 12)">
<rect x="0" y="0" width="302" height="202.25" fill="#969ca4"/>
<rect x="1" y="1" width="300" height="200.25" fill="#ffffff"/>
<svg x="1" y="1" width="300" height="200.25">
<path d="M0 0L10 5L20 2.25M20 50L30 50" fill="none" stroke="#000000" stroke-width="1"/>
<path d="M20 2.25L30 50" fill="none" stroke="#1111bb" stroke-width="2"/>
<path d="M30 50L40 60" fill="none" stroke="#01abff" stroke-width="3"/>
<rect x="50" y="20" width="50" height="60" fill="#ffffff"/>
<circle cx="150" cy="0" r="25" fill="#01abff"/>
</svg>
</g>
</svg>
)svg");
}

TEST(Svg, TextStandsLineBelowLineWithWhatXmlCanHold) {
    Canvas canvas(4635, 3015);
    canvas.SetInk({1, 2, 3});
    canvas.Print("<1st> & \"2nd\"\x01\r\nf\xC3\xBCr\r\n");  // leaves a blank line
    canvas.Print("fourth");
    canvas.Print("a long line " + std::string(120, 'm') + " and its end");  // wider than the picture
    const std::string svg = SvgOf(canvas);
    const auto heightOf = [&](const std::string& text) {
        const std::size_t end = svg.find(" fill=\"#010203\">" + text + "</text>\n");
        EXPECT_NE(end, std::string::npos) << text;
        return Val(svg.substr(svg.rfind(" y=\"", end) + 4));
    };
    const double first = heightOf("&lt;1st&gt; &amp; &quot;2nd&quot;");
    const double lineHeight = heightOf("f\xC3\xBCr") - first;
    EXPECT_GT(lineHeight, 0);
    EXPECT_NEAR(heightOf("fourth") - first, 3 * lineHeight, 0.02);
    EXPECT_NEAR(heightOf("and its end") - heightOf("a long line"), 2 * lineHeight, 0.02);
}

TEST(Svg, ShowsWhatAWindowShows) {
    Canvas canvas(600, 400);
    canvas.SetAxes({.scale = 6, .step = 20, .start = 0, .end = 600, .title = "Time", .unit = "s"},
                   {.origin = 400, .scale = -4, .step = 50, .start = 400, .end = 0, .title = "Force", .unit = "<N>"});
    for (const Standing standing : {Standing::Present, Standing::Held}) {
        canvas.Line({Role::DrivingForce, standing}, 60, 300, 500, 100, kGreen);
        canvas.AddName({Role::DrivingForce, standing}, standing == Standing::Held ? "before" : "now");
    }
    canvas.AddLegend({"the other", {Role::DrivingForce, Standing::Held}});
    const std::string svg = SvgOf(canvas, {600, 400});
    for (const char* shown :
         {">Time [s]</text>", ">Force [&lt;N&gt;]</text>", ">80</text>", ">50</text>", ">now</text>",
          ">the other</text>", "stroke=\"#008234\" stroke-width=\"2\"><title>now</title>",
          "stroke-dasharray=\"6.25 5\"><title>before</title>", "stroke-dasharray=\"6.25 5\"/>"}) {
        EXPECT_NE(svg.find(shown), std::string::npos) << shown << '\n' << svg;
    }
    EXPECT_EQ(svg.find("#00ff00"), std::string::npos);
}

/// The start tag of the element that ends in `end`, from `svg`.
std::string TagBefore(const std::string& svg, const std::string& end) {
    const std::size_t at = svg.find(end);
    if (at == std::string::npos) return {};
    const std::size_t start = svg.rfind('<', at);
    return svg.substr(start, at - start);
}

double Attribute(const std::string& tag, const std::string& name) {
    const std::size_t at = tag.find(' ' + name + "=\"");
    return at == std::string::npos ? -1 : Val(tag.substr(at + name.size() + 3));
}

std::string RectangleOf(const Box& box, const std::string& fill) {
    const auto place = [](double value) { return '"' + RoundedText(value, 2) + '"'; };
    return "<rect x=" + place(box.left) + " y=" + place(box.top) + " width=" + place(box.width) +
           " height=" + place(box.height) + ' ' + fill + "/>\n";
}

// Capitals of common fonts rise to 0.73 of their size above the line, and tails reach to 0.24 below.
TEST(Svg, WordsStandInTheirBoxes) {
    Canvas canvas(600, 400);
    canvas.SetAxes({.scale = 6, .step = 20, .start = 0, .end = 600, .title = "Time", .unit = "s"},
                   {.origin = 400, .scale = -4, .step = 7, .start = 400, .end = 0, .title = "Force", .unit = "N"});
    canvas.Line(Role::Gear1, 0, 390, 600, 300);
    canvas.AddName(Role::Gear1, "a rising curve");
    canvas.Line(Role::Limiter, 0, 100, 600, 100);
    canvas.AddName(Role::Limiter, "Limiter");
    canvas.AddLegend({"other", {Role::Gear1, Standing::Held}});
    constexpr double kSize = 12;
    const TextMeasure measure = EstimatedMeasure(kSize);
    const PlotLabels labels = LabelsOf(canvas, PlaceOf(canvas, CanvasShape::Stretched, {600, 400}, measure), measure);
    const std::string svg = SvgOf(canvas, {600, 400, CanvasShape::Stretched});
    int veiled = 0;
    for (const PlacedWords& words : labels.words) {
        if (words.text == "0") continue;  // stands at both axes
        const std::string tag = TagBefore(svg, '>' + words.text + "</text>");
        const std::string anchor = words.anchor == PlacedWords::Anchor::Right    ? " text-anchor=\"end\""
                                   : words.anchor == PlacedWords::Anchor::Centre ? " text-anchor=\"middle\""
                                                                                 : "";
        const double place = words.anchor == PlacedWords::Anchor::Right    ? words.box.Right()
                             : words.anchor == PlacedWords::Anchor::Centre ? words.box.CentreX()
                                                                           : words.box.left;
        EXPECT_NEAR(Attribute(tag, "x"), place, 0.006) << words.text;
        EXPECT_GE(Attribute(tag, "y") - 0.73 * kSize, words.box.top) << words.text;
        EXPECT_LE(Attribute(tag, "y") + 0.24 * kSize, words.box.Bottom()) << words.text;
        EXPECT_EQ(tag.find(" text-anchor") == std::string::npos, anchor.empty()) << words.text;
        EXPECT_NE(tag.find(anchor), std::string::npos) << words.text;
        if (!words.veiled) continue;
        ++veiled;
        const std::size_t veil = svg.find(RectangleOf(words.box, "fill=\"#ffffff\" fill-opacity=\"0.85\""));
        EXPECT_LT(veil, svg.find('>' + words.text + "</text>")) << words.text;  // under it
    }
    EXPECT_GE(veiled, 1);
    ASSERT_EQ(labels.strokes.size(), 1U);
    const Box& stroke = labels.strokes[0].box;
    const std::string y = RoundedText(stroke.CentreY(), 2);
    EXPECT_NE(svg.find("<path d=\"M" + RoundedText(stroke.left, 2) + ' ' + y + 'L' + RoundedText(stroke.Right(), 2) +
                       ' ' + y + "\" fill=\"none\" stroke=\"#1111bb\" stroke-width=\"1.25\""),
              std::string::npos)
        << svg;
}

// The bar of a map in its frame: 64 shades without a gap, the darkest at the bottom.
TEST(Svg, TheBarOfAMapHasAllShades) {
    Canvas canvas(600, 400);
    canvas.SetAxes({.scale = 6, .step = 20, .start = 0, .end = 600},
                   {.origin = 400, .scale = -4, .step = 50, .start = 400});
    canvas.SetScale({.title = "Time", .unit = "s", .from = 110, .to = 120, .step = 5});
    const TextMeasure measure = EstimatedMeasure(12);
    const Box bar = PlaceOf(canvas, CanvasShape::Stretched, {600, 400}, measure).scale;
    const std::string svg = SvgOf(canvas, {600, 400, CanvasShape::Stretched});
    for (const char* number : {"110", "115", "120"}) {  // which begin beside it
        const std::string tag = TagBefore(svg, std::string(">") + number + "</text>");
        EXPECT_GT(Attribute(tag, "x"), bar.Right()) << number;
        EXPECT_EQ(tag.find("text-anchor"), std::string::npos) << number;
    }
    std::size_t at =
        svg.find(RectangleOf({bar.left - 1, bar.top - 1, bar.width + 2, bar.height + 2}, "fill=\"#969ca4\""));
    ASSERT_NE(at, std::string::npos);
    double lower = bar.Bottom();
    double lightness = -1;
    for (int shade = 0; shade < 64; ++shade) {
        at = svg.find("<rect", at + 1);
        const std::string tag = svg.substr(at, svg.find("/>", at) - at);
        EXPECT_NEAR(Attribute(tag, "x"), bar.left, 0.006);
        EXPECT_NEAR(Attribute(tag, "width"), bar.width, 0.006);
        EXPECT_NEAR(Attribute(tag, "y") + Attribute(tag, "height"), lower, 0.012);
        lower = Attribute(tag, "y");
        const Rgb colour = ShadeColour(shade);
        constexpr char kDigits[] = "0123456789abcdef";
        std::string hex = "#";
        for (const int part : {colour.red, colour.green, colour.blue}) hex += {kDigits[part / 16], kDigits[part % 16]};
        EXPECT_NE(tag.find("fill=\"" + hex), std::string::npos) << tag;
        EXPECT_GT(Contrast(kBlack, colour), lightness);
        lightness = Contrast(kBlack, colour);
    }
    EXPECT_NEAR(lower, bar.top, 0.012);
}

}  // namespace
}  // namespace zolv
