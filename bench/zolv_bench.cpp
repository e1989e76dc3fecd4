// How long the program takes. The acceleration run and its table stand beside a yardstick: the same work without any
// structure. A yardstick that gives another result stops the benchmarks.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "fields/all_windows.h"
#include "files/settings_file.h"
#include "files/settings_text.h"
#include "gearing/acceleration_page.h"
#include "gearing/gearing_state.h"
#include "language/language_file.h"
#include "model/acceleration_run.h"
#include "shell/fresh_start.h"
#include "shell/start_up.h"
#include "started_program.h"
#include "text/number_text.h"
#include "yardstick.h"

namespace zolv {
namespace {

yardstick::Car FlatCar(const AccelerationSetup& setup) {
    const AirProfile& air = setup.Car.Air;
    const AxleTyres& tyre = setup.Car.Driven();
    yardstick::Car car{.Mass = air.Mass,
                       .Wheelbase = setup.Wheelbase,
                       .WeightDist = air.WeightDist,
                       .Cd = air.Cd,
                       .FrontalArea = air.FrontalArea,
                       .Cl = air.Cl,
                       .AirDensity = air.AirDensity,
                       .UndertrayClA = air.Undertray.ClA,
                       .UndertrayCdA = air.Undertray.CdA,
                       .FrontWingClA = air.FrontWing.ClA,
                       .FrontWingCdA = air.FrontWing.CdA,
                       .FrontWingPosition = air.FrontWing.Position,
                       .RearWingClA = air.RearWing.ClA,
                       .RearWingCdA = air.RearWing.CdA,
                       .RearWingPosition = air.RearWing.Position,
                       .Torque = setup.Motor.Torque,
                       .TorqueRPM = setup.Motor.TorqueRPM,
                       .IdleRPM = setup.Motor.IdleRPM,
                       .CurveA = setup.Curve.CurveA,
                       .CurveB = setup.Curve.CurveB,
                       .CurveC = setup.Curve.CurveC,
                       .CurveD = setup.Curve.CurveD,
                       .Efficiency = setup.Efficiency,
                       .FinalDrive = setup.FinalDrive,
                       .TyreMu = setup.TyreMu,
                       .TyreSlip = setup.Car.TyreSlip,
                       .Ratios = {},
                       .ShiftRevs = {},
                       .UnloadedRadius = tyre.UnloadedRadius,
                       .Stiffness = tyre.Stiffness,
                       .MaxDeformation = tyre.MaxDeformation,
                       .NumGears = setup.NumGears,
                       .DrivetrainType = setup.DrivetrainType,
                       .LongDistance = setup.LongDistance};
    for (std::size_t gear = 0; gear < setup.Ratios.values.size(); ++gear) {
        car.Ratios[gear] = setup.Ratios[gear];
        car.ShiftRevs[gear] = setup.ShiftRevs[gear];
    }
    return car;
}

const std::vector<yardstick::Column>& FlatColumns() {
    static const std::vector<yardstick::Column> columns{
        {-1, 1, 2, "s"}, {1, 1, 1, " m/s"}, {2, 1, 0, " rpm"},   {3, 1, 0, ""},   {4, 1, 0, " N"},
        {5, 1, 0, " N"}, {6, 1, 0, " N"},   {7, 1, 2, " m/s^2"}, {8, 1, 0, " N"}, {9, 1, 0, " N"}};
    return columns;
}

void Expect(bool same, const char* what) {
    if (same) return;
    std::cerr << "zolv-bench: the yardstick gives another " << what << '\n';
    std::exit(1);
}

constexpr std::size_t kTableRoom = std::size_t{1} << 20U;
std::vector<yardstick::Row> flatRows(kAccelRows);
std::vector<char> flatText(kTableRoom);

/// The program and the yardstick give the same rows and the same text, to the last character.
void CompareYardstick() {
    const int last = yardstick::Run(FlatCar(PresentAccelerationSetup()), flatRows.data());
    Expect(last == gearing.AccelLastRow && last == kAccelRows - 1, "number of rows");
    for (std::size_t row = 0; row < kAccelRows; ++row) {
        for (std::size_t column = 0; column < kAccelColumns; ++column) {
            Expect(flatRows[row].values[column] == gearing.AccelRows[row].values[column], "row");
        }
    }
    const char* const end = yardstick::WriteTable(flatRows.data(), last, FlatColumns(), flatText.data());
    const std::string& text = Zolv.AccelerationData.Text();
    const std::string_view rows = std::string_view(text).substr(text.find('\n') + 1);
    Expect(rows == std::string_view(flatText.data(), static_cast<std::size_t>(end - flatText.data())), "table");
}

void NumberTextOfTwoDecimals(benchmark::State& state) {
    char text[kRoundedTextSize];
    double value = 12.345;
    for (auto _ : state) {
        benchmark::DoNotOptimize(WriteRounded(text, value, 2));
        benchmark::ClobberMemory();
        value += 0.01;
    }
}
BENCHMARK(NumberTextOfTwoDecimals);

void ShortestNumberText(benchmark::State& state) {
    double value = 0.1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(NumberText(value));
        value += 0.1;
    }
}
BENCHMARK(ShortestNumberText);

void NumberFromText(benchmark::State& state) {
    const std::string text = "123.45";
    for (auto _ : state) benchmark::DoNotOptimize(Val(text));
}
BENCHMARK(NumberFromText);

void RunYardstick(benchmark::State& state) {
    StartProgram();
    CompareYardstick();
    const yardstick::Car car = FlatCar(PresentAccelerationSetup());
    for (auto _ : state) {
        benchmark::DoNotOptimize(yardstick::Run(car, flatRows.data()));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RunYardstick)->Unit(benchmark::kMicrosecond);

void Run(benchmark::State& state) {
    StartProgram();
    const AccelerationSetup setup = PresentAccelerationSetup();
    for (auto _ : state) {
        benchmark::DoNotOptimize(Accelerate(setup, gearing.AccelRows));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(Run)->Unit(benchmark::kMicrosecond);

void RunAndTableYardstick(benchmark::State& state) {
    StartProgram();
    CompareYardstick();
    const yardstick::Car car = FlatCar(PresentAccelerationSetup());
    for (auto _ : state) {
        const int last = yardstick::Run(car, flatRows.data());
        benchmark::DoNotOptimize(yardstick::WriteTable(flatRows.data(), last, FlatColumns(), flatText.data()));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RunAndTableYardstick)->Unit(benchmark::kMicrosecond);

void RunAndTable(benchmark::State& state) {
    StartProgram();
    for (auto _ : state) RunAcceleration();
}
BENCHMARK(RunAndTable)->Unit(benchmark::kMicrosecond);

void MoveSlider(benchmark::State& state) {
    int value = 1700;
    for (auto _ : state) {
        value = value == 1700 ? 1710 : 1700;
        Zolv.Ratios.InputSlider[3].Drag(value);
    }
    state.counters["rows"] = gearing.AccelLastRow + 1;
}

/// Labels, run, table and four plots, as one move of the user's hand sets them off.
void SliderMove(benchmark::State& state) {
    StartProgram();
    MoveSlider(state);
}
BENCHMARK(SliderMove)->Unit(benchmark::kMicrosecond);

void SliderMoveWithAHeldSetUp(benchmark::State& state) {
    StartProgram();
    Zolv.SetUpHold.Click();
    MoveSlider(state);
}
BENCHMARK(SliderMoveWithAHeldSetUp)->Unit(benchmark::kMicrosecond);

void ParseSettingsFile(benchmark::State& state) {
    StartProgram();
    const std::string text = PresentSettingsText();
    for (auto _ : state) benchmark::DoNotOptimize(ParseSettings(text));
}
BENCHMARK(ParseSettingsFile);

void ChangeOfCar(benchmark::State& state) {
    StartProgram();
    int car = 1;
    for (auto _ : state) {
        car = car == 1 ? 2 : 1;
        Zolv.Select_Car.Pick(car);
    }
}
BENCHMARK(ChangeOfCar)->Unit(benchmark::kMicrosecond);

void ChangeOfSpeedUnit(benchmark::State& state) {
    StartProgram();
    int unit = 0;
    for (auto _ : state) {
        unit = unit == 0 ? 1 : 0;
        OptionsPanel.Units[0].Select.Pick(unit);
    }
}
BENCHMARK(ChangeOfSpeedUnit)->Unit(benchmark::kMicrosecond);

/// Between two files with the built-in texts: every caption is written, every list rebuilt, every unit refreshed.
void ChangeOfLanguage(benchmark::State& state) {
    StartProgram("languages");
    for (const char* name : {"language_A.txt", "language_B.txt"}) {
        if (!WriteBuiltInLanguage(name).empty()) return state.SkipWithError("no language file could be written");
    }
    std::ofstream("languages.lst", std::ios::binary) << "Language: 1\r\nA\r\nB\r\n";
    StartProgram("languages");
    int language = 0;
    for (auto _ : state) {
        language = 1 - language;
        LanguageSelection.LanguageList.Pick(language);
    }
}
BENCHMARK(ChangeOfLanguage)->Unit(benchmark::kMicrosecond);

void StartUp(benchmark::State& state) {
    StartProgram();
    for (auto _ : state) {
        FreshStart();
        LoadZolv();
    }
}
BENCHMARK(StartUp)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zolv
