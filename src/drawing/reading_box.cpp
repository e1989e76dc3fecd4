#include "drawing/reading_box.h"

#include <optional>

namespace zolv {
namespace {

/// The curves of a drawing, as far as they are seen.
Occupancy CurvesOf(const Canvas& canvas, const PlotPlace& place) {
    Occupancy curves(place.ground);
    const CanvasMapping mapping = place.Mapping();
    for (DrawingOperation line : canvas.Operations()) {
        if (line.kind != DrawingOperation::Kind::Line || !IsCurve(line.meaning.role)) continue;
        if (!CutLine(line, place.part)) continue;
        curves.TakeLine({mapping.X(line.x1), mapping.Y(line.y1)}, {mapping.X(line.x2), mapping.Y(line.y2)});
    }
    return curves;
}

}  // namespace

Box ReadingBox(const Canvas& canvas, const PlotPlace& place, ViewPoint pointer, ViewSize size, const Box& bounds) {
    constexpr double kOffset = 12;         // from the pointer
    constexpr double kInset = 6;           // from the corners of the ground
    constexpr double kReluctance = 0.004;  // to stand at a later place: the share of the box that a curve would cover
    constexpr double kToCorner = 0.012;    // and to leave the pointer
    const Occupancy curves = CurvesOf(canvas, place);
    const Box& ground = place.ground;
    const bool fits = size.width <= ground.width && size.height <= ground.height;
    const Box& room = fits ? ground : bounds;
    const double right = pointer.x + kOffset;
    const double left = pointer.x - kOffset - size.width;
    const double above = pointer.y - kOffset - size.height;
    const double below = pointer.y + kOffset;
    const double groundRight = ground.Right() - kInset - size.width;
    const double groundBottom = ground.Bottom() - kInset - size.height;
    struct Corner {
        ViewPoint at;
        double reluctance;
    };
    const Corner corners[] = {
        {{right, above}, 0},
        {{left, above}, kReluctance},
        {{right, below}, 2 * kReluctance},
        {{left, below}, 3 * kReluctance},
        {{groundRight, groundBottom}, kToCorner + kReluctance},
        {{ground.left + kInset, ground.top + kInset}, kToCorner + kReluctance},
        {{groundRight, ground.top + kInset}, kToCorner + 2 * kReluctance},
        {{ground.left + kInset, groundBottom}, kToCorner + 2 * kReluctance},
    };
    Box best{};
    std::optional<double> least;
    for (const Corner& corner : corners) {
        const Box box = Inside({corner.at.x, corner.at.y, size.width, size.height}, room);
        const bool covers = Box{pointer.x, pointer.y, 0, 0}.Meets(box);
        const double cost = corner.reluctance + curves.ShareTaken(box) + (covers ? 1 : 0);
        if (least && cost >= *least) continue;
        best = box;
        least = cost;
    }
    return best;
}

}  // namespace zolv
