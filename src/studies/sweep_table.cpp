#include "studies/sweep_table.h"

#include <algorithm>
#include <cmath>

namespace zolv {
namespace {

PlottedSweep::Part PartOf(const SetUp& setUp, SweepInput input) {
    const auto choice = ChoiceIn(setUp, input);
    return choice ? PlottedSweep::Part{NameOf(*choice), ShownIn(choice->Quantity)} : PlottedSweep::Part{};
}

std::size_t NearestIn(const std::vector<double>& values, double value) {
    const auto nearest = std::ranges::min_element(values, {}, [&](double one) { return std::fabs(one - value); });
    return static_cast<std::size_t>(nearest - values.begin());
}

}  // namespace

std::optional<SweepChoice> ChoiceIn(const SetUp& setUp, SweepInput input) {
    for (const SweepChoice& choice : SweepInputsOf(setUp)) {
        if (choice.Input == input) return choice;
    }
    return std::nullopt;
}

PlottedSweep::PlottedSweep(const SweepRun& run)
    : First(PartOf(run.Task.Present, run.Task.First.Input)),
      Result{ResultName(run.Task.Result, run.Task.Present.Targets), ShownIn(SweepResults()[run.Task.Result].Quantity)},
      run_(run) {
    if (run.Task.Second) Second = PartOf(run.Task.Present, run.Task.Second->Input);
}

std::string PlottedSweep::Part::Title() const { return Shown.Unit.empty() ? Name : Name + " [" + Shown.Unit + ']'; }

double PlottedSweep::FirstOf(std::size_t index) const { return run_.Sheet.First[index % run_.Sheet.First.size()]; }

double PlottedSweep::SecondOf(std::size_t index) const {
    return run_.Sheet.Second.empty() ? 0 : run_.Sheet.Second[index / run_.Sheet.First.size()];
}

std::size_t PlottedSweep::Nearest(double first, double second) const {
    const std::size_t column = NearestIn(run_.Sheet.First, first);
    if (run_.Sheet.Second.empty()) return column;
    return NearestIn(run_.Sheet.Second, second) * run_.Sheet.First.size() + column;
}

std::size_t PlottedSweep::Nearest(const SetUp& setUp) const {
    return Nearest(InputOf(setUp, run_.Task.First.Input),
                   run_.Task.Second ? InputOf(setUp, run_.Task.Second->Input) : 0);
}

std::vector<TextRow> RowsOf(const SweepRun& run) {
    const PlottedSweep plotted(run);
    const SweepSheet& sheet = run.Sheet;
    std::vector<TextRow> rows;
    if (!plotted.Second) {
        rows.push_back({plotted.First.Title(), plotted.Result.Title()});
        for (std::size_t i = 0; i < sheet.First.size(); ++i) {
            rows.push_back({plotted.First.Shown.Number(sheet.First[i]), plotted.Result.Shown.Number(sheet.Values[i])});
        }
        return rows;
    }
    rows.push_back({plotted.Second->Title() + " \\ " + plotted.First.Title()});
    for (const double value : sheet.First) rows.front().push_back(plotted.First.Shown.Number(value));
    for (std::size_t line = 0; line < sheet.Second.size(); ++line) {
        TextRow row{plotted.Second->Shown.Number(sheet.Second[line])};
        for (std::size_t i = 0; i < sheet.First.size(); ++i) {
            row.push_back(plotted.Result.Shown.Number(sheet.Values[line * sheet.First.size() + i]));
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace zolv
