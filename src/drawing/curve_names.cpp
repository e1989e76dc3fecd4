#include "drawing/curve_names.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "drawing/occupancy.h"
#include "drawing/palette.h"
#include "text/number_text.h"

namespace zolv {
namespace {

constexpr double kAside = 3;    // from a line to its name
constexpr double kPadding = 1;  // beside the words

/// What is seen of a named mark or curve: its points in the view, in the order drawn.
struct SeenPart {
    const PartName* name = nullptr;
    std::vector<ViewPoint> points;  // the last one is missing while its line goes on
    ViewPoint end{};
};

class NamePlacer {
public:
    NamePlacer(const Canvas& canvas, const PlotPlace& place, const TextMeasure& measure)
        : canvas_(canvas), ground_(place.ground), measure_(measure), occupancy_(place.ground) {
        for (const PartName& name : canvas.Names()) parts_.push_back({&name, {}, {}});
        const CanvasMapping mapping = place.Mapping();
        for (DrawingOperation line : canvas.Operations()) {
            const Role role = line.meaning.role;
            if (line.kind != DrawingOperation::Kind::Line || !(IsCurve(role) || IsMark(role))) continue;
            if (!CutLine(line, place.part)) continue;
            Take(line.meaning, {mapping.X(line.x1), mapping.Y(line.y1)}, {mapping.X(line.x2), mapping.Y(line.y2)});
        }
        for (SeenPart& part : parts_) Finish(part);
    }

    NamesOnPlot Place() {
        for (const SeenPart& part : parts_) {
            if (!part.points.empty() && IsMark(part.name->meaning.role)) PlaceMark(part);
        }
        const NamesOnPlot marks = found_;
        if (!PlaceCurves(false)) {
            found_ = marks;
            PlaceCurves(true);
        }
        return std::move(found_);
    }

private:
    /// A box that a name may have, and what speaks against it.
    struct Choice {
        Box box;
        double cost = 0;
    };

    /// The curve that a name is of, and the point of it that the name stands beside.
    struct Owner {
        const SeenPart* part;
        ViewPoint anchor;
    };

    /// Pieces of a line that are too short to matter are taken together: a run has a point every other pixel.
    void Take(Meaning meaning, ViewPoint from, ViewPoint to) {
        constexpr double kShort = 3;
        if (last_ >= parts_.size() || parts_[last_].name->meaning != meaning) {
            const auto part = std::ranges::find_if(
                parts_, [&](const SeenPart& candidate) { return candidate.name->meaning == meaning; });
            if (part == parts_.end()) return occupancy_.TakeLine(from, to);
            last_ = static_cast<std::size_t>(part - parts_.begin());
        }
        SeenPart& part = parts_[last_];
        const bool goesOn = !part.points.empty() && part.end.x == from.x && part.end.y == from.y;
        if (!goesOn) {
            Finish(part);
            part.points.push_back(from);
        }
        part.end = to;
        const ViewPoint kept = part.points.back();
        if (std::max(std::fabs(to.x - kept.x), std::fabs(to.y - kept.y)) >= kShort) Finish(part);
    }

    /// Keeps the end of what has been taken of a part.
    void Finish(SeenPart& part) {
        if (part.points.empty()) return;
        const ViewPoint kept = part.points.back();
        if (kept.x == part.end.x && kept.y == part.end.y) return;
        occupancy_.TakeLine(kept, part.end);
        part.points.push_back(part.end);
    }

    /// Takes a box into the choice if it is free of other names and better than what stands there.
    /// @param owner  what a curve's name stands at; nullptr for a mark's
    void Weigh(std::optional<Choice>& best, Box box, double reluctance, const Owner* owner = nullptr) const {
        const Box inside = Inside(box, ground_);
        reluctance += (std::fabs(inside.left - box.left) + std::fabs(inside.top - box.top)) / 20;
        if (best && reluctance >= best->cost) return;
        const bool covers =
            std::ranges::any_of(found_.words, [&](const PlacedWords& other) { return other.box.Meets(inside); });
        if (covers || inside.width > ground_.width || inside.height > ground_.height) return;
        double cost = reluctance + kCoverCost * occupancy_.ShareTaken(inside);
        if (best && cost >= best->cost) return;
        if (owner != nullptr) cost += kDoubtCost * Doubt(*owner, inside);
        if (!best || cost < best->cost) best = Choice{inside, cost};
    }

