#include "search/sweep.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <set>
#include <string>

#include "model/sheet.h"
#include "search/search_cars.h"

namespace zolv {
namespace {

std::size_t RowOf(std::string_view name) {
    for (std::size_t i = 0; i < SweepResults().size(); ++i) {
        if (SweepResults()[i].Name == name) return i;
    }
    ADD_FAILURE() << name;
    return 0;
}

SweepTask TaskOf(std::string_view car, const SweepAxis& first, std::string_view result) {
    return {.Present = SetUpWith(car), .First = first, .Second = {}, .Result = RowOf(result)};
}

/// Against the sheet, whose times are those of rows 0.05 s apart.
TEST(Sweep, GivesWhatTheSheetHas) {
    const auto rows = std::make_unique<RunRows>();
    const zolv::SetUp setUp = SetUpWith("Series Lo");
    const Sheet sheet = Evaluate(setUp, *rows);
    const struct {
        std::string_view name;
        double value, below, above;
    } cases[] = {
        {"Time to Speed 1", sheet.Run.Results.SpeedTimes[0], 0.0501, 1e-6},
        {"Time to Speed 4", sheet.Run.Results.SpeedTimes[3], 0.0501, 1e-6},
        {"Time over Distance 2", sheet.Run.Results.DistanceTimes[1], 0.0501, 1e-6},
        {"Speed at Distance 1", sheet.Run.Results.DistanceSpeeds[0], 0.3, 1e-4},
        {"Top Speed", sheet.Top.speed, 0, 0},
        {"Shift Speed 2", sheet.Gears.GearSpeed[2], 0, 0},
        {"Shift Point 5", sheet.Gears.GearRevs[5], 0, 0},
        {"Ratio 3", static_cast<double>(1.6F), 0, 0},
        {"Total Drag", sheet.Air.Forces.TotalDrag, 0, 0},
        {"Load on Front Wheels", sheet.Air.FrontWheelForce, 0, 0},
        {"Lift in Front", sheet.Air.AeroDistribution, 0, 0},
        {"Total Lift", sheet.Air.Forces.TotalLift, 0, 0},
        {"Rolling Resistance", sheet.Air.Forces.RollingResistance, 0, 0},
        {"Total Friction", sheet.Air.Forces.TotalFriction, 0, 0},
        {"Load on Rear Wheels", sheet.Air.RearWheelForce, 0, 0},
        {"Load in Front", sheet.Air.ForceDistribution, 0, 0},
        {"Load over Weight", sheet.Air.WeightMultiple, 0, 0},
        {"Torque in Gear 1", sheet.Gears.GearTorque[1], 0, 0},
        {"Front Contact Patch", sheet.Front.PatchArea, 0, 0},
        {"Rear Contact Patch", sheet.Rear.PatchArea, 0, 0},
        {"Front over Rear Patch", sheet.PatchRatio, 0, 0},
    };
    for (const auto& [name, value, below, above] : cases) {
        const double result = ResultOf(setUp, RowOf(name));
        EXPECT_GE(result, value - below) << name;
        EXPECT_LE(result, value + above) << name;
    }
    for (int gear = 1; gear <= kGears; ++gear) {
        const auto of = [&](const std::string& name) { return ResultOf(setUp, RowOf(name + std::to_string(gear))); };
        EXPECT_EQ(of("Ratio "), sheet.Gears.GearRatio[gear]) << gear;
        if (gear == kGears) break;  // out of the last one there is no change
        EXPECT_EQ(of("Shift Speed "), sheet.Gears.GearSpeed[gear]) << gear;
        EXPECT_EQ(of("Shift Point "), sheet.Gears.GearRevs[gear]) << gear;
    }
    EXPECT_TRUE(std::isnan(ResultOf(SetUpWith("Mote 900"), RowOf("Shift Speed 4")))) << "four gears";
    EXPECT_TRUE(std::isnan(ResultOf(SetUpWith("Mote 900"), RowOf("Lift in Front")))) << "no lift";
    EXPECT_TRUE(std::isnan(ResultOf(SetUpWith("Mote 900"), RowOf("Time to Speed 5")))) << "too slow";
    std::set<std::string_view> names;
    for (const SweepResultRow& row : SweepResults()) EXPECT_TRUE(names.insert(row.Name).second) << row.Name;
}

TEST(Sweep, TakesEveryInputToItsPlaces) {
    for (const Direction from : {Direction::FromRatios, Direction::FromSpeeds}) {
        zolv::SetUp setUp = SetUpWith("Series Lo");
        setUp.From = from;
        setUp.Speeds.values = {0, 20, 30, 40, 50, 60, 70};
        for (const SweepChoice& choice : SweepInputsOf(setUp)) {
            zolv::SetUp changed = setUp;
            const double value = choice.High - 10 * choice.Step;
            SetInput(changed, choice.Input, value);
            EXPECT_EQ(InputOf(changed, choice.Input), value) << choice.Name;
            SetInput(changed, choice.Input, InputOf(setUp, choice.Input));
            changed.AirSpeed = setUp.AirSpeed;
            EXPECT_EQ(changed, setUp) << choice.Name << " touches nothing else";
        }
    }
}

TEST(Sweep, LaysTwoInputsOutAsAGridWithTheBestMarked) {
    SweepTask task = TaskOf("Series Ka", {SweepInput::FinalDrive, 2, 4, 5}, "Time over Distance 2");
    task.Second = SweepAxis{SweepInput::RearWing, 0, 3, 9};  // whole degrees, each once
    const SweepSheet sheet = Sweep(task);
    EXPECT_EQ(sheet.First, (std::vector<double>{2, 2.5, 3, 3.5, 4}));
    EXPECT_EQ(sheet.Second, (std::vector<double>{0, 1, 2, 3}));
    ASSERT_EQ(sheet.Values.size(), 20U);
    zolv::SetUp setUp = task.Present;
    setUp.FinalDrive[0] = 3.5;
    setUp.RearWingAngle = 2;
    EXPECT_EQ(sheet.Values[2 * 5 + 3], ResultOf(setUp, task.Result));
    ASSERT_TRUE(sheet.Best);
    for (const double value : sheet.Values) EXPECT_LE(sheet.Values[*sheet.Best], value);
}

TEST(Sweep, LeavesAGapWhereTheGearsAreInTheWrongOrder) {
    const SweepSheet sheet = Sweep(TaskOf("Wisp 4", {SweepInput::Ratio2, 1.5, 3.5, 5}, "Time to Speed 2"));
    ASSERT_EQ(sheet.Values.size(), 5U);  // third gear is 1.6, first 3.15
    EXPECT_TRUE(std::isnan(sheet.Values[0]));
    for (int i = 1; i < 4; ++i) EXPECT_FALSE(std::isnan(sheet.Values[static_cast<std::size_t>(i)])) << i;
    EXPECT_TRUE(std::isnan(sheet.Values[4]));
}

TEST(Sweep, IsTheSameOnAnyNumberOfThreadsAndStops) {
    SweepTask task = TaskOf("Wisp 4", {SweepInput::Ratio3, 1.3, 2, 30}, "Time to Speed 2");
    task.Second = SweepAxis{SweepInput::FinalDrive, 2, 4, 30};
    const SweepSheet one = Sweep(task, {}, {}, 1);
    for (const unsigned threads : {2U, 3U}) {
        double done = 0;
        const SweepSheet other = Sweep(
            task, {}, [&](double share) { done = share; }, threads);
        EXPECT_EQ(other.Values, one.Values);
        EXPECT_EQ(other.Best, one.Best);
        EXPECT_EQ(done, 1);
    }
    std::stop_source source;
    const SweepSheet stopped = Sweep(
        task, source.get_token(), [&](double) { source.request_stop(); }, 2);
    EXPECT_TRUE(stopped.Stopped);
    EXPECT_TRUE(stopped.Values.empty());
}

TEST(Sweep, NamesWhatCannotBeSwept) {
    const SweepAxis drive{SweepInput::FinalDrive, 2, 4, 10};
    const struct {
        SweepAxis first;
        std::optional<SweepAxis> second;
        SweepFault fault;
        std::size_t axis;
    } cases[] = {
        {{SweepInput::FinalDrive, 4, 2, 10}, {}, SweepFault::FromAboveTo, 0},
        {{SweepInput::FinalDrive, 0.4, 2, 10}, {}, SweepFault::OutOfRange, 0},
        {{SweepInput::FinalDrive, 2, 4, 1}, {}, SweepFault::WrongSteps, 0},
        {{SweepInput::FrontWing, 0, 15, 16}, {}, SweepFault::NoSuchInput, 0},  // the car has none
        {{SweepInput::Speed1, 10, 20, 10}, {}, SweepFault::NoSuchInput, 0},    // it goes from ratios
        {drive, SweepAxis{SweepInput::Ratio2, NAN, 3, 10}, SweepFault::FromAboveTo, 1},
        {drive, drive, SweepFault::SameTwice, 1},
        {{SweepInput::FinalDrive, 2, 4, 600}, SweepAxis{SweepInput::Ratio2, 2, 3, 600}, SweepFault::WrongSteps, 1},
    };
    for (const auto& [first, second, fault, axis] : cases) {
        SweepTask task = TaskOf("Wisp 4", first, "Top Speed");
        task.Second = second;
        const SweepSheet sheet = Sweep(task);
        EXPECT_EQ(sheet.Fault, fault);
        EXPECT_EQ(sheet.FaultAxis, axis);
        EXPECT_TRUE(sheet.Values.empty());
    }
    SweepTask unknown = TaskOf("Wisp 4", drive, "Top Speed");
    unknown.Result = SweepResults().size();
    EXPECT_EQ(Sweep(unknown).Fault, SweepFault::NoSuchResult);
}

}  // namespace
}  // namespace zolv
