#include "search/evolution.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace zolv {
namespace {

constexpr std::size_t kGenes = 5;

double CostAfter(int evaluations, double spread, const std::function<double(const Evolution::Genes&)>& cost) {
    Evolution evolution({std::vector<double>(kGenes, 0.2), std::vector<double>(kGenes, spread), 1});
    evolution.Run(evaluations, cost, [] { return false; });
    return evolution.Cost();
}

// On a sphere such a strategy gains a power of ten every 12 n evaluations or so, once its steps have the right size:
// nine of them in 540. They begin a thousand times too small here, and have as many again to grow.
TEST(Evolution, FindsTheSizeOfItsSteps) {
    const auto sphere = [](const Evolution::Genes& genes) {
        return std::transform_reduce(genes.begin(), genes.end(), 0.0, std::plus(),
                                     [](double gene) { return (gene - 0.7) * (gene - 0.7); });
    };
    EXPECT_LT(CostAfter(1000, 0.0005, sphere), 1e-9);
}

// A narrow valley across all genes, a thousand times as long as wide, which only steps of its shape follow.
TEST(Evolution, FindsTheShapeOfItsSteps) {
    const auto valley = [](const Evolution::Genes& genes) {
        double along = 0;
        double squares = 0;
        for (const double gene : genes) {
            along += (gene - 0.7) / std::sqrt(static_cast<double>(kGenes));
            squares += (gene - 0.7) * (gene - 0.7);
        }
        return along * along + 1e6 * (squares - along * along);
    };
    EXPECT_LT(CostAfter(3000, 0.2, valley), 1e-8);
}

TEST(Evolution, EndsWhereARangeEnds) {
    const auto slope = [](const Evolution::Genes& genes) { return std::accumulate(genes.begin(), genes.end(), 0.0); };
    EXPECT_EQ(CostAfter(2000, 0.2, slope), 0);
}

}  // namespace
}  // namespace zolv
