#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "model/catalogue.h"
#include "search/finder.h"

/// The searches on which the finder is held to a reference: every built-in car at five goals, with all ratios and the
/// final drive free.
namespace zolv {

struct FinderCase {
    std::string Name;
    FinderTask Task;
};

/// The gears of a start of the program, tyres of coefficient 1.25 in the middle of their range of pressure, wings flat.
inline SetUp FinderStart(std::size_t car) {
    SetUp setUp;
    setUp.CarName = Catalogue()[car].name;
    setUp.Car = RecordOf(Catalogue()[car].figures);
    setUp.Ratios.values = {0, 3.15, 2.2, 1.6, 1.24, 1, 0.85};
    setUp.FinalDrive = {2.9, 2.9};
    setUp.FrontPressure = static_cast<int>(setUp.Car.FMinPressure + setUp.Car.FMaxPressure) / 2;
    setUp.RearPressure = (static_cast<int>(setUp.Car.RMinPressure) + setUp.Car.RMaxPressure) / 2;
    setUp.TyreMu = 1.25;
    return setUp;
}

inline std::array<std::pair<const char*, Goal>, 5> FinderGoals() {
    using enum GoalKind;
    return {
        {{"to 30 m/s", {ToSpeed, 0, 30, 0, {}}},
         {"over 1000 m", {OverDistance, 0, 0, 1000, {}}},
         {"15 to 40 m/s", {BetweenSpeeds, 15, 40, 0, {}}},
         {"top speed", {TopSpeed, 0, 0, 0, {}}},
         {"four straights", {AlongStraights, 0, 0, 0, {{"", 15, 300}, {"", 25, 500}, {"", 20, 200}, {"", 30, 900}}}}}};
}

inline std::vector<FinderCase> FinderCases() {
    std::vector<FinderCase> cases;
    for (const auto& [name, goal] : FinderGoals()) {
        for (std::size_t car = 0; car < kCars; ++car) {
            FinderCase one{std::string(Catalogue()[car].name) + ", " + name, {}};
            one.Task.Present = FinderStart(car);
            one.Task.Target = goal;
            for (std::size_t i = 0; i < 7; ++i) one.Task.Free.values[i] = true;
            cases.push_back(one);
        }
    }
    return cases;
}

}  // namespace zolv
