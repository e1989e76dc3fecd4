#include "drawing/plot_labels.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/curve_reading.h"
#include "drawing/reading_box.h"
#include "drawing/stroke_style.h"

namespace zolv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// Words in a font whose letters are 7 wide and 13 high.
TextMeasure Typewriter() {
    return {.height = 13, .width = [](std::string_view text) { return 7.0 * static_cast<double>(text.size()); }};
}

/// A plot of 0 to 100 s and 0 to 10 N with a unit of 6 and 40.
class PlotOfTime : public testing::Test {
protected:
    PlotOfTime() {
        canvas.SetAxes({.scale = 6, .step = 10, .start = 0, .end = 600, .title = "Time", .unit = "s"},
                       {.origin = 400, .scale = -40, .step = 1, .start = 400, .end = 0, .title = "Force", .unit = "N"});
    }

    void Curve(Meaning meaning, const std::string& name, double x1, double y1, double x2, double y2) {
        canvas.Line(meaning, x1 * 6, 400 - y1 * 40, x2 * 6, 400 - y2 * 40);
        canvas.AddName(meaning, name);
    }

    PlotPlace Place(ViewSize size) const { return PlaceOf(canvas, CanvasShape::Stretched, size, Typewriter()); }

    std::vector<PlacedWords> Words(ViewSize size = {600, 400}) const {
        return LabelsOf(canvas, Place(size), Typewriter()).words;
    }

    static const PlacedWords* Find(const std::vector<PlacedWords>& words, const std::string& text) {
        const auto found = std::ranges::find(words, text, &PlacedWords::text);
        return found == words.end() ? nullptr : &*found;
    }

    Canvas canvas{600, 400};
};

TEST_F(PlotOfTime, EveryNumberStandsWithoutTouchingAnother) {
    for (const ViewSize size : {ViewSize{600, 400}, ViewSize{300, 150}, ViewSize{1500, 900}, ViewSize{150, 100}}) {
        const std::vector<PlacedWords> words = Words(size);
        const PlotPlace place = Place(size);
        // Numbers, each of which has its tick, and two titles
        EXPECT_EQ(words.size(), place.xNumbers.numbers.size() + place.yNumbers.numbers.size() + 2);
        EXPECT_GE(place.xNumbers.numbers.size(), 2U);
        for (std::size_t i = 0; i < words.size(); ++i) {
            EXPECT_GE(words[i].box.left, 0) << words[i].text;
            const bool below = words[i].box.top > place.ground.Bottom();
            const bool beside = words[i].box.Right() < place.ground.left && !words[i].text.ends_with(']');
            using enum PlacedWords::Anchor;
            EXPECT_EQ(words[i].anchor, words[i].text.ends_with("[s]") ? Right
                                       : below                        ? Centre
                                       : beside                       ? Right
                                                                      : Left)
                << words[i].text;
            EXPECT_LE(words[i].box.Right(), size.width) << words[i].text;
            for (std::size_t k = i + 1; k < words.size(); ++k) {
                EXPECT_FALSE(words[i].box.Meets(words[k].box)) << words[i].text << " on " << words[k].text;
            }
        }
        EXPECT_NE(Find(words, "Force [N]"), nullptr);
        EXPECT_NE(Find(words, "Time [s]"), nullptr);
    }
}

TEST_F(PlotOfTime, ANameStandsWhereItsCurveIsSeen) {
    Curve(Role::Gear1, "1st", 0, 0, 40, 40);      // leaves the plot at 10 s and 10 N
    Curve(Role::Gear2, "2nd", 0, 0, 100, 9);      // all inside
    Curve(Role::Gear3, "3rd", 200, 12, 300, 15);  // all outside
    const PlotPlace place = Place({600, 400});
    const CanvasMapping mapping = place.Mapping();
    const std::vector<PlacedWords> words = Words();
    const PlacedWords* const first = Find(words, "1st");
    ASSERT_NE(first, nullptr);
    // Its own width and a little from the steep line, inside.
    EXPECT_LT(std::abs(first->box.CentreX() - mapping.X(30)), 60);
    EXPECT_GE(first->box.top, place.ground.top);
    EXPECT_EQ(first->colour, GearColour(1));
    EXPECT_NE(Find(words, "2nd"), nullptr);
    EXPECT_EQ(Find(words, "3rd"), nullptr);
}

