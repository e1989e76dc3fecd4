#include "search/finder.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <mutex>
#include <set>

#include "search/evolution.h"
#include "search/together.h"
#include "search/trial.h"

namespace zolv {
namespace {

constexpr std::size_t kIslands = 20;  // that start
constexpr std::size_t kGoOn = 6;      // of them behind the first round
constexpr std::size_t kPolished = 3;  // of those
constexpr int kFirstRound = 350;      // evaluations an island
constexpr int kSecondRound = 850;
constexpr int kPolishing = 250;     // about, for the progress alone
constexpr double kSpread = 0.3;     // of a gene at the start, in logarithms
constexpr double kWingSpread = 6;   // [degrees]
constexpr int kReportEvery = 256;   // evaluations
constexpr double kNothing = 1e-12;  // less than this is no difference in cost

struct Priced {
    Choice choice{};
    double cost = std::numeric_limits<double>::infinity();
};

bool IsWing(FinderInput input) { return input == FinderInput::FrontWing || input == FinderInput::RearWing; }

/// One search from its beginning to its end.
class Search {
public:
    Search(const Trial& trial, const Goal& goal, const std::stop_token& stop, const FinderWatch& watch,
           unsigned threads)
        : trial_(trial),
          goal_(goal),
          stop_(stop),
          watch_(watch),
          threads_(ThreadsOf(threads)),
          patience_(Patience()),
          independent_(trial.Independent()) {}

    void Run(FinderResult& result) {
        if (trial_.PresentAllowed()) Price(trial_.Present());
        SearchEverywhere();
        Polish();
        if (trial_.Wings().size() > 1) TryAllWings();
        if (!Stopped()) PutBackWhatDoesNotMatter();
        result.Stopped = Stopped();
        result.Evaluations = evaluations_;
        result.After = result.Before;
        if (std::isinf(best_.cost)) return;  // stopped before anything was tried
        const GoalValue value = trial_.ValueOf(best_.choice);
        if (!Stopped() && value.Reached) result.Flatness = FlatnessOfAll();
        result.Stopped = Stopped();
        if (result.Stopped) result.Flatness.clear();
        result.Found = trial_.SetUpOf(best_.choice);
        result.After = value;
        result.Wished = best_.cost < kUnwished;
        result.Evaluations = evaluations_;
        Report(1);
    }

private:
    [[nodiscard]] bool Stopped() const { return stop_.stop_requested(); }

    /// The share of the evaluations that is spent: less where few genes are free, and for a track that takes more than
    /// a hundred runs.
    [[nodiscard]] double Patience() const {
        std::set<double> entries;
        if (goal_.Kind == GoalKind::AlongStraights) {
            for (const Straight& straight : goal_.Straights) entries.insert(straight.EntrySpeed);
        }
        const double runs = std::clamp(100.0 / static_cast<double>(entries.size() + 1), 0.25, 1.0);
        return runs * std::min(1.0, static_cast<double>(trial_.Genes() + 2) / 7);
    }
    [[nodiscard]] int Patiently(int evaluations) const { return static_cast<int>(evaluations * patience_); }

    double Price(const Choice& choice) {
        const double cost = trial_.CostOf(choice);
        const std::int64_t count = ++evaluations_;
        if (cost < bestCost_) Take({choice, cost});
        if (count % kReportEvery == 0) {
            constexpr double kAll = kIslands * kFirstRound + kGoOn * kSecondRound + kPolished * kPolishing;
            Report(std::min(0.99, static_cast<double>(count) / (kAll * patience_)));
        }
        return cost;
    }

    /// Keeps the best of what any thread has seen; for the progress, and for a search that is stopped.
    void Take(const Priced& priced) {
        const std::scoped_lock lock(mutex_);
        if (settled_ || !(priced.cost < best_.cost)) return;
        best_ = priced;
        bestCost_ = priced.cost;
    }

    void Report(double done) {
        if (!watch_) return;
        const std::scoped_lock lock(mutex_);
        watch_({.Done = done, .Evaluations = evaluations_, .Best = trial_.ValueOf(best_.choice)});
    }

    /// The best of a list, by cost and then by place, so that it does not matter who came first. Without a stop this
    /// is what the search goes on with.
    void Settle(const std::vector<Priced>& all) {
        Priced best;
        for (const Priced& priced : all) {
            if (priced.cost < best.cost) best = priced;
        }
        if (Stopped()) return;
        best_ = best;
        bestCost_ = best.cost;
    }

    /// The present gearbox first, then even ones by a sequence that fills its square evenly (M. Roberts, "The
    /// Unreasonable Effectiveness of Quasirandom Sequences", 2018).
    [[nodiscard]] EvolutionStart StartOf(std::size_t island) const {
        const auto i = static_cast<double>(island);
        const double first = std::fmod(0.5 + i * 0.7548776662466927, 1);
        const double second = std::fmod(0.5 + i * 0.5698402909980532, 1);
        EvolutionStart start;
        start.Mean = island == 0 ? trial_.GenesOf(trial_.Present()) : trial_.EvenGenes(first, second);
        for (std::size_t gene = 0; gene < trial_.Genes(); ++gene) {
            start.Spread.push_back((IsWing(trial_.InputOf(gene)) ? kWingSpread : kSpread) / trial_.WidthOf(gene));
        }
        start.Seed = island + 1;
        return start;
    }

