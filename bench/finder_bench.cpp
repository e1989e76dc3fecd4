// A search for the best gearbox and a map of two inputs, on one thread and on two.

#include <benchmark/benchmark.h>

#include "finder_cases.h"
#include "search/sweep.h"

namespace zolv {
namespace {

/// Six gears and the final drive over 1000 m, the slowest of the cars with six gears.
void FindGearbox(benchmark::State& state) {
    FinderTask task;
    task.Present = FinderStart(12);
    task.Target = {GoalKind::OverDistance, 0, 0, 1000, {}};
    for (std::size_t i = 0; i < 7; ++i) task.Free.values[i] = true;
    std::int64_t evaluations = 0;
    for (auto _ : state) evaluations += FindBest(task, {}, {}, static_cast<unsigned>(state.range(0))).Evaluations;
    state.SetItemsProcessed(evaluations);
}

/// 100 x 100 runs to the end of the second distance.
void SweepMap(benchmark::State& state) {
    SweepTask task;
    task.Present = FinderStart(12);
    task.First = {SweepInput::FinalDrive, 2, 4.5, 100};
    task.Second = {SweepInput::Ratio3, 1.3, 2.1, 100};
    while (SweepResults()[task.Result].Name != "Time over Distance 2") ++task.Result;
    for (auto _ : state) benchmark::DoNotOptimize(Sweep(task, {}, {}, static_cast<unsigned>(state.range(0))));
    state.SetItemsProcessed(state.iterations() * 10'000);
}

void OnOneAndTwo(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgName("threads")->Arg(1)->Arg(2)->MeasureProcessCPUTime()->UseRealTime()->Unit(
        benchmark::kMillisecond);
}
BENCHMARK(FindGearbox)->Apply(OnOneAndTwo);
BENCHMARK(SweepMap)->Apply(OnOneAndTwo);

}  // namespace
}  // namespace zolv
