#include "drawing/svg.h"

#include <gtest/gtest.h>

#include "text/number_text.h"

namespace zolv {
namespace {

// Written by hand after the W3C recommendation SVG 1.1 (non-scaling-stroke: SVG Tiny 1.2).
TEST(Svg, OfAHandMadeCanvas) {
    Canvas canvas(300, 200.5);
    canvas.Line(0, 0, 10, 5);
    canvas.Line(10, 5, 20, 2.25);  // goes on from there
    canvas.Line(20, 50, 30, 50);   // does not
    canvas.SetLineWidth(3);
    canvas.Line(30, 50, 40, 60, kRed);
    canvas.FillRectangle(100, 80, 50, 20, kWhite);  // from its lower right corner
    canvas.FillCircle(150, -1e-7, 25, {1, 171, 255});
    EXPECT_EQ(SvgOf(canvas),
              R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 300 200.5">
<rect width="300" height="200.5" fill="#ffffff"/>
<path d="M0 0L10 5L20 2.25M20 50L30 50" fill="none" stroke="#000000" stroke-width="1" vector-effect="non-scaling-stroke"/>
<path d="M30 50L40 60" fill="none" stroke="#ff0000" stroke-width="3" vector-effect="non-scaling-stroke"/>
<rect x="50" y="20" width="50" height="60" fill="#ffffff"/>
<circle cx="150" cy="-1e-07" r="25" fill="#01abff"/>
</svg>
)");
}

TEST(Svg, TextStandsLineBelowLineWithWhatXmlCanHold) {
    Canvas canvas(4635, 3015);
    canvas.SetInk(kRed);
    canvas.Print("<1st> & \"2nd\"\x01\r\nf\xC3\xBCr\r\n");  // leaves a blank line
    canvas.Print("fourth");
    const std::string svg = SvgOf(canvas);
    const auto heightOf = [&](const std::string& text) {
        const std::size_t end = svg.find(" fill=\"#ff0000\">" + text + "</text>\n");
        EXPECT_NE(end, std::string::npos) << text;
        return Val(svg.substr(svg.rfind(" y=\"", end) + 4));
    };
    const double first = heightOf("&lt;1st&gt; &amp; &quot;2nd&quot;");
    const double lineHeight = heightOf("f\xC3\xBCr") - first;
    EXPECT_GT(lineHeight, 0);
    EXPECT_DOUBLE_EQ(heightOf("fourth") - first, 3 * lineHeight);
}

}  // namespace
}  // namespace zolv