    void Add(const std::string& text, const Choice& choice, Meaning meaning) {
        found_.words.push_back({text, choice.box, PlacedWords::Anchor::Centre, true, true, ColourOf(meaning)});
    }

    Box BoxOf(const std::string& text) const { return {0, 0, measure_.width(text) + 2 * kPadding, measure_.height}; }

    void PlaceMark(const SeenPart& part) {
        constexpr int kShifts = 6;
        const ViewPoint from = part.points.front();
        const ViewPoint to = part.points.back();
        const bool lies = std::fabs(to.x - from.x) >= std::fabs(to.y - from.y);
        Box box = BoxOf(part.name->name);
        std::optional<Choice> best;
        for (int shift = 0; shift < kShifts; ++shift) {
            for (const bool second : {false, true}) {
                if (lies) {
                    box.left = std::max(from.x, to.x) - kAside - box.width * (1 + shift);
                    box.top = second ? from.y + kPadding : from.y - kPadding - box.height;
                } else {
                    box.left = second ? from.x - kAside - box.width : from.x + kAside;
                    box.top = std::min(from.y, to.y) + kAside + box.height * shift;
                }
                // At the right edge it is looked for, whatever curve ends there; only another mark's name sends it
                // away.
                Weigh(best, box, shift * (lies ? kCoverCost : 0.5) + (second ? 0.1 : 0));
            }
        }
        if (best) Add(part.name->name, *best, part.name->meaning);
    }

    /// Points along a curve at which its name may stand: the best first, its end, its top, and some in between.
    std::vector<ViewPoint> AnchorsOf(const std::vector<ViewPoint>& points) const {
        constexpr int kBetween = 16;
        std::vector<ViewPoint> anchors{*std::ranges::min_element(points, {}, &ViewPoint::y), points.back()};
        double length = 0;
        for (std::size_t i = 1; i < points.size(); ++i) length += LengthOf(points[i - 1], points[i]);
        double way = 0;
        double next = length;
        int count = 0;
        for (std::size_t i = points.size() - 1; i > 0 && count < kBetween; --i) {
            const double piece = LengthOf(points[i - 1], points[i]);
            for (; count < kBetween && length - way - piece <= next - length / kBetween; ++count) {
                next -= length / kBetween;
                const double share = piece > 0 ? (length - way - next) / piece : 0;
                anchors.push_back({points[i].x + (points[i - 1].x - points[i].x) * share,
                                   points[i].y + (points[i - 1].y - points[i].y) * share});
            }
            way += piece;
        }
        return anchors;
    }

    static double LengthOf(ViewPoint from, ViewPoint to) {
        return std::sqrt((to.x - from.x) * (to.x - from.x) + (to.y - from.y) * (to.y - from.y));
    }

    static double SquareToPiece(ViewPoint point, ViewPoint from, ViewPoint to) {
        const double alongX = to.x - from.x;
        const double alongY = to.y - from.y;
        const double square = alongX * alongX + alongY * alongY;
        const double share = ((point.x - from.x) * alongX + (point.y - from.y) * alongY) / square;
        const double on = square > 0 ? std::clamp(share, 0.0, 1.0) : 0;
        const double x = from.x + alongX * on - point.x;
        const double y = from.y + alongY * on - point.y;
        return x * x + y * y;
    }

