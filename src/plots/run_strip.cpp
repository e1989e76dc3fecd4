#include "plots/run_strip.h"

#include <algorithm>
#include <utility>

#include "drawing/chart.h"
#include "gearing/gearing_state.h"
#include "gearing/run_columns.h"
#include "text/texts.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

ChartPoint PointAt(int row) {
    const float speed = gearing.AccelRows[static_cast<std::size_t>(row)][AccelColumn::Speed];
    return {row * kTimeStep, speed * units.Speed.Factor};
}

/// The rows driven in one gear, thinned to every `stride`th beside the first and the last; it begins where the gear
/// before it ends.
ChartSeries PieceOf(int gear, int stride) {
    ChartSeries piece{.name = texts.GearNames[static_cast<std::size_t>(gear)], .role = GearRole(gear)};
    const int last = gearing.AccelLastRow;
    for (int row = 0; row <= last; ++row) {
        if (GearOfRow(row) != gear) continue;
        const bool isFirst = row == 0 || GearOfRow(row - 1) != gear;
        const bool isLast = row == last || GearOfRow(row + 1) != gear;
        if (isFirst && row > 0) piece.points.push_back(PointAt(row - 1));
        if (isFirst || isLast || row % stride == 0) piece.points.push_back(PointAt(row));
    }
    return piece;
}

}  // namespace

void DrawRunStrip(Canvas& strip) {
    constexpr int kMostPoints = 150;
    strip.Clear();
    if (gearing.AccelLastRow <= 0) return;
    const int stride = std::max(1, gearing.AccelLastRow / kMostPoints);
    Chart chart{.x = {.title = texts.TextColTime, .unit = "s", .to = gearing.AccelLastRow * kTimeStep},
                .y = {.title = texts.TextColSpeed, .unit = AxisUnit(units.Speed.Suffix)}};
    for (int gear = 1; gear <= kGears; ++gear) {
        if (ChartSeries piece = PieceOf(gear, stride); !piece.points.empty()) chart.series.push_back(std::move(piece));
    }
    DrawChart(chart, strip);
}

}  // namespace zolv
