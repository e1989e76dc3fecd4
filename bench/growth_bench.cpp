// How time and memory grow with the size of the work: straight lines, or something is wrong.

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <vector>

#include "drawing/canvas.h"
#include "drawing/svg.h"
#include "fields/all_windows.h"
#include "gearing/acceleration_page.h"
#include "gearing/gearing_state.h"
#include "model/acceleration_run.h"
#include "started_program.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

/// A run of some `rows` rows: one that may end anywhere, of a car whose air resistance is raised until it does.
AccelerationSetup SetupOf(int rows) {
    AccelerationSetup setup = PresentAccelerationSetup();
    setup.LongDistance = 0;
    std::vector<AccelRow> room(kAccelRows);
    while (Accelerate(setup, std::span<AccelRow, kAccelRows>(room)).LastRow >= rows) setup.Car.Air.Cd *= 1.02;
    return setup;
}

void RunByRows(benchmark::State& state) {
    StartProgram();
    const AccelerationSetup setup = SetupOf(static_cast<int>(state.range(0)));
    int rows = 0;
    for (auto _ : state) rows = Accelerate(setup, gearing.AccelRows).LastRow + 1;
    state.counters["size"] = rows;
    state.counters["bytes"] = rows * static_cast<double>(sizeof(AccelRow));
}
BENCHMARK(RunByRows)->Arg(225)->Arg(450)->Arg(900)->Arg(kAccelRows)->Unit(benchmark::kMicrosecond);

/// The page's own run ends behind its long distance alone, so that it starts with more rows.
void RunAndTableByRows(benchmark::State& state) {
    StartProgram();
    const double drag = vehicle.CurrentCar.Cd;
    for (double factor = 1; gearing.AccelLastRow >= state.range(0); factor *= 1.005) {
        vehicle.CurrentCar.Cd = static_cast<float>(drag * factor);
        RunAcceleration();
    }
    for (auto _ : state) RunAcceleration();
    state.counters["size"] = gearing.AccelLastRow + 1;
    state.counters["bytes"] = static_cast<double>(Zolv.AccelerationData.Text().size());
}
BENCHMARK(RunAndTableByRows)->Arg(1200)->Arg(1600)->Arg(kAccelRows)->Unit(benchmark::kMicrosecond);

void DrawLines(Canvas& canvas, std::int64_t count) {
    canvas.Clear();
    for (std::int64_t i = 0; i < count; ++i) {
        const auto x = static_cast<double>(i % 400);
        canvas.Line(i % 2 == 0 ? Role::Resistance : Role::NetForce, x, 0.1 * x, x + 1, 200 - 0.3 * x,
                    i % 2 == 0 ? kRed : kBlue);
    }
}

/// As the windows draw: over what stood there before. The memory is that of the largest drawing so far.
void CanvasByOperations(benchmark::State& state) {
    Canvas canvas(400, 200);
    DrawLines(canvas, state.range(0));
    for (auto _ : state) DrawLines(canvas, state.range(0));
    state.counters["size"] = static_cast<double>(state.range(0));
    state.counters["bytes"] = static_cast<double>(canvas.Operations().size() * sizeof(DrawingOperation));
}
BENCHMARK(CanvasByOperations)->RangeMultiplier(10)->Range(1000, 1'000'000)->Unit(benchmark::kMicrosecond);

/// For the first time, when the system hands out each page of memory, and zeroes it, as it is touched: this is what an
/// operation of a large drawing takes, and not the drawing.
void NewCanvasByOperations(benchmark::State& state) {
    for (auto _ : state) {
        Canvas canvas(400, 200);
        DrawLines(canvas, state.range(0));
    }
    state.counters["size"] = static_cast<double>(state.range(0));
    state.counters["bytes"] = static_cast<double>(state.range(0)) * sizeof(DrawingOperation);
}
BENCHMARK(NewCanvasByOperations)->RangeMultiplier(10)->Range(1000, 1'000'000)->Unit(benchmark::kMicrosecond);

void PictureByOperations(benchmark::State& state) {
    Canvas canvas(400, 200);
    DrawLines(canvas, state.range(0));
    std::size_t size = 0;
    for (auto _ : state) size = SvgOf(canvas).size();
    state.counters["size"] = static_cast<double>(state.range(0));
    state.counters["bytes"] = static_cast<double>(size);
}
BENCHMARK(PictureByOperations)->RangeMultiplier(10)->Range(1000, 100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zolv
