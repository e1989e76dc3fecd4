#pragma once

#include <algorithm>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "drawing/canvas.h"
#include "text/number_text.h"

namespace zolv {

/// The operations of a drawing as short texts with coordinates to three decimals, for comparing them with figures
/// worked out by hand: "line 0,0 10,2.5 red 3", "rect 0,0 10,10 white", "circle 0,0 5 black".
inline std::vector<std::string> Drawn(const std::vector<DrawingOperation>& operations) {
    const auto name = [](Rgb colour) -> std::string {
        const std::pair<Rgb, const char*> names[] = {{kBlack, "black"}, {kWhite, "white"}, {kRed, "red"},
                                                     {kGreen, "green"}, {kBlue, "blue"},   {kMagenta, "magenta"},
                                                     {kCyan, "cyan"}};
        const auto* const known = std::ranges::find(names, colour, &std::pair<Rgb, const char*>::first);
        return known == std::end(names) ? "another colour" : known->second;
    };
    const auto pair = [](double x, double y) { return RoundedText(x, 3) + ',' + RoundedText(y, 3); };
    std::vector<std::string> drawn;
    for (const DrawingOperation& o : operations) {
        const std::string to = pair(o.x2, o.y2) + ' ' + name(o.colour);
        switch (o.kind) {
            case DrawingOperation::Kind::Line:
                drawn.push_back("line " + pair(o.x1, o.y1) + ' ' + to + ' ' + NumberText(std::int32_t{o.width}));
                break;
            case DrawingOperation::Kind::Rectangle: drawn.push_back("rect " + pair(o.x1, o.y1) + ' ' + to); break;
            case DrawingOperation::Kind::Circle:
                drawn.push_back("circle " + pair(o.x1, o.y1) + ' ' + RoundedText(o.x2, 3) + ' ' + name(o.colour));
                break;
            case DrawingOperation::Kind::Text: drawn.push_back("text"); break;
        }
    }
    return drawn;
}

inline std::vector<std::string> Drawn(const Canvas& canvas) { return Drawn(canvas.Operations()); }

/// The drawing without its grid.
inline std::vector<std::string> DrawnBesideGrid(const Canvas& canvas) {
    std::vector<DrawingOperation> operations = canvas.Operations();
    std::erase_if(operations, [](const DrawingOperation& operation) { return operation.meaning.role == Role::Grid; });
    return Drawn(operations);
}

inline void PrintTo(const PartName& part, std::ostream* out) {
    *out << part.name << " of role " << static_cast<int>(part.meaning.role) << ' ' << part.unit;
}

}  // namespace zolv
