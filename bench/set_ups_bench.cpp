// Set-ups through the model alone, without fields or files: one by Evaluate and by the parts that it is composed of,
// and what a search for the best of ten thousand costs, on one thread and on two.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <memory>
#include <thread>
#include <vector>

#include "desk/present.h"
#include "gearing/gearing_state.h"
#include "model/acceleration_run.h"
#include "model/aero_model.h"
#include "model/engine_curve.h"
#include "model/gear_speeds.h"
#include "model/ratio_search.h"
#include "model/sheet.h"
#include "model/shift_points.h"
#include "started_program.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

constexpr std::size_t kSetUps = 10'000;

/// The car of a start, as a value and as the parts that Evaluate is composed of.
struct Base {
    SetUp setUp;
    AccelerationSetup setup;
    ShiftRules rules;
};

/// Gears that differ from one set-up to the next, all in falling order.
ByGear RatiosOf(const Base& base, std::size_t number) {
    ByGear ratios = base.setup.Ratios;
    for (int gear = 1; gear <= kGears; ++gear) {
        const auto part = static_cast<double>((number * static_cast<std::size_t>(gear + 2)) % 101) / 101;
        ratios[gear] = static_cast<float>(ratios[gear] * (1 + 0.02 * part));
    }
    return ratios;
}

/// Engine, shift points and speeds of the gears; from the speeds back to the ratios; top speed; the run.
double EndSpeedOf(const Base& base, std::size_t number, std::vector<AccelRow>& rows) {
    AccelerationSetup setup = base.setup;
    setup.Curve = FittedCurve(setup.Motor);
    const ByGear ratios = RatiosOf(base, number);
    const ByGear revs = ShiftPoints(base.rules, ratios);
    ByGear speeds{};
    ByGear factors{};
    for (int gear = 1; gear <= kGears; ++gear) {
        const SettledGear settled = SettleGear(setup.Car, revs[gear], ratios[gear], setup.FinalDrive, kForwardRounds);
        speeds[gear] = settled.Speed;
        factors[gear] = settled.SpeedFactor;
    }
    const FoundRatios found = SearchRatios(base.rules, speeds, factors, static_cast<float>(setup.FinalDrive));
    setup.Ratios = found.Ratios;
    setup.ShiftRevs = found.Revs;
    setup.FinalDrive = found.FinalDrive;
    const TopSpeedResult top = TopSpeedOf(setup.Car.Air, setup.Motor.Power * setup.Efficiency);
    const AccelerationResult run = Accelerate(setup, std::span<AccelRow, kAccelRows>(rows));
    return run.Speed + static_cast<double>(top.speed);
}

double EndSpeedByEvaluate(const SetUp& setUp, std::size_t number, RunRows& rows) {
    SetUp other = setUp;
    for (int gear = 1; gear <= kGears; ++gear) {
        const auto part = static_cast<double>((number * static_cast<std::size_t>(gear + 2)) % 101) / 101;
        other.Ratios[gear] *= 1 + 0.02 * part;
    }
    const Sheet sheet = Evaluate(other, rows);
    return sheet.Run.Speed + static_cast<double>(sheet.Top.speed);
}

std::vector<double> EndSpeeds(const SetUp& setUp, std::size_t threads) {
    std::vector<double> speeds(kSetUps);
    std::vector<std::thread> workers;
    for (std::size_t worker = 0; worker < threads; ++worker) {
        workers.emplace_back([&, worker] {
            const auto rows = std::make_unique<RunRows>();
            const std::size_t end = kSetUps * (worker + 1) / threads;
            for (std::size_t i = kSetUps * worker / threads; i < end; ++i) {
                speeds[i] = EndSpeedByEvaluate(setUp, i, *rows);
            }
        });
    }
    for (std::thread& worker : workers) worker.join();
    return speeds;
}

Base PresentBase() {
    StartProgram();
    return {PresentSetUp(), PresentAccelerationSetup(), PresentShiftRules()};
}

void EvaluateSetUp(benchmark::State& state) {
    const Base base = PresentBase();
    const auto rows = std::make_unique<RunRows>();
    std::size_t number = 0;
    for (auto _ : state) benchmark::DoNotOptimize(EndSpeedByEvaluate(base.setUp, ++number, *rows));
}
BENCHMARK(EvaluateSetUp)->Unit(benchmark::kMicrosecond);

void PartsOfSetUp(benchmark::State& state) {
    const Base base = PresentBase();
    std::vector<AccelRow> rows(kAccelRows);
    std::size_t number = 0;
    for (auto _ : state) benchmark::DoNotOptimize(EndSpeedOf(base, ++number, rows));
}
BENCHMARK(PartsOfSetUp)->Unit(benchmark::kMicrosecond);

void TenThousandSetUps(benchmark::State& state) {
    const Base base = PresentBase();
    static const std::vector<double> kExpected = EndSpeeds(base.setUp, 1);
    for (auto _ : state) {
        if (EndSpeeds(base.setUp, static_cast<std::size_t>(state.range(0))) != kExpected) {
            state.SkipWithError("two threads give other speeds than one");
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kSetUps));
}
BENCHMARK(TenThousandSetUps)
    ->ArgName("threads")
    ->Arg(1)
    ->Arg(2)
    ->Iterations(1)
    ->MeasureProcessCPUTime()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zolv
