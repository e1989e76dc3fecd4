#include "drawing/svg.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string_view>

#include "text/number_text.h"

namespace zolv {
namespace {

// Canvas units, of which some 15 make a pixel.
constexpr double kFontSize = 140;  // the longest report of ratios in the wrong order fits the plot
constexpr double kLineHeight = 190;
constexpr double kTextMargin = 60;

/// name="value", with a blank in front.
void AddAttribute(std::string& svg, std::string_view name, std::string_view value) {
    svg.append(" ").append(name).append("=\"").append(value).append("\"");
}

void AddAttribute(std::string& svg, std::string_view name, double value) {
    AddAttribute(svg, name, std::string_view(ExactText(value)));
}

void AddColour(std::string& svg, std::string_view name, Rgb colour) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned part : {colour.red, colour.green, colour.blue}) {
        text += kDigits[part / 16];
        text += kDigits[part % 16];
    }
    AddAttribute(svg, name, std::string_view(text));
}

/// Text as XML holds it. Control characters have no place there, not even escaped.
std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&': escaped += "&amp;"; break;
            case '<': escaped += "&lt;"; break;
            case '>': escaped += "&gt;"; break;
            case '"': escaped += "&quot;"; break;
            case '\t': escaped += ' '; break;
            default:
                if (static_cast<unsigned char>(c) >= 0x20) escaped += c;
        }
    }
    return escaped;
}

bool IsOfOnePath(const DrawingOperation& a, const DrawingOperation& b) {
    return b.kind == DrawingOperation::Kind::Line && a.colour == b.colour && a.width == b.width;
}

/// A line that starts where the last one ended goes on from there.
void AddPath(std::string& svg, std::span<const DrawingOperation> lines) {
    svg += "<path d=\"";
    const DrawingOperation* last = nullptr;
    const auto addPoint = [&](char command, double x, double y) {
        svg.append(1, command).append(ExactText(x)).append(" ").append(ExactText(y));
    };
    for (const DrawingOperation& line : lines) {
        const bool goesOn = last != nullptr && last->x2 == line.x1 && last->y2 == line.y1;
        if (!goesOn) addPoint('M', line.x1, line.y1);
        addPoint('L', line.x2, line.y2);
        last = &line;
    }
    svg += "\" fill=\"none\"";
    AddColour(svg, "stroke", lines.front().colour);
    AddAttribute(svg, "stroke-width", std::string_view(NumberText(static_cast<std::int32_t>(lines.front().width))));
    AddAttribute(svg, "vector-effect", "non-scaling-stroke");
    svg += "/>\n";
}

void AddRectangle(std::string& svg, const DrawingOperation& rectangle) {
    svg += "<rect";
    AddAttribute(svg, "x", std::min(rectangle.x1, rectangle.x2));
    AddAttribute(svg, "y", std::min(rectangle.y1, rectangle.y2));
    AddAttribute(svg, "width", std::fabs(rectangle.x2 - rectangle.x1));
    AddAttribute(svg, "height", std::fabs(rectangle.y2 - rectangle.y1));
    AddColour(svg, "fill", rectangle.colour);
    svg += "/>\n";
}

void AddCircle(std::string& svg, const DrawingOperation& circle) {
    svg += "<circle";
    AddAttribute(svg, "cx", circle.x1);
    AddAttribute(svg, "cy", circle.y1);
    AddAttribute(svg, "r", circle.x2);
    AddColour(svg, "fill", circle.colour);
    svg += "/>\n";
}

/// Writes each line of a print and moves `line`, the number of the next line on the canvas, behind them.
void AddText(std::string& svg, std::string_view text, Rgb colour, int& line) {
    for (bool atEnd = false; !atEnd; ++line) {
        const std::size_t end = text.find('\n');
        atEnd = end == std::string_view::npos;
        const std::string escaped = Escaped(text.substr(0, end));
        if (!atEnd) text.remove_prefix(end + 1);
        if (escaped.empty()) continue;
        svg += "<text";
        AddAttribute(svg, "x", kTextMargin);
        AddAttribute(svg, "y", kTextMargin + kFontSize + line * kLineHeight);
        AddAttribute(svg, "font-family", "sans-serif");
        AddAttribute(svg, "font-size", kFontSize);
        AddColour(svg, "fill", colour);
        svg.append(">").append(escaped).append("</text>\n");
    }
}

void AddOperations(std::string& svg, const Canvas& canvas) {
    const std::span<const DrawingOperation> operations = canvas.Operations();
    int textLine = 0;
    for (std::size_t i = 0; i < operations.size();) {
        const DrawingOperation& operation = operations[i];
        std::size_t count = 1;
        switch (operation.kind) {
            case DrawingOperation::Kind::Line:
                while (i + count < operations.size() && IsOfOnePath(operation, operations[i + count])) ++count;
                AddPath(svg, operations.subspan(i, count));
                break;
            case DrawingOperation::Kind::Rectangle: AddRectangle(svg, operation); break;
            case DrawingOperation::Kind::Circle: AddCircle(svg, operation); break;
            case DrawingOperation::Kind::Text:
                AddText(svg, canvas.TextOf(operation), operation.colour, textLine);
                break;
        }
        i += count;
    }
}

}  // namespace

std::string SvgOf(const Canvas& canvas) {
    const std::string width = ExactText(canvas.Width());
    const std::string height = ExactText(canvas.Height());
    std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"";
    AddAttribute(svg, "viewBox", std::string_view("0 0 " + width + ' ' + height));
    svg.append(">\n<rect width=\"").append(width).append("\" height=\"").append(height);
    svg += "\" fill=\"#ffffff\"/>\n";
    AddOperations(svg, canvas);
    svg += "</svg>\n";
    return svg;
}

}  // namespace zolv