TEST_F(PlotOfTime, NoNameDropsTheOthersAndNoneLiesOnAnother) {
    for (int gear = 1; gear <= 6; ++gear) {  // a bundle that ends in one corner
        Curve(GearRole(gear), "gear " + std::to_string(gear), 90, 9, 99, 9 + gear * 0.1);
    }
    // In a small view the last of a bundle may find no room; the others keep theirs.
    for (const auto& [size, least] : {std::pair(ViewSize{600, 400}, 6), std::pair(ViewSize{180, 120}, 5)}) {
        const std::vector<PlacedWords> words = Words(size);
        int named = 0;
        for (int gear = 1; gear <= 6; ++gear) {
            const std::string number = std::to_string(gear);
            const auto name = std::ranges::find_if(words, [&](const PlacedWords& candidate) {
                return candidate.text == "gear " + number || (candidate.onPlot && candidate.text == number);
            });
            if (name == words.end()) continue;
            ++named;
            for (const PlacedWords& other : words) {
                EXPECT_TRUE(&other == &*name || !other.box.Meets(name->box)) << name->text << " on " << other.text;
            }
        }
        EXPECT_GE(named, least);
    }
}

// The gears of a car whose mark line ends where the 4th does: its name must not be taken for another's.
TEST_F(PlotOfTime, ANameIsNearestToItsOwnCurve) {
    constexpr std::array<std::array<double, 2>, 5> kEnds{{{34, 8.3}, {49, 8.2}, {66, 7.8}, {80, 7.5}, {99, 8.1}}};
    for (int gear = 1; gear <= 5; ++gear) {
        const auto [x, y] = kEnds[static_cast<std::size_t>(gear) - 1];
        Curve(GearRole(gear), std::to_string(gear) + ". gear", 0, 0, x, y);
    }
    Curve(Role::PeakPower, "Peak of the power", 0, 7, 100, 7);
    for (const ViewSize size : {ViewSize{420, 200}, ViewSize{600, 400}}) {
        const CanvasMapping mapping = Place(size).Mapping();
        const std::vector<PlacedWords> words = Words(size);
        for (int gear = 1; gear <= 5; ++gear) {
            const PlacedWords* const name = Find(words, std::to_string(gear) + ". gear");
            if (name == nullptr) continue;
            std::array<double, 5> away{};
            for (std::size_t other = 0; other < 5; ++other) {
                const double dx = mapping.X(kEnds[other][0] * 6) - mapping.X(0);
                const double dy = mapping.Y(400 - kEnds[other][1] * 40) - mapping.Y(400);
                const double x = name->box.CentreX() - mapping.X(0);
                const double y = name->box.CentreY() - mapping.Y(400);
                const double along = std::clamp((x * dx + y * dy) / (dx * dx + dy * dy), 0.0, 1.0);
                away[other] = std::hypot(x - along * dx, y - along * dy);
            }
            EXPECT_EQ(std::ranges::min_element(away) - away.begin(), gear - 1) << name->text << " at " << size.width;
        }
    }
}

TEST_F(PlotOfTime, MarksAreNamedAtTheRightOrAtTheTop) {
    Curve(Role::Limiter, "Limiter", 0, 5, 100, 5);
    Curve(Role::PresentValue, "now", 30, 0, 30, 10);
    const PlotPlace place = Place({600, 400});
    const std::vector<PlacedWords> words = Words();
    const PlacedWords* const limiter = Find(words, "Limiter");
    const PlacedWords* const now = Find(words, "now");
    ASSERT_TRUE(limiter != nullptr && now != nullptr);
    EXPECT_NEAR(limiter->box.Right(), place.ground.Right(), 5);
    EXPECT_NEAR(limiter->box.Bottom(), place.Mapping().Y(200), 3);
    EXPECT_NEAR(now->box.top, place.ground.top, 5);
    EXPECT_NEAR(now->box.left, place.Mapping().X(180), 5);
}

