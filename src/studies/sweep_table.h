#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "studies/study_text.h"
#include "studies/sweep_names.h"
#include "studies/sweep_state.h"

namespace zolv {

/// The input of that kind for a set-up; none where it does nothing to it.
[[nodiscard]] std::optional<SweepChoice> ChoiceIn(const SetUp& setUp, SweepInput input);

/// A sweep as it is shown: what its axes and its result are called, and the point that stands at a place of its values.
class PlottedSweep {
public:
    explicit PlottedSweep(const SweepRun& run);  // which lives longer

    struct Part {
        std::string Name;
        ShownAs Shown;

        [[nodiscard]] std::string Title() const;  // "Final Drive", "Front Pressure [kPa]"
    };
    Part First;
    std::optional<Part> Second;
    Part Result;

    [[nodiscard]] double FirstOf(std::size_t index) const;
    [[nodiscard]] double SecondOf(std::size_t index) const;

    /// The point nearest to base values of the inputs, or to those of a set-up.
    [[nodiscard]] std::size_t Nearest(double first, double second) const;
    [[nodiscard]] std::size_t Nearest(const SetUp& setUp) const;

private:
    const SweepRun& run_;
};

/// A sweep as a table with a row of titles: a row for each value of one input, or for two a column for each value of
/// the first and a row for each of the second.
[[nodiscard]] std::vector<TextRow> RowsOf(const SweepRun& run);

}  // namespace zolv
