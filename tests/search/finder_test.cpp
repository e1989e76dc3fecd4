#include "search/finder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "model/sheet.h"
#include "search/search_cars.h"

namespace zolv {
namespace {

using enum FinderInput;

FinderTask TaskWith(std::string_view car, const Goal& goal, std::initializer_list<FinderInput> free) {
    FinderTask task;
    task.Present = SetUpWith(car);
    task.Target = goal;
    for (const FinderInput input : free) task.Free[input] = true;
    return task;
}

const Goal kKilometre{GoalKind::OverDistance, 0, 0, 1000, {}};
const Goal kTo30{GoalKind::ToSpeed, 0, 30, 0, {}};

double CostWith(const SetUp& setUp, const Goal& goal) {
    return CostOf(goal, ValueOf(goal, StartOf(setUp, EvaluateStill(setUp))));
}

TEST(Finder, IsNeverWorseThanEveryGearboxOfAGrid) {
    const Goal straights{GoalKind::AlongStraights, 0, 0, 0, {{"", 12, 250}, {"", 20, 600}}};
    for (const Goal& goal : {kTo30, straights}) {
        FinderTask task = TaskWith("Wisp 4", goal, {Ratio2, Ratio3, FinalDrive});
        task.Bounds[Ratio2] = {1.8, 2.8};
        task.Bounds[Ratio3] = {1.4, 1.9};
        task.Bounds[FinalDrive] = {2.4, 5};
        const FinderResult result = FindBest(task);
        ASSERT_EQ(result.Fault, FinderFault::None);
        double best = 1e9;
        zolv::SetUp setUp = task.Present;
        for (setUp.Ratios[2] = 1.8; setUp.Ratios[2] < 2.81; setUp.Ratios[2] += 0.1) {
            for (setUp.Ratios[3] = 1.4; setUp.Ratios[3] < 1.91; setUp.Ratios[3] += 0.1) {
                for (setUp.FinalDrive[0] = 2.4; setUp.FinalDrive[0] < 5.01; setUp.FinalDrive[0] += 0.1) {
                    if (setUp.Ratios[3] <= setUp.Ratios[2]) best = std::min(best, CostWith(setUp, goal));
                }
            }
        }
        EXPECT_LE(result.After.Value, best + 1e-9);
        EXPECT_LT(result.After.Value, result.Before.Value);
    }
}

TEST(Finder, FindsASetUpThatGivesWhatItSaysInStepsOrderAndBounds) {
    FinderTask task = TaskWith("Sable T", kKilometre, {Ratio1, Ratio2, Ratio3, Ratio4, Ratio5, Ratio6, FinalDrive});
    task.Bounds[Ratio1] = {2.9995, 3.5};
    task.Bounds[FinalDrive] = {2, 4.2};
    const FinderResult result = FindBest(task);
    EXPECT_EQ(CostWith(result.Found, kKilometre), result.After.Value);
    EXPECT_EQ(CostWith(task.Present, kKilometre), result.Before.Value);
    EXPECT_TRUE(EvaluateStill(result.Found).WrongOrder.empty());
    const PerGear<double>& ratios = result.Found.Ratios;
    EXPECT_TRUE(ratios[1] >= 3 && ratios[1] <= 3.5) << ratios[1];
    EXPECT_TRUE(result.Found.FinalDrive[0] >= 2 && result.Found.FinalDrive[0] <= 4.2);
    for (int gear = 1; gear <= 5; ++gear) {
        EXPECT_EQ(ratios[gear], std::nearbyint(ratios[gear] * 1000) / 1000);
        EXPECT_TRUE(ratios[gear] >= 0.5 && ratios[gear] <= 7.5);
    }
    EXPECT_EQ(ratios[6], 0.85) << "the car has five gears";
}

/// The last step on either side costs no more than a hundredth, the next one does, or is not allowed.
TEST(Finder, SaysHowFlatTheOptimumIs) {
    const FinderTask task = TaskWith("Wisp 4", kKilometre, {Ratio2, Ratio3, FinalDrive});
    const FinderResult result = FindBest(task);
    ASSERT_EQ(result.Flatness.size(), 3U);
    EXPECT_EQ(result.Flatness[1].Input, Ratio3);
    const auto costAt = [&](double ratio) {
        zolv::SetUp moved = result.Found;
        moved.Ratios[3] = ratio;
        return CostWith(moved, kKilometre);
    };
    const auto [input, low, high] = result.Flatness[1];
    EXPECT_LT(low, result.Found.Ratios[3]);
    EXPECT_GT(high, result.Found.Ratios[3]);
    EXPECT_LE(costAt(low), result.After.Value + 0.01);
    EXPECT_LE(costAt(high), result.After.Value + 0.01);
    EXPECT_GT(costAt(low - 0.001), result.After.Value + 0.01);
    EXPECT_GT(costAt(high + 0.001), result.After.Value + 0.01);
}

TEST(Finder, LeavesAGearWhereItWasThatTheGoalDoesNotComeTo) {
    const FinderTask task = TaskWith("Corvane R", kTo30, {Ratio1, Ratio2, Ratio3, Ratio4, Ratio5, Ratio6});
    const FinderResult result = FindBest(task);
    EXPECT_NE(result.Found.Ratios[1], task.Present.Ratios[1]);
    EXPECT_EQ(result.Found.Ratios[4], task.Present.Ratios[4]);
    EXPECT_EQ(result.Found.Ratios[6], task.Present.Ratios[6]);
    // Such a gear is flat as far as the order of the gears goes.
    ASSERT_EQ(result.Flatness[4].Input, Ratio5);
    EXPECT_EQ(result.Flatness[4].Low, result.Found.Ratios[6]);
    EXPECT_EQ(result.Flatness[4].High, result.Found.Ratios[4]);
}

TEST(Finder, FindsTheSameOnAnyNumberOfThreads) {
    FinderTask task = TaskWith("Series Lo", kKilometre, {Ratio1, Ratio2, Ratio3, FinalDrive, FrontWing, RearWing});
    task.Wishes.Downforce = {50, 3000};
    const FinderResult one = FindBest(task, {}, {}, 1);
    for (const unsigned threads : {2U, 3U}) {
        const FinderResult other = FindBest(
            task, {}, [](const FinderProgress&) {}, threads);
        EXPECT_EQ(other.Found, one.Found) << threads;
        EXPECT_EQ(other.After, one.After) << threads;
        EXPECT_EQ(other.Evaluations, one.Evaluations) << threads;
        EXPECT_EQ(other.Flatness, one.Flatness) << threads;
    }
}

TEST(Finder, TellsAllThatItTried) {
    const FinderTask task = TaskWith("Pell S", kTo30, {FinalDrive});
    FinderProgress last;
    const FinderResult result = FindBest(
        task, {}, [&](const FinderProgress& progress) { last = progress; }, 1);
    EXPECT_FALSE(result.Flatness.empty());  // which is worked out last, and counts
    EXPECT_EQ(last.Evaluations, result.Evaluations);
}

TEST(Finder, StopsWhenToldAndKeepsTheBestUntilThen) {
    const FinderTask task =
        TaskWith("Wisp 4", kKilometre, {Ratio1, Ratio2, Ratio3, Ratio4, Ratio5, Ratio6, FinalDrive});
    std::stop_source source;
    FinderProgress last;
    const FinderResult result = FindBest(
        task, source.get_token(),
        [&](const FinderProgress& progress) {
            last = progress;
            source.request_stop();
        },
        2);
    EXPECT_TRUE(result.Stopped);
    EXPECT_LT(result.Evaluations, 1000);
    EXPECT_TRUE(result.Flatness.empty());
    EXPECT_LE(result.After.Value, result.Before.Value);
    EXPECT_EQ(CostWith(result.Found, kKilometre), result.After.Value);
    EXPECT_EQ(last.Done, 1);

    const FinderResult none = FindBest(task, source.get_token());
    EXPECT_TRUE(none.Stopped);
    EXPECT_EQ(none.Found, task.Present);
}

TEST(Finder, GrantsTheWishes) {
    const auto find = [](const FinderWishes& wishes) {
        FinderTask task = TaskWith("Series Lo", kTo30, {FinalDrive, FrontWing, RearWing});
        task.Wishes = wishes;
        return FindBest(task);
    };
    FinderWishes wishes;
    wishes.Downforce = {60, 7000};
    wishes.NeutralBalance = true;
    const FinderResult held = find(wishes);
    ASSERT_TRUE(held.Wished);
    const AirSheet air = EvaluateStill(held.Found).Air;
    EXPECT_NEAR(air.AeroDistribution, held.Found.Car.WeightDist, 0.005);
    zolv::SetUp at60 = held.Found;
    at60.AirSpeed = 60;
    EXPECT_LE(EvaluateStill(at60).Air.Forces.TotalLift, -7000);

    // A top speed that the quickest gearbox does not come to.
    const Goal top{GoalKind::TopSpeed, 0, 0, 0, {}};
    const double without = -CostWith(find({}).Found, top);
    wishes = {};
    wishes.TopSpeed = without + 1;
    const FinderResult fast = find(wishes);
    EXPECT_TRUE(fast.Wished);
    EXPECT_GE(-CostWith(fast.Found, top), without + 1);

    wishes.TopSpeed = 150;
    EXPECT_FALSE(find(wishes).Wished);
    wishes = {};
    wishes.Downforce = {60, 1e6};
    EXPECT_EQ(find(wishes).Fault, FinderFault::WishesLeaveNothing);
}

TEST(Finder, SaysWhichSpeedIsTheMost) {
    const Goal to80{GoalKind::ToSpeed, 0, 80, 0, {}};
    const FinderResult result = FindBest(TaskWith("Mote 900", to80, {Ratio3, Ratio4}));
    EXPECT_FALSE(result.After.Reached);
    EXPECT_TRUE(result.Flatness.empty());
    const Goal top{GoalKind::TopSpeed, 0, 0, 0, {}};
    zolv::SetUp setUp = SetUpWith("Mote 900");
    double most = 0;
    for (setUp.Ratios[3] = 1; setUp.Ratios[3] < 2.2; setUp.Ratios[3] += 0.1) {
        for (setUp.Ratios[4] = 0.8; setUp.Ratios[4] <= setUp.Ratios[3]; setUp.Ratios[4] += 0.05) {
            most = std::max(most, -CostWith(setUp, top));
        }
    }
    EXPECT_GE(result.After.Most, most);
    EXPECT_GT(result.After.Most, 40);
}

TEST(Finder, NamesWhatLeavesNothingToSeek) {
    const auto faultOf = [](const FinderTask& task) {
        const FinderResult result = FindBest(task);
        EXPECT_EQ(result.Found, task.Present);
        EXPECT_EQ(result.Evaluations, 0);
        return result.Fault;
    };
    EXPECT_EQ(faultOf(TaskWith("Wisp 4", kKilometre, {})), FinderFault::NothingFree);
    EXPECT_EQ(faultOf(TaskWith("Wisp 4", kKilometre, {FrontWing})), FinderFault::NothingFree) << "it has no wing";
    EXPECT_EQ(faultOf(TaskWith("Mote 900", kKilometre, {Ratio5, Ratio6})), FinderFault::NothingFree) << "four gears";
    EXPECT_EQ(faultOf(TaskWith("Wisp 4", {GoalKind::BetweenSpeeds, 30, 20, 0, {}}, {Ratio1})), FinderFault::Goal);

    FinderTask narrow = TaskWith("Wisp 4", kKilometre, {Ratio2});
    narrow.Bounds[Ratio2] = {2.5, 2.4};
    EXPECT_EQ(faultOf(narrow), FinderFault::BoundsHoldNoStep);
    narrow.Bounds[Ratio2] = {2.0001, 2.0009};  // between two steps
    EXPECT_EQ(faultOf(narrow), FinderFault::BoundsHoldNoStep);
    narrow.Bounds[Ratio2] = {1.2, 1.5};  // below third gear
    EXPECT_EQ(faultOf(narrow), FinderFault::BoundsLeaveNothing);
    EXPECT_EQ(FindBest(narrow).FaultInput, Ratio2);
}

/// Gears given by their speeds, and gears in the wrong order, are a beginning as well.
TEST(Finder, StartsFromWhateverIsPresent) {
    FinderTask task = TaskWith("Wisp 4", kTo30, {Ratio1, Ratio2});
    task.Present.From = Direction::FromSpeeds;
    task.Present.Speeds.values = {0, 18, 25, 33, 42, 52, 63};
    const FinderResult fromSpeeds = FindBest(task);
    EXPECT_EQ(fromSpeeds.Found.From, Direction::FromRatios);
    EXPECT_EQ(fromSpeeds.Before.Value, CostWith(task.Present, kTo30));
    EXPECT_LE(fromSpeeds.After.Value, fromSpeeds.Before.Value);

    task = TaskWith("Wisp 4", kTo30, {Ratio1, Ratio2});
    task.Present.Ratios[1] = 1.7;
    const FinderResult disordered = FindBest(task);
    EXPECT_FALSE(disordered.Before.Reached);
    EXPECT_TRUE(disordered.After.Reached);
    EXPECT_TRUE(EvaluateStill(disordered.Found).WrongOrder.empty());
}

}  // namespace
}  // namespace zolv