// By hand: 100 units are 3.937 inches, so that lines of one inch, 25.4 units, are drawn in place of those recorded.
TEST_F(PlotOfTime, AnAreaHasItsMeasuresOnAGridOfRoundNumbers) {
    canvas = Canvas(600, 400);
    const PlotAxis x{.origin = 300, .scale = 25.4, .step = 3.937, .roundGrid = true, .start = 0, .end = 600};
    PlotAxis y = x;
    y.origin = 200;
    y.scale = -25.4;
    y.start = 400;
    y.end = 0;
    canvas.SetAxes(x, y);
    canvas.Line(Role::Grid, 400, 0, 400, 400);
    canvas.FillRectangle(Role::Area, 100, 100, 500, 300, kBlack);
    canvas.AddName(Role::AreaWidth, "wide");
    canvas.AddName(Role::AreaLength, "long");
    const PlotPlace place = PlaceOf(canvas, CanvasShape::Proportional, {600, 400}, Typewriter());
    const ShownGrid grid(canvas, place);
    EXPECT_FALSE(grid.Shows(canvas.Operations()[0]));
    const std::vector<DrawingOperation> lines = grid.RoundLines();
    ASSERT_EQ(lines.size(), place.xNumbers.numbers.size() + place.yNumbers.numbers.size());
    const double step = lines[1].x1 - lines[0].x1;
    EXPECT_NEAR(std::remainder(step, 25.4), 0, 1e-9);
    EXPECT_NEAR(lines[place.xNumbers.numbers.size()].y1 - lines[place.xNumbers.numbers.size() + 1].y1, step, 1e-9);

    const CanvasMapping mapping = place.Mapping();
    const std::vector<PlacedWords> words = LabelsOf(canvas, place, Typewriter()).words;
    const Box& wide = Find(words, "wide")->box;
    EXPECT_NEAR(wide.CentreX(), mapping.X(300), 1e-9);
    EXPECT_LT(wide.Bottom(), mapping.Y(300));
    EXPECT_GT(wide.top, mapping.Y(250));
    const Box& tall = Find(words, "long")->box;
    EXPECT_NEAR(tall.CentreY(), mapping.Y(200), 1e-9);
    EXPECT_LT(tall.Right(), mapping.X(500));
}

// A grid with round steps has numbers at 1, 2, 2.5 or 5 times a power of ten, one with others at multiples of its own.
TEST_F(PlotOfTime, NumbersOfAnAxisAreRound) {
    for (const double step : {0.1, 0.25, 1.0, 2.0, 2.5, 5.0, 3.0, 40.0}) {
        for (const double scale : {0.3, 1.0, 3.0, 11.0, 47.0}) {
            const PlotAxis axis{.scale = scale, .step = step, .start = 0, .end = 600};
            const AxisNumbers along = NumbersAlong(
                axis, 0, 600, 1, [](const std::string& text) { return 7.0 * static_cast<double>(text.size()) + 10; });
            if (along.numbers.size() < 2) continue;
            const double between = (along.numbers[1].coordinate - along.numbers[0].coordinate) / scale;
            const double digits = between / std::pow(10, std::floor(std::log10(between) + 1e-9));
            const bool isRound = std::ranges::any_of(std::array{1.0, 2.0, 2.5, 5.0},
                                                     [&](double round) { return std::abs(digits - round) < 1e-6; });
            const bool ofItsGrid = step == 3 || step == 40;
            EXPECT_TRUE(isRound || (ofItsGrid && std::abs(std::remainder(between, step)) < 1e-6))
                << between << " for steps of " << step << " at " << scale;
        }
    }
}

// Lines that lie closer than four pixels would be a grey ground: only those with numbers are painted.
TEST_F(PlotOfTime, ADenseGridIsPaintedAtItsNumbers) {
    canvas.SetAxes({.scale = 6, .step = 0.25, .start = 0, .end = 600},
                   {.origin = 400, .scale = -40, .step = 1, .start = 400});
    const PlotPlace place = Place({600, 400});
    const ShownGrid grid(canvas, place);
    const auto shows = [&](double x1, double y1, double x2, double y2) {
        return grid.Shows({DrawingOperation::Kind::Line, kBlack, 1, Role::Grid, 0, x1, y1, x2, y2});
    };
    const double numbered = place.xNumbers.numbers[1].coordinate;
    EXPECT_TRUE(shows(numbered, 0, numbered, 400));
    EXPECT_FALSE(shows(numbered + 1.5, 0, numbered + 1.5, 400));  // a quarter of a second on
    EXPECT_TRUE(shows(0, 120, 600, 120));
    EXPECT_TRUE(shows(0, 160, 600, 160));
}

TEST_F(PlotOfTime, TheLegendTellsWhatIsHeld) {
    Curve(Role::NetForce, "now", 0, 2, 100, 8);
    Curve({Role::NetForce, Standing::Held}, "before", 0, 1, 100, 7);
    canvas.AddLegend({"the other", {Role::NetForce, Standing::Held}});
    const PlotLabels labels = LabelsOf(canvas, Place({600, 400}), Typewriter());
    ASSERT_EQ(labels.strokes.size(), 1U);
    EXPECT_EQ(labels.strokes[0].meaning, (Meaning{Role::NetForce, Standing::Held}));
    EXPECT_EQ(Find(labels.words, "before"), nullptr);
    EXPECT_LT(Find(labels.words, "the other")->box.Bottom(), Place({600, 400}).ground.top);
    EXPECT_EQ(Find(labels.words, "the other")->anchor, PlacedWords::Anchor::Left);  // behind its stroke
    EXPECT_GT(Find(labels.words, "the other")->box.left, labels.strokes[0].box.Right());
    EXPECT_TRUE(Find(labels.words, "now")->onPlot);
}

