#include "drawing/plot_labels.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "drawing/curve_names.h"

namespace zolv {
namespace {

using Anchor = PlacedWords::Anchor;

constexpr double kGapBetween = 14;  // of legend entries
constexpr double kStroke = 20;      // length of a legend's stroke
constexpr double kPadding = 5;      // inside a box
constexpr double kBesideNumbers = kFrame + kTick + kNumberGap;
constexpr double kFreeSide = 10;  // right of the ground, that a last number may take

/// Gathers the labels of one drawing.
class Labeller {
public:
    Labeller(const Canvas& canvas, const PlotPlace& place, const TextMeasure& measure)
        : axes_(canvas.PresentAxes()), place_(place), ground_(place.ground), measure_(measure) {}

    void Numbers() {
        const CanvasMapping mapping = place_.Mapping();
        const double top = ground_.Bottom() + kBesideNumbers;
        for (const AxisNumber& number : place_.xNumbers.numbers) {
            const double width = measure_.width(number.text);
            const double left = std::min(mapping.X(number.coordinate) - width / 2, ground_.Right() + kFreeSide - width);
            AddAround(number.text, {left, top, width, measure_.height}, Anchor::Centre);
        }
        const double right = ground_.left - kBesideNumbers;
        for (const AxisNumber& number : place_.yNumbers.numbers) {
            const double width = measure_.width(number.text);
            AddAround(number.text,
                      {right - width, mapping.Y(number.coordinate) - measure_.height / 2, width, measure_.height},
                      Anchor::Right);
        }
    }

    void Titles() {
        const std::string ofX = TitleWithUnit(axes_.x);
        const double width = measure_.width(ofX);
        AddAround(
            ofX, {ground_.Right() - width, ground_.Bottom() + kBesideNumbers + measure_.height, width, measure_.height},
            Anchor::Right);
        const std::string ofY = TitleWithUnit(axes_.y);
        titleOfY_ = {0, ground_.top - kFrame - 1.5 * measure_.height, measure_.width(ofY), measure_.height};
        titleOfY_.left = std::max(1.0, ground_.left - kBesideNumbers - titleOfY_.width);
        AddAround(ofY, titleOfY_, Anchor::Left);
    }

    /// The numbers and the title of a map's bar.
    void Scale(const Canvas& canvas) {
        if (!canvas.Scale()) return;
        const ColourScale& scale = *canvas.Scale();
        const Box& bar = place_.scale;
        const double left = bar.Right() + kBesideNumbers;
        double right = left;
        for (const double number : NumbersOfScale(scale)) {
            const double share = scale.to > scale.from ? (number - scale.from) / (scale.to - scale.from) : 0.5;
            const std::string text = ScaleText(scale, number);
            const double width = measure_.width(text);
            right = std::max(right, left + width);
            AddAround(text, {left, bar.Bottom() - share * bar.height - measure_.height / 2, width, measure_.height},
                      Anchor::Left);
        }
        const std::string title = scale.unit.empty() ? scale.title : scale.title + " [" + scale.unit + ']';
        const double width = measure_.width(title);
        AddAround(title, {right - width, titleOfY_.top, width, measure_.height}, Anchor::Right);
    }

    /// The names of a map's points, beside them.
    void Points(const Canvas& canvas) {
        const CanvasMapping mapping = place_.Mapping();
        for (const PartName& name : canvas.Names()) {
            if (name.meaning.role != Role::PresentPoint && name.meaning.role != Role::BestPoint) continue;
            const auto point = std::ranges::find(canvas.Operations(), name.meaning, &DrawingOperation::meaning);
            if (point == canvas.Operations().end()) continue;
            const double aside = std::fabs(point->x2 * mapping.scaleX) + kPadding / 2;
            const double x = mapping.X(point->x1);
            Box box{x + aside, mapping.Y(point->y1) - measure_.height / 2, measure_.width(name.name), measure_.height};
            if (box.Right() > ground_.Right()) box.left = x - aside - box.width;
            box.top = std::clamp(box.top, ground_.top, std::max(ground_.top, ground_.Bottom() - box.height));
            for (const PlacedWords& words : labels_.words) {  // two points may be one
                if (words.onPlot && words.box.Meets(box)) box.top = words.box.Bottom();
            }
            labels_.words.push_back({name.name, box, Anchor::Left, true, true});
        }
    }

