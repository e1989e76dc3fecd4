// What the finder is held to: a search of another kind, that takes far more runs.
//
// Usage: zolv-finder-reference search RANDOM [FIRST COUNT]   makes the lines of finder_reference.txt
//        zolv-finder-reference compare FILE                  holds the finder to them; status 1 where it is worse
//
// For each case: RANDOM gearboxes, the logarithms of their ratios drawn evenly over the bounds and sorted; then
// differential evolution (R. Storn, K. Price, "Differential Evolution", Journal of Global Optimization 11, 1997) on the
// best sixty of them; then each of the best thirty random ones, and the best six of the evolution, moved gear by gear,
// in neighbouring pairs and all gears at once, by ever smaller steps down to one thousandth, while that pays.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

#include "finder_cases.h"
#include "search/trial.h"

namespace zolv {
namespace {

using Genes = std::vector<double>;

struct Found {
    Genes genes;
    Choice choice;
    double cost = 0;
};

class Reference {
public:
    explicit Reference(const FinderTask& task) : trial_(task) {}

    Found Search(int random) {
        std::vector<Found> best = Draw(random);
        std::vector<Found> evolved(best.begin(), best.begin() + 60);
        Cross(evolved);
        best.resize(30);
        best.insert(best.end(), evolved.begin(), evolved.begin() + 6);
        for (Found& one : best) Polish(one);
        return *std::ranges::min_element(best, {}, &Found::cost);
    }

    int Evaluations() const { return evaluations_; }

private:
    double Unit() { return static_cast<double>(random_() >> 11U) * 0x1p-53; }

    Found Tried(Genes genes) {
        const Choice choice = trial_.ChoiceOf(genes);
        return {std::move(genes), choice, Cost(choice)};
    }
    double Cost(const Choice& choice) {
        ++evaluations_;
        return trial_.CostOf(choice);
    }

    std::vector<Found> Draw(int count) {
        std::vector<Found> all;
        for (int i = 0; i < count; ++i) {
            Genes genes(trial_.Genes());
            for (double& gene : genes) gene = Unit();
            std::ranges::sort(genes, std::greater());
            all.push_back(Tried(genes));
            if (all.size() < 20'000) continue;
            Best(all, 60);
        }
        Best(all, 60);
        return all;
    }

    static void Best(std::vector<Found>& all, std::size_t count) {
        std::ranges::stable_sort(all, {}, &Found::cost);
        all.resize(std::min(count, all.size()));
    }

    void Cross(std::vector<Found>& all) {
        constexpr int kGenerations = 400;
        for (int generation = 0; generation < kGenerations; ++generation) {
            for (Found& one : all) {
                const auto any = [&]() -> const Genes& { return all[random_() % all.size()].genes; };
                const Genes& a = any();
                const Genes& b = any();
                const Genes& c = random_() % 2 == 0 ? any() : std::ranges::min_element(all, {}, &Found::cost)->genes;
                const double weight = 0.4 + 0.6 * Unit();
                Genes genes = one.genes;
                const std::size_t sure = random_() % genes.size();
                for (std::size_t i = 0; i < genes.size(); ++i) {
                    if (i == sure || Unit() < 0.9) genes[i] = std::clamp(c[i] + weight * (a[i] - b[i]), 0.0, 1.0);
                }
                Found child = Tried(genes);
                if (child.cost <= one.cost) one = std::move(child);
            }
        }
        Best(all, all.size());
    }

    /// Moves gears that follow each other by as many steps, if that is better; down from the highest, up from the
    /// lowest, so that they stay in order on the way.
    bool Better(Found& one, const std::vector<FinderInput>& gears, int steps) {
        std::optional<Choice> moved = one.choice;
        for (std::size_t i = 0; i < gears.size() && moved; ++i) {
            moved = trial_.Moved(*moved, gears[steps > 0 ? i : gears.size() - 1 - i], steps);
        }
        if (!moved) return false;
        const double cost = Cost(*moved);
        if (cost >= one.cost) return false;
        one.choice = *moved;
        one.cost = cost;
        return true;
    }

    void Polish(Found& one) {
        const std::vector<FinderInput> gears = trial_.Independent();
        std::vector<std::vector<FinderInput>> moves;
        for (std::size_t from = 0; from < gears.size(); ++from) {
            for (std::size_t to = from; to < gears.size(); ++to) {
                moves.emplace_back(gears.begin() + static_cast<std::ptrdiff_t>(from),
                                   gears.begin() + static_cast<std::ptrdiff_t>(to) + 1);
            }
        }
        for (int step = 128; step > 0; step /= 2) {
            for (bool gained = true; gained;) {
                gained = false;
                for (const auto& move : moves) gained = Better(one, move, step) || Better(one, move, -step) || gained;
            }
        }
    }

    Trial trial_;
    std::mt19937_64 random_{1};
    int evaluations_ = 0;
};

int Make(int random, std::size_t first, std::size_t count) {
    const std::vector<FinderCase> cases = FinderCases();
    for (std::size_t i = first; i < std::min(first + count, cases.size()); ++i) {
        Reference reference(cases[i].Task);
        const Found found = reference.Search(random);
        std::printf("%-24s %9.5f %7d ", cases[i].Name.c_str(), found.cost, reference.Evaluations());
        for (std::size_t k = 0; k < 7; ++k) std::printf(" %.3f", found.choice.values[k]);
        std::printf("\n");
        std::fflush(stdout);
    }
    return 0;
}

int Compare(const char* path) {
    const std::vector<FinderCase> cases = FinderCases();
    std::ifstream file(path);
    int worse = 0;
    int held = 0;
    double worst = -1e9;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') continue;
        const auto one =
            std::ranges::find_if(cases, [&](const FinderCase& c) { return line.starts_with(c.Name + ' '); });
        if (one == cases.end()) continue;
        double cost = 0;
        std::istringstream(line.substr(one->Name.size())) >> cost;
        const FinderResult result = FindBest(one->Task);
        const double over = CostOf(one->Task.Target, result.After) - cost;
        std::printf("%-24s %9.5f %+9.5f %6d\n", one->Name.c_str(), cost, over, static_cast<int>(result.Evaluations));
        worst = std::max(worst, over);
        worse += over > 0.01 ? 1 : 0;
        ++held;
    }
    std::printf("%d cases, %d worse by more than 0.01, the worst by %+.5f\n", held, worse, worst);
    return held == 0 || worse > 0 ? 1 : 0;
}

}  // namespace
}  // namespace zolv

int main(int argc, char** argv) {
    const std::string_view what = argc > 1 ? argv[1] : "";
    if (what == "compare" && argc == 3) return zolv::Compare(argv[2]);
    if (what == "search" && (argc == 3 || argc == 5)) {
        const auto number = [&](int i) { return static_cast<std::size_t>(std::strtoul(argv[i], nullptr, 10)); };
        return zolv::Make(static_cast<int>(number(2)), argc == 5 ? number(3) : 0, argc == 5 ? number(4) : 1000);
    }
    std::fprintf(stderr, "usage: zolv-finder-reference search RANDOM [FIRST COUNT] | compare FILE\n");
    return 2;
}