// By hand: at 25 s the first has risen to a quarter of 8 N, the second has 3 N, and the third begins later.
TEST_F(PlotOfTime, ReadsEachCurveThatPasses) {
    Curve(Role::Gear1, "1st", 0, 0, 100, 8);
    Curve(Role::Gear2, "2nd", 25, 9, 25, 3);  // a drop, and on from there
    canvas.Line(Role::Gear2, 150, 280, 300, 200);
    Curve(Role::Gear3, "3rd", 26, 1, 100, 1);
    Curve(Role::Limiter, "Limiter", 0, 5, 100, 5);
    EXPECT_THAT(ReadingsAt(canvas, 150, 1),
                ElementsAre(CurveReading{"1st", "2 N", Role::Gear1}, CurveReading{"2nd", "3 N", Role::Gear2}));
    EXPECT_THAT(ReadingsAt(canvas, 150, 10), Not(IsEmpty()));
    // Held curves: the first's goes with it, the second's stands apart.
    Curve({Role::Gear1, Standing::Held}, "1st, held", 0, 0, 100, 8);
    Curve({Role::Gear2, Standing::Held}, "2nd, held", 0, 0, 50, 2);
    EXPECT_THAT(ReadingsAt(canvas, 150, 1),
                ElementsAre(CurveReading{"1st", "2 N", Role::Gear1}, CurveReading{"2nd", "3 N", Role::Gear2},
                            CurveReading{"2nd, held", "1 N", {Role::Gear2, Standing::Held}}));
    Canvas other(100, 100);
    EXPECT_FALSE(ShareX(canvas, other));
    other.SetAxes({.scale = 1, .title = "Time", .unit = "s"}, {.scale = 1});
    EXPECT_TRUE(ShareX(canvas, other));
    other.SetAxes({.scale = 1, .title = "Time", .unit = "min"}, {.scale = 1});
    EXPECT_FALSE(ShareX(canvas, other));
}

TEST_F(PlotOfTime, NamesOfPointsStayOnTheGround) {
    for (const double y : {0.0, 200.0, 400.0}) {
        canvas.Clear();
        canvas.SetAxes({.scale = 6, .step = 10, .start = 0, .end = 600, .title = "Time", .unit = "s"},
                       {.origin = 400, .scale = -40, .step = 1, .start = 400, .end = 0, .title = "Force", .unit = "N"});
        canvas.FillCircle(Role::PresentPoint, y == 0 ? 590 : 300, y, 5, kBlack);
        canvas.AddName(Role::PresentPoint, "Present");
        const std::vector<PlacedWords> words = Words();
        const PlacedWords* const name = Find(words, "Present");
        ASSERT_NE(name, nullptr);
        EXPECT_TRUE(Inside(name->box, Place({600, 400}).ground) == name->box) << y;
    }
}

TEST_F(PlotOfTime, ReadingsStandWhereTheyCoverNoCurve) {
    const PlotPlace place = Place({600, 400});
    const Box& ground = place.ground;
    const Box view{0, 0, 600, 400};
    constexpr ViewSize kSize{120, 60};
    const ViewPoint middle{ground.CentreX(), ground.CentreY()};
    const auto box = [&](ViewPoint pointer) { return ReadingBox(canvas, place, pointer, kSize, view); };
    const auto side = [&](ViewPoint pointer) {
        const Box found = box(pointer);
        return std::string(found.Bottom() < pointer.y ? "above " : "below ") +
               (found.left > pointer.x ? "right" : "left");
    };

    EXPECT_EQ(side(middle), "above right");
    EXPECT_EQ(side({ground.Right() - 5, middle.y}), "above left");
    EXPECT_EQ(side({middle.x, ground.top + 5}), "below right");
    EXPECT_EQ(side({ground.Right() - 5, ground.top + 5}), "below left");

    // A falling curve through the pointer leaves the room above right; one that rises from there does not. Where one
    // falls and one rises on both sides, a corner of the ground is free.
    Curve({Role::Torque}, "falling", 25, 7.5, 75, 2.5);
    EXPECT_EQ(side(middle), "above right");
    Curve({Role::Power}, "rising", 50, 5, 75, 7.5);
    EXPECT_EQ(side(middle), "below left");
    Curve({Role::Power}, "rising", 25, 2.5, 50, 5);
    const Box corner = box(middle);
    EXPECT_NEAR(corner.Right(), ground.Right(), 10);
    EXPECT_NEAR(corner.Bottom(), ground.Bottom(), 10);
    EXPECT_EQ(side({ground.Right() - 5, ground.Bottom() - 5}), "above left");
}

}  // namespace
}  // namespace zolv