    void SearchEverywhere() {
        if (trial_.Genes() == 0) {
            polished_ = {{trial_.ChoiceOf({}), 0}};
            return;
        }
        std::vector<Evolution> islands;
        for (std::size_t island = 0; island < kIslands; ++island) islands.emplace_back(StartOf(island));
        const auto run = [&](Evolution& island, int evaluations) {
            island.Run(
                Patiently(evaluations), [&](const Evolution::Genes& genes) { return Price(trial_.ChoiceOf(genes)); },
                [this] { return Stopped(); });
        };
        Together(islands.size(), threads_, [&](std::size_t i) { run(islands[i], kFirstRound); });
        std::ranges::stable_sort(islands, {}, &Evolution::Cost);
        islands.erase(islands.begin() + kGoOn, islands.end());
        Together(islands.size(), threads_, [&](std::size_t i) { run(islands[i], kSecondRound); });
        std::ranges::stable_sort(islands, {}, &Evolution::Cost);
        for (std::size_t i = 0; i < kPolished; ++i) {
            polished_.push_back({trial_.ChoiceOf(islands[i].Best()), islands[i].Cost()});
        }
    }

    void Polish() {
        if (trial_.PresentAllowed()) polished_.push_back({trial_.Present(), 0});
        Together(polished_.size(), threads_, [this](std::size_t i) { PolishOne(polished_[i]); });
        Settle(polished_);
    }

    /// Moves one input at a time by ever smaller steps while that pays.
    void PolishOne(Priced& priced) {
        if (Stopped()) return;
        priced.cost = Price(priced.choice);
        for (const int step : {16, 8, 4, 2, 1}) {
            for (bool gained = true; gained;) {
                gained = false;
                for (const FinderInput input : independent_) {
                    for (const int signedStep : {step, -step}) {
                        if (Stopped()) return;
                        const auto moved = trial_.Moved(priced.choice, input, signedStep);
                        if (!moved) continue;
                        const double cost = Price(*moved);
                        if (cost >= priced.cost) continue;
                        priced = {*moved, cost};
                        gained = true;
                    }
                }
            }
        }
    }

    /// With the gears found, every pair of angles; then the gears once more.
    void TryAllWings() {
        std::vector<Priced> all(trial_.Wings().size(), best_);
        Together(all.size(), threads_, [&](std::size_t i) {
            if (Stopped()) return;
            all[i].choice[FinderInput::FrontWing] = trial_.Wings()[i].first;
            all[i].choice[FinderInput::RearWing] = trial_.Wings()[i].second;
            all[i].cost = Price(all[i].choice);
        });
        std::ranges::stable_sort(all, {}, &Priced::cost);
        all.erase(all.begin() + static_cast<std::ptrdiff_t>(std::min(kPolished, all.size())), all.end());
        Together(all.size(), threads_, [&](std::size_t i) { PolishOne(all[i]); });
        Settle(all);
    }

    /// An input that can stand at its present value without a loss does, as the ratio of a gear that the goal does not
    /// come to.
    void PutBackWhatDoesNotMatter() {
        Priced best = best_;
        for (int round = 0; round < 2; ++round) {  // a gear may wait for its neighbour
            for (const FinderInput input : trial_.Free()) {
                Choice back = best.choice;
                back[input] = trial_.Present()[input];
                if (back == best.choice || !trial_.Allowed(back)) continue;
                const double cost = Price(back);
                if (cost <= best.cost + kNothing) best = {back, std::min(cost, best.cost)};
            }
        }
        best_ = best;
    }

    std::vector<FinderFlatness> FlatnessOfAll() {
        settled_ = true;
        std::vector<FinderFlatness> all;
        for (const FinderInput input : trial_.Free()) all.push_back({.Input = input});
        Together(all.size(), threads_, [&](std::size_t i) {
            all[i].Low = LastFlat(all[i].Input, -1);
            all[i].High = LastFlat(all[i].Input, 1);
        });
        return all;
    }

    /// Doubles the way until the goal is worse, then halves what lies between. A way beyond the bounds counts as worse.
    double LastFlat(FinderInput input, int direction) {
        const double limit = best_.cost + kFlat;
        const auto flat = [&](int steps) {
            const auto moved = trial_.Moved(best_.choice, input, direction * steps);
            return moved && !Stopped() && Price(*moved) <= limit;
        };
        int good = 0;
        int bad = 1;
        for (; flat(bad); bad *= 2) good = bad;
        while (bad - good > 1) {
            const int middle = (good + bad) / 2;
            (flat(middle) ? good : bad) = middle;
        }
        Choice last = best_.choice;
        if (const auto moved = trial_.Moved(best_.choice, input, direction * good)) last = *moved;
        return last[input];
    }

    const Trial& trial_;
    const Goal& goal_;
    const std::stop_token& stop_;
    const FinderWatch& watch_;
    unsigned threads_;
    double patience_;
    std::vector<FinderInput> independent_;

    std::vector<Priced> polished_;
    std::atomic<std::int64_t> evaluations_ = 0;
    std::mutex mutex_;  // best_ and the watch
    Priced best_;
    bool settled_ = false;  // whether best_ is the result
    std::atomic<double> bestCost_ = std::numeric_limits<double>::infinity();
};

}  // namespace

FinderResult FindBest(const FinderTask& task, const std::stop_token& stop, const FinderWatch& watch, unsigned threads) {
    FinderResult result;
    result.Found = task.Present;
    if (FaultOf(task.Target) != GoalFault::None) {
        result.Fault = FinderFault::Goal;
        return result;
    }
    const FinderWishes& wishes = task.Wishes;
    if (wishes.TopSpeed.value_or(1) <= 0 || (wishes.Downforce && wishes.Downforce->Speed <= 0)) {
        result.Fault = FinderFault::WishAtNoSpeed;
        return result;
    }
    const Trial trial(task);
    result.Before = trial.PresentValue();
    result.Fault = trial.Fault();
    result.FaultInput = trial.FaultInput();
    if (result.Fault == FinderFault::None) Search(trial, task.Target, stop, watch, threads).Run(result);
    return result;
}

}  // namespace zolv
