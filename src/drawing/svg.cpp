#include "drawing/svg.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "drawing/plot_labels.h"
#include "drawing/stroke_style.h"
#include "drawing/text_measure.h"
#include "text/number_text.h"
#include "text/xml_text.h"

namespace zolv {
namespace {

constexpr double kUnitsPerPixel = 6;
constexpr double kMargin = 12;      // around the drawing
constexpr double kNumberSize = 12;  // of the font of numbers and names
constexpr double kPrintSize = 14;   // of the font of prints
constexpr double kSmallestPrint = 8;
constexpr double kPrintMargin = 10;  // inside the ground
constexpr double kLineHeight = 1.3;  // of a print, in sizes of its font
constexpr double kBaseline = 0.95;   // from the top of a line, in sizes of the font

/// name="value", with a blank in front.
void AddAttribute(std::string& svg, std::string_view name, std::string_view value) {
    svg.append(" ").append(name).append("=\"").append(value).append("\"");
}

void AddAttribute(std::string& svg, std::string_view name, double value) {
    AddAttribute(svg, name, std::string_view(ExactText(value)));
}

/// A place in the view: a hundredth of a pixel is enough.
void AddPlace(std::string& svg, std::string_view name, double value) {
    AddAttribute(svg, name, std::string_view(RoundedText(value, 2)));
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

/// A tab keeps words apart.
std::string Escaped(std::string_view text) {
    std::string spaced(text);
    std::ranges::replace(spaced, '\t', ' ');
    return XmlText(spaced);
}

void AddFill(std::string& svg, const Fill& fill) {
    AddColour(svg, "fill", fill.colour);
    if (fill.opacity < 1) AddAttribute(svg, "fill-opacity", fill.opacity);
}

void AddBox(std::string& svg, const Box& box, const Fill& fill) {
    svg += "<rect";
    AddPlace(svg, "x", box.left);
    AddPlace(svg, "y", box.top);
    AddPlace(svg, "width", box.width);
    AddPlace(svg, "height", box.height);
    AddFill(svg, fill);
    svg += "/>\n";
}

void AddText(std::string& svg, std::string_view text, double x, double top, double size, Rgb colour,
             std::string_view anchor = "start") {
    const std::string escaped = Escaped(text);
    if (escaped.empty()) return;
    svg += "<text";
    AddPlace(svg, "x", x);
    AddPlace(svg, "y", top + kBaseline * size);
    AddAttribute(svg, "font-size", size);
    if (anchor != "start") AddAttribute(svg, "text-anchor", anchor);
    AddColour(svg, "fill", colour);
    svg.append(">").append(escaped).append("</text>\n");
}

void AddPen(std::string& svg, const StrokeStyle& style) {
    svg += " fill=\"none\"";
    AddColour(svg, "stroke", style.colour);
    AddAttribute(svg, "stroke-width", style.width);
    if (style.dashed) {
        AddAttribute(svg, "stroke-dasharray",
                     std::string_view(ExactText(kDash * style.width) + ' ' + ExactText(kDashGap * style.width)));
    }
}

/// Writes the operations of one canvas at their places in the view. Lines of one pen are one path, also where curves
/// were drawn in turns.
class OperationWriter {
public:
    OperationWriter(std::string& svg, const Canvas& canvas, const PlotPlace& place)
        : svg_(svg), canvas_(canvas), part_(place.part), grid_(canvas, place), mapping_(place.Mapping()) {
        const double reserveX = part_.Width() * 0.05;  // keeps the ends of cut lines out of sight
        const double reserveY = part_.Height() * 0.05;
        part_ = {part_.left - reserveX, part_.top - reserveY, part_.right + reserveX, part_.bottom + reserveY};
    }

    void Write() {
        for (const DrawingOperation& line : grid_.RoundLines()) AddStroke(line, {.colour = grid_.ColourOf(line)});
        for (const DrawingOperation& operation : canvas_.Operations()) {
            switch (operation.kind) {
                case DrawingOperation::Kind::Line: AddLine(operation); break;
                case DrawingOperation::Kind::Rectangle: AddRectangle(operation); break;
                case DrawingOperation::Kind::Circle: AddCircle(operation); break;
                case DrawingOperation::Kind::Text: break;
            }
        }
        WritePaths();
    }

private:
    struct Path {
        Meaning meaning;
        StrokeStyle style;
        std::string data;
        double endX = 0, endY = 0;
    };

    void AddLine(const DrawingOperation& line) {
        if (line.meaning.role != Role::Grid) return AddStroke(line, StyleOf(line));
        if (grid_.Shows(line)) AddStroke(line, {.colour = grid_.ColourOf(line)});
    }

    void AddStroke(DrawingOperation line, const StrokeStyle& style) {
        if (!CutLine(line, part_)) return;
        Path& path = PathOf(line.meaning, style);
        // A line that starts where the last one ended goes on from there.
        if (path.data.empty() || path.endX != line.x1 || path.endY != line.y1) AddPoint(path, 'M', line.x1, line.y1);
        AddPoint(path, 'L', line.x2, line.y2);
    }

    Path& PathOf(Meaning meaning, const StrokeStyle& style) {
        const auto known = std::ranges::find_if(
            paths_, [&](const Path& path) { return path.meaning == meaning && path.style == style; });
        return known != paths_.end() ? *known : paths_.emplace_back(Path{meaning, style, {}});
    }

    void AddPoint(Path& path, char command, double x, double y) const {
        path.data.append(1, command).append(RoundedText(mapping_.X(x), 2)).append(" ");
        path.data.append(RoundedText(mapping_.Y(y), 2));
        path.endX = x;
        path.endY = y;
    }

    void WritePaths() {
        for (const Path& path : paths_) {
            svg_.append("<path d=\"").append(path.data).append("\"");
            AddPen(svg_, path.style);
            const auto name = std::ranges::find(canvas_.Names(), path.meaning, &PartName::meaning);
            if (name == canvas_.Names().end()) {
                svg_ += "/>\n";
            } else {
                svg_.append("><title>").append(Escaped(name->name)).append("</title></path>\n");
            }
        }
        paths_.clear();
    }

    void AddRectangle(const DrawingOperation& rectangle) {
        WritePaths();
        const double left = mapping_.X(std::min(rectangle.x1, rectangle.x2));
        const double right = mapping_.X(std::max(rectangle.x1, rectangle.x2));
        const double top = mapping_.Y(std::min(rectangle.y1, rectangle.y2));
        const double bottom = mapping_.Y(std::max(rectangle.y1, rectangle.y2));
        AddBox(svg_, {left, top, right - left, bottom - top}, FillOf(rectangle));
    }

    void AddCircle(const DrawingOperation& circle) {
        WritePaths();
        svg_ += "<circle";
        AddPlace(svg_, "cx", mapping_.X(circle.x1));
        AddPlace(svg_, "cy", mapping_.Y(circle.y1));
        AddPlace(svg_, "r", circle.x2 * mapping_.scaleX);
        AddFill(svg_, FillOf(circle));
        svg_ += "/>\n";
    }

    std::string& svg_;
    const Canvas& canvas_;
    CanvasPart part_;
    ShownGrid grid_;
    CanvasMapping mapping_;
    std::vector<Path> paths_;
};

struct PrintedLine {
    std::string text;
    Rgb colour;
};

/// Breaks one line at its blanks so that the pieces fit; a word longer than that stands whole.
void AddWrapped(std::vector<PrintedLine>& lines, std::string_view text, Rgb colour, double width, double size) {
    while (EstimatedWidth(text, size) > width) {
        std::size_t end = text.find(' ');
        for (std::size_t next = end; next != std::string_view::npos; next = text.find(' ', next + 1)) {
            if (EstimatedWidth(text.substr(0, next), size) > width) break;
            end = next;
        }
        if (end == std::string_view::npos) break;
        lines.push_back({std::string(text.substr(0, end)), colour});
        text.remove_prefix(end + 1);
    }
    lines.push_back({std::string(text), colour});
}

/// The prints of a canvas, one below the other, in lines that fit.
std::vector<PrintedLine> PrintedLines(const Canvas& canvas, double width, double size) {
    std::vector<PrintedLine> lines;
    for (const DrawingOperation& operation : canvas.Operations()) {
        if (operation.kind != DrawingOperation::Kind::Text) continue;
        std::string_view text = canvas.TextOf(operation);
        for (bool atEnd = false; !atEnd;) {
            const std::size_t end = text.find('\n');
            atEnd = end == std::string_view::npos;
            std::string_view line = text.substr(0, end);
            if (line.ends_with('\r')) line.remove_suffix(1);
            AddWrapped(lines, line, Softened(operation.colour), width, size);
            if (!atEnd) text.remove_prefix(end + 1);
        }
    }
    return lines;
}

/// In a font that is made smaller until they fit.
void AddPrints(std::string& svg, const Canvas& canvas, const Box& ground) {
    const double width = ground.width - 2 * kPrintMargin;
    const double height = ground.height - 2 * kPrintMargin;
    double size = kPrintSize;
    std::vector<PrintedLine> lines = PrintedLines(canvas, width, size);
    while (static_cast<double>(lines.size()) * kLineHeight * size > height && size > kSmallestPrint) {
        lines = PrintedLines(canvas, width, --size);
    }
    double top = ground.top + kPrintMargin;
    for (const PrintedLine& line : lines) {
        AddText(svg, line.text, ground.left + kPrintMargin, top, size, line.colour);
        top += kLineHeight * size;
    }
}

void AddLegendStroke(std::string& svg, const LegendStroke& stroke) {
    const std::string y = RoundedText(stroke.box.CentreY(), 2);
    svg.append("<path d=\"M").append(RoundedText(stroke.box.left, 2)).append(" ").append(y);
    svg.append("L").append(RoundedText(stroke.box.Right(), 2)).append(" ").append(y).append("\"");
    AddPen(svg, StyleOf(stroke.meaning));
    svg += "/>\n";
}

void AddLabels(std::string& svg, const PlotLabels& labels) {
    constexpr Fill kVeil{kWhite, 0.85};
    if (labels.veil.width > 0) AddBox(svg, labels.veil, kVeil);
    for (const LegendStroke& stroke : labels.strokes) AddLegendStroke(svg, stroke);
    for (const PlacedWords& words : labels.words) {
        const Box& box = words.box;
        if (words.veiled) AddBox(svg, box, kVeil);
        const double top = box.top + (box.height - kNumberSize * 1.25) / 2;
        switch (words.anchor) {
            case PlacedWords::Anchor::Left: AddText(svg, words.text, box.left, top, kNumberSize, words.colour); break;
            case PlacedWords::Anchor::Centre:
                AddText(svg, words.text, box.CentreX(), top, kNumberSize, words.colour, "middle");
                break;
            case PlacedWords::Anchor::Right:
                AddText(svg, words.text, box.Right(), top, kNumberSize, words.colour, "end");
                break;
        }
    }
}

/// The ground with its frame, and on it the drawing, cut off at its edges.
void AddGround(std::string& svg, const Canvas& canvas, const PlotPlace& place) {
    const Box& ground = place.ground;
    AddBox(svg, {ground.left - kFrame, ground.top - kFrame, ground.width + 2 * kFrame, ground.height + 2 * kFrame},
           {kFrameInk});
    AddBox(svg, ground, {kWhite});
    svg += "<svg";
    AddPlace(svg, "x", ground.left);
    AddPlace(svg, "y", ground.top);
    AddPlace(svg, "width", ground.width);
    AddPlace(svg, "height", ground.height);
    PlotPlace within = place;
    within.ground.left = within.ground.top = 0;
    svg += ">\n";
    OperationWriter(svg, canvas, within).Write();
    svg += "</svg>\n";
}

/// The bar of a map's colours.
void AddScale(std::string& svg, const Box& bar) {
    if (bar.width <= 0) return;
    AddBox(svg, {bar.left - kFrame, bar.top - kFrame, bar.width + 2 * kFrame, bar.height + 2 * kFrame}, {kFrameInk});
    for (int shade = 0; shade < kShades; ++shade) {
        const double bottom = bar.Bottom() - bar.height * shade / kShades;
        const double top = bar.Bottom() - bar.height * (shade + 1) / kShades;
        AddBox(svg, {bar.left, top, bar.width, bottom - top}, {ShadeColour(shade)});
    }
}

}  // namespace

SvgSize UsualSize(const Canvas& canvas) {
    return {canvas.Width() / kUnitsPerPixel, canvas.Height() / kUnitsPerPixel, ShapeOf(canvas)};
}

std::string SvgOf(const Canvas& canvas, const SvgSize& size) {
    const TextMeasure measure = EstimatedMeasure(kNumberSize);
    const PlotPlace place = PlaceOf(canvas, size.shape, {size.width, size.height}, measure);
    const std::string width = RoundedText(size.width + 2 * kMargin, 2);
    const std::string height = RoundedText(size.height + 2 * kMargin, 2);
    std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"";
    AddAttribute(svg, "width", std::string_view(width));
    AddAttribute(svg, "height", std::string_view(height));
    AddAttribute(svg, "viewBox", std::string_view("0 0 " + width + ' ' + height));
    AddAttribute(svg, "font-family", "sans-serif");
    svg.append(">\n<rect width=\"").append(width).append("\" height=\"").append(height);
    svg += "\" fill=\"#ffffff\"/>\n<g transform=\"translate(";
    svg.append(ExactText(kMargin)).append(" ").append(ExactText(kMargin)).append(")\">\n");
    AddGround(svg, canvas, place);
    AddScale(svg, place.scale);
    AddPrints(svg, canvas, place.ground);
    AddLabels(svg, LabelsOf(canvas, place, measure));
    svg += "</g>\n</svg>\n";
    return svg;
}

std::string SvgOf(const Canvas& canvas) { return SvgOf(canvas, UsualSize(canvas)); }

}  // namespace zolv
