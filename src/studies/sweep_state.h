#pragma once

#include <array>
#include <optional>
#include <vector>

#include "search/sweep.h"

namespace zolv {

/// A sweep that has ended.
struct SweepRun {
    SweepTask Task;
    SweepSheet Sheet;
};

struct SweepState {
    /// One input as it is picked, and its ends in base units.
    struct Axis {
        std::optional<SweepChoice> Picked;  // none in the second list's first row
        double From = 0, To = 0;
    };
    std::array<Axis, 2> Axes;
    std::vector<SweepChoice> Choices;  // the rows of the lists; the second has one for none before them
    bool WritingBoxes = false;         // what is written into them was not typed
    bool FillingLists = false;         // a row that is picked was picked before

    std::optional<SetUp> Swept;  // the set-up that is swept, or was last
    std::optional<SweepRun> Run;
    std::optional<SetUp> Drawn;     // the present set-up that the plot marks
    double Done = 0;                // share of the sweep that runs
    std::array<double, 2> Point{};  // what the boxes of the point hold, in base units

    enum class Said : unsigned char { Nothing, Sweeping, Done, Stopped };
    Said Status = Said::Nothing;
};
inline SweepState sweep;

}  // namespace zolv