    /// Distance of a point to a curve, where that is below `limit`; else `limit`.
    static double DistanceWithin(double limit, ViewPoint point, const std::vector<ViewPoint>& curve) {
        double nearest = limit * limit;
        for (std::size_t i = 1; i < curve.size(); ++i) {
            const auto [left, right] = std::minmax(curve[i - 1].x, curve[i].x);
            if (point.x < left - limit || point.x > right + limit) continue;
            nearest = std::min(nearest, SquareToPiece(point, curve[i - 1], curve[i]));
        }
        return std::sqrt(nearest);
    }

    /// Whether a name beside a point of its curve could be taken for another's: 0 where all others are a line further
    /// away, 1 where one is as near, 2 where it is a line nearer. A held curve has the colour of its present twin.
    double Doubt(const Owner& owner, const Box& box) const {
        const ViewPoint middle{box.CentreX(), box.CentreY()};
        const double own = LengthOf(middle, owner.anchor);
        double nearest = own + measure_.height;
        for (const SeenPart& other : parts_) {
            const Meaning meaning = other.name->meaning;
            if (!IsCurve(meaning.role) || meaning.standing == Standing::Held || &other == owner.part) continue;
            nearest = DistanceWithin(nearest, middle, other.points);
        }
        return std::min(1 - (nearest - own) / measure_.height, 2.0);
    }

    std::optional<Choice> BestAtCurve(const SeenPart& part, Box box) const {
        std::optional<Choice> best;
        double order = 0;
        for (const ViewPoint& anchor : AnchorsOf(part.points)) {
            const Owner owner{&part, anchor};
            const double middleX = anchor.x - box.width / 2;
            const double middleY = anchor.y - box.height / 2;
            const double left = anchor.x - kAside - box.width;
            const double right = anchor.x + kAside;
            const double above = anchor.y - kAside - box.height;
            const double below = anchor.y + kAside;
            const ViewPoint corners[] = {{middleX, above}, {right, middleY}, {left, above}, {right, below},
                                         {right, above},   {left, middleY},  {left, below}, {middleX, below}};
            for (const ViewPoint& corner : corners) {
                Weigh(best, {corner.x, corner.y, box.width, box.height}, order, &owner);
                order += 0.005;
            }
        }
        return best;
    }

    /// @param shortened  gears are named by their numbers
    /// @return whether it could not be better with shorter names
    bool PlaceCurves(bool shortened) {
        bool good = true;
        for (const SeenPart& part : parts_) {
            const PartName& name = *part.name;
            if (part.points.empty() || !IsCurve(name.meaning.role)) continue;
            if (name.name == canvas_.PresentAxes().y.title) continue;
            if (name.meaning.standing != Standing::Held && !PlaceCurve(part, shortened)) good = false;
        }
        return good;
    }

    bool PlaceCurve(const SeenPart& part, bool shortened) {
        const PartName& name = *part.name;
        const int gear = GearOf(name.meaning.role);
        const std::string text = gear > 0 && shortened ? NumberText(std::int32_t{gear}) : name.name;
        const std::optional<Choice> best = BestAtCurve(part, BoxOf(text));
        const bool bearable = best && best->cost <= kBearable;
        if (bearable || (best && gear > 0)) {
            Add(text, *best, name.meaning);
        } else {
            found_.left.push_back(name);
        }
        return bearable || gear == 0;
    }

    static constexpr double kCoverCost = 10;  // of a name that lies on lines all over
    static constexpr double kDoubtCost = 1;   // of a name that stands as near to another curve
    static constexpr double kBearable = 3;

    const Canvas& canvas_;
    Box ground_;
    const TextMeasure& measure_;
    Occupancy occupancy_;
    std::vector<SeenPart> parts_;
    std::size_t last_ = 0;  // the part that the last line was of
    NamesOnPlot found_;
};

}  // namespace

NamesOnPlot PlaceNames(const Canvas& canvas, const PlotPlace& place, const TextMeasure& measure) {
    if (!place.hasAxes || canvas.Names().empty()) return {};
    return NamePlacer(canvas, place, measure).Place();
}

}  // namespace zolv
