#pragma once

#include <array>
#include <optional>
#include <string>

#include "search/finder.h"
#include "search/straights.h"

namespace zolv {

/// A search that has ended with a set-up.
struct FinderFind {
    FinderTask Task;
    FinderResult Result;
};

struct FinderState {
    /// What the boxes with a unit hold, in base units, in the order of UnitBoxes(). As long as the driver has typed
    /// into none of them there is nothing here, and they show round numbers in whichever unit is in force.
    std::optional<std::array<double, 5>> BoxValues;
    bool WritingBoxes = false;  // what is written into them was not typed

    StraightsRead Track;  // what stands in Straights
    std::string TrackFileName;

    std::optional<SetUp> Sought;     // the set-up for which a search runs, or ran last
    std::optional<FinderFind> Find;  // of the last search; none where it found nothing
    double Done = 0;                 // share of the search that runs

    /// What the line beside the buttons says, for writing it in another language.
    enum class Said : unsigned char { Nothing, Searching, Found, NothingBetter, Stopped };
    Said Status = Said::Nothing;
};
inline FinderState finder;

}  // namespace zolv