    /// The measures of an area, inside it along two of its edges, or beside it where it is too small.
    void Measures(const Canvas& canvas) {
        const auto area = std::ranges::find(canvas.Operations(), Meaning(Role::Area), &DrawingOperation::meaning);
        if (area == canvas.Operations().end()) return;
        const CanvasMapping mapping = place_.Mapping();
        const double left = std::max(mapping.X(std::min(area->x1, area->x2)), ground_.left);
        const double right = std::min(mapping.X(std::max(area->x1, area->x2)), ground_.Right());
        const double top = std::max(mapping.Y(std::min(area->y1, area->y2)), ground_.top);
        const double bottom = std::min(mapping.Y(std::max(area->y1, area->y2)), ground_.Bottom());
        for (const PartName& name : canvas.Names()) {
            const double width = measure_.width(name.name);
            const bool fits = right - left > 2 * width + 4 * kPadding && bottom - top > 3 * measure_.height;
            Box box{0, 0, width, measure_.height};
            if (name.meaning.role == Role::AreaWidth) {
                box.left = (left + right - width) / 2;
                box.top = fits ? bottom - measure_.height - kPadding / 2 : bottom + kPadding / 2;
            } else if (name.meaning.role == Role::AreaLength) {
                box.left = fits ? right - width - kPadding : right + kPadding;
                box.top = (top + bottom - measure_.height) / 2;
            } else {
                continue;
            }
            labels_.words.push_back({name.name, box, Anchor::Centre, true, !fits, fits ? kWhite : kWordsInk});
        }
    }

    void Names(NamesOnPlot names) {
        Legend(names);
        std::ranges::move(names.words, std::back_inserter(labels_.words));
    }

    PlotLabels Labels() { return std::move(labels_); }

private:
    void AddAround(std::string text, const Box& box, Anchor anchor) {
        if (!text.empty()) labels_.words.push_back({std::move(text), box, anchor});
    }

    double WidthOf(const PartName& entry) const { return kStroke + kPadding + measure_.width(entry.name); }

    void AddEntry(const PartName& entry, double left, double top, bool onPlot) {
        labels_.strokes.push_back({{left, top, kStroke, measure_.height}, entry.meaning});
        labels_.words.push_back({entry.name,
                                 {left + kStroke + kPadding, top, measure_.width(entry.name), measure_.height},
                                 Anchor::Left,
                                 onPlot});
    }

    /// In a line above the ground where there is room beside the title, else on the plot.
    void Legend(const NamesOnPlot& names) {
        if (names.left.empty()) return;
        double width = -kGapBetween;
        for (const PartName& entry : names.left) width += WidthOf(entry) + kGapBetween;
        double left = ground_.Right() - width;
        if (left <= std::max(titleOfY_.Right(), ground_.left) + kGapBetween) return LegendInside(names);
        for (const PartName& entry : names.left) {
            AddEntry(entry, left, titleOfY_.top, false);
            left += WidthOf(entry) + kGapBetween;
        }
    }

    /// In the corner where it covers the fewest names, with as many entries as fit.
    void LegendInside(const NamesOnPlot& names) {
        double widest = 0;
        for (const PartName& entry : names.left) widest = std::max(widest, WidthOf(entry));
        const auto room =
            static_cast<std::size_t>(std::max(0.0, (ground_.height - 4 * kPadding) / std::max(1.0, measure_.height)));
        const std::size_t count = std::min(names.left.size(), room);
        if (count == 0 || widest + 4 * kPadding > ground_.width) return;
        Box best{0, 0, widest + 2 * kPadding, static_cast<double>(count) * measure_.height + 2 * kPadding};
        std::ptrdiff_t fewest = -1;
        for (const double left : {ground_.Right() - best.width - kPadding, ground_.left + kPadding}) {
            for (const double top : {ground_.top + kPadding, ground_.Bottom() - best.height - kPadding}) {
                const Box box{left, top, best.width, best.height};
                const auto covered =
                    std::ranges::count_if(names.words, [&](const PlacedWords& name) { return name.box.Meets(box); });
                if (fewest >= 0 && covered >= fewest) continue;
                fewest = covered;
                best = box;
            }
        }
        labels_.veil = best;
        for (std::size_t i = 0; i < count; ++i) {
            AddEntry(names.left[i], best.left + kPadding,
                     best.top + kPadding + static_cast<double>(i) * measure_.height, true);
        }
    }

    const Canvas::Axes& axes_;
    const PlotPlace& place_;
    Box ground_;
    const TextMeasure& measure_;
    Box titleOfY_;
    PlotLabels labels_;
};

}  // namespace

PlotLabels LabelsOf(const Canvas& canvas, const PlotPlace& place, const TextMeasure& measure) {
    if (!place.hasAxes) return {};
    Labeller labeller(canvas, place, measure);
    labeller.Numbers();
    labeller.Titles();
    labeller.Scale(canvas);
    labeller.Measures(canvas);
    labeller.Points(canvas);
    NamesOnPlot names = PlaceNames(canvas, place, measure);
    names.left.insert(names.left.begin(), canvas.Legend().begin(), canvas.Legend().end());
    labeller.Names(std::move(names));
    return labeller.Labels();
}

}  // namespace zolv
