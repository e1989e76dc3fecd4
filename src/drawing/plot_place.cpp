#include "drawing/plot_place.h"

#include <algorithm>
#include <cmath>

#include "text/number_text.h"

namespace zolv {
namespace {

constexpr double kFreeSide = 10;  // right of a plot, for half of a last number
constexpr double kBarWidth = 16;
constexpr double kBarGap = 14;  // between the plot and the bar

struct Margins {
    double left = 0, top = 0, right = 0, bottom = 0;
};

AxisNumbers NumbersOfX(const PlotPlace& place, const PlotAxis& axis, const TextMeasure& measure) {
    const double gap = measure.width("0") * 1.5;
    return NumbersAlong(axis, place.part.left, place.part.right, place.Mapping().scaleX,
                        [&](const std::string& text) { return measure.width(text) + gap; });
}

AxisNumbers NumbersOfY(const PlotPlace& place, const PlotAxis& axis, const TextMeasure& measure) {
    return NumbersAlong(axis, place.part.top, place.part.bottom, place.Mapping().scaleY,
                        [room = measure.height * 1.3](const std::string&) { return room; });
}

/// One grid for two axes of one scale: the steps of the one that has the wider ones.
void UseOneGrid(PlotPlace& place, const Canvas::Axes& axes, const TextMeasure& measure) {
    const auto stepOf = [](const AxisNumbers& along, const PlotAxis& axis) {
        const std::vector<AxisNumber>& numbers = along.numbers;
        if (numbers.size() < 2) return 0.0;
        return std::fabs((numbers[1].coordinate - numbers[0].coordinate) / axis.scale);
    };
    const double step = std::max(stepOf(place.xNumbers, axes.x), stepOf(place.yNumbers, axes.y));
    const auto inSteps = [&](PlotAxis axis) {
        axis.roundGrid = false;
        axis.step = step;
        return axis;
    };
    place.xNumbers = NumbersOfX(place, inSteps(axes.x), measure);
    place.yNumbers = NumbersOfY(place, inSteps(axes.y), measure);
}

/// Right of a map, for the bar and its numbers.
double RoomForScale(const Canvas& canvas, const TextMeasure& measure) {
    if (!canvas.Scale()) return 0;
    double widest = measure.width("0000");
    for (const double number : NumbersOfScale(*canvas.Scale())) {
        widest = std::max(widest, measure.width(ScaleText(*canvas.Scale(), number)));
    }
    return kBarGap + kBarWidth + kTick + kNumberGap + 2 * kFrame + widest;
}

/// Above stands the title of y, so high that a number at the top of the axis fits below it; below the numbers of x and
/// their title.
Margins MarginsFor(const Canvas& canvas, const AxisNumbers& yNumbers, const TextMeasure& measure) {
    double widest = measure.width("00000");
    for (const AxisNumber& number : yNumbers.numbers) widest = std::max(widest, measure.width(number.text));
    const double beside = kTick + kNumberGap + kFrame;
    return {widest + beside + 1, measure.height * 1.5 + kFrame, std::max(kFreeSide, RoomForScale(canvas, measure)),
            2 * measure.height + beside};
}

/// The largest rectangle of the part's proportions in the middle of `room`.
Box KeepProportions(const CanvasPart& part, const Box& room) {
    const double scale = std::min(room.width / part.Width(), room.height / part.Height());
    const double width = part.Width() * scale;
    const double height = part.Height() * scale;
    return {room.CentreX() - width / 2, room.CentreY() - height / 2, width, height};
}

/// A view smaller than its margins still has a ground to paint on.
Box Within(const ViewSize& size, const Margins& margins) {
    return {margins.left, margins.top, std::max(1.0, size.width - margins.left - margins.right),
            std::max(1.0, size.height - margins.top - margins.bottom)};
}

}  // namespace

std::vector<double> NumbersOfScale(const ColourScale& scale) {
    if (!(scale.step > 0)) return {scale.from};
    constexpr double kRounding = 1e-9;
    std::vector<double> numbers;
    for (double k = std::ceil(scale.from / scale.step - kRounding); k * scale.step <= scale.to + kRounding; ++k) {
        numbers.push_back(k * scale.step);
    }
    return numbers;
}

std::string ScaleText(const ColourScale& scale, double value) {
    const int decimals =
        scale.step > 0 ? std::clamp(-static_cast<int>(std::floor(std::log10(scale.step) + 1e-9)), 0, 9) : 3;
    return RoundedText(value, decimals);
}

CanvasShape ShapeOf(const Canvas& canvas) {
    const Canvas::Axes& axes = canvas.PresentAxes();
    const bool oneScale = std::fabs(axes.x.scale) == std::fabs(axes.y.scale);
    return axes.present && !oneScale ? CanvasShape::Stretched : CanvasShape::Proportional;
}

PlotPlace PlaceOf(const Canvas& canvas, CanvasShape shape, ViewSize size, const TextMeasure& measure) {
    const Canvas::Axes& axes = canvas.PresentAxes();
    PlotPlace place{.part = UsedPart(canvas), .hasAxes = axes.present};
    const bool proportional = shape == CanvasShape::Proportional;
    if (proportional && !axes.present) {
        place.ground = KeepProportions(place.part, Within(size, {kFrame, kFrame, kFrame, kFrame}));
        return place;
    }
    // The numbers of y need the height of the ground only, and their width gives its left side.
    place.ground = Within(size, MarginsFor(canvas, {}, measure));
    if (axes.present) place.yNumbers = NumbersOfY(place, axes.y, measure);
    place.ground = Within(size, MarginsFor(canvas, place.yNumbers, measure));
    if (proportional) place.ground = KeepProportions(place.part, place.ground);
    if (!axes.present) return place;
    place.xNumbers = NumbersOfX(place, axes.x, measure);
    place.yNumbers = NumbersOfY(place, axes.y, measure);
    if (axes.x.roundGrid && axes.y.roundGrid) UseOneGrid(place, axes, measure);
    if (canvas.Scale()) {
        place.scale = {place.ground.Right() + kFrame + kBarGap, place.ground.top, kBarWidth, place.ground.height};
    }
    return place;
}

}  // namespace zolv
