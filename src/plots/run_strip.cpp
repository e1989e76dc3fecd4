#include "plots/run_strip.h"

#include <algorithm>
#include <span>
#include <utility>

#include "desk/held.h"
#include "drawing/chart.h"
#include "gearing/gearing_state.h"
#include "gearing/run_columns.h"
#include "plots/plotted.h"
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
    ChartSeries piece{.name = GearName(gear), .role = GearRole(gear)};
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

ChartSeries HeldRun(int stride) {
    ChartSeries run{.name = NameIn(Standing::Held, texts.TextColSpeed), .role = Role::Speed, .held = true};
    const std::span<const AccelRow> rows = desk.Held->Run();
    for (int row = 0; row < static_cast<int>(rows.size()); row += stride) {
        const float speed = rows[static_cast<std::size_t>(row)][AccelColumn::Speed];
        run.points.push_back({row * kTimeStep, speed * units.Speed.Factor});
    }
    return run;
}

}  // namespace

void DrawRunStrip(Canvas& strip) {
    constexpr int kMostPoints = 150;
    strip.Clear();
    if (gearing.AccelLastRow <= 0) return;
    const int heldLast = desk.Held != nullptr ? static_cast<int>(desk.Held->Run().size()) - 1 : 0;
    const int last = std::max<int>(gearing.AccelLastRow, heldLast);
    const int stride = std::max(1, last / kMostPoints);
    Chart chart{.x = {.title = texts.TextColTime, .unit = "s", .to = last * kTimeStep},
                .y = {.title = texts.TextColSpeed, .unit = AxisUnit(units.Speed.Suffix)}};
    if (desk.Held != nullptr) chart.series.push_back(HeldRun(stride));
    for (int gear = 1; gear <= kGears; ++gear) {
        if (ChartSeries piece = PieceOf(gear, stride); !piece.points.empty()) chart.series.push_back(std::move(piece));
    }
    DrawChart(chart, strip);
}

}  // namespace zolv
