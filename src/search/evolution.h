#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

namespace zolv {

/// Random numbers of the standard normal distribution: SplitMix64 (G. Steele, D. Lea, C. Flood, 2014) and the form of
/// Box and Muller.
class Normals {
public:
    explicit Normals(std::uint64_t seed) : state_(seed) {}
    [[nodiscard]] double Next();

private:
    [[nodiscard]] double Unit();  // 0 included, 1 not

    std::uint64_t state_;
};

/// Square, by rows.
struct Matrix {
    explicit Matrix(std::size_t size) : n(size), values(size * size) {}
    double& operator()(std::size_t row, std::size_t column) { return values[row * n + column]; }
    double operator()(std::size_t row, std::size_t column) const { return values[row * n + column]; }

    std::size_t n;
    std::vector<double> values;
};

/// What an evolution starts from.
struct EvolutionStart {
    std::vector<double> Mean;    // each gene from 0 to 1; one at least
    std::vector<double> Spread;  // standard deviation of each gene, above 0
    std::uint64_t Seed = 0;
};

/// Makes the cost of genes within 0 and 1 small: an evolution strategy that adapts the covariance of its mutations and
/// their size, (mu/mu_w, lambda)-CMA-ES with the constants of N. Hansen, "The CMA Evolution Strategy: A Tutorial",
/// arXiv:1604.00772. It goes by the order of the costs alone, so that the small jumps of a cost in steps of time do not
/// lead it astray. A gene that leaves its range is set back to the end of it.
class Evolution {
public:
    using Genes = std::vector<double>;

    explicit Evolution(const EvolutionStart& start);

    /// Goes on for as many evaluations, rounded up to whole generations.
    /// @param cost  of genes; called one at a time
    /// @param stop  asked before each evaluation; true ends the evolution for good
    void Run(int evaluations, const std::function<double(const Genes&)>& cost, const std::function<bool()>& stop);

    /// The best genes that were tried, and their cost; the mean and infinity before any.
    [[nodiscard]] const Genes& Best() const { return best_; }
    [[nodiscard]] double Cost() const { return cost_; }

private:
    void SetConstants();
    [[nodiscard]] Genes Mutant();
    void Adapt();
    void AdaptSize(const Genes& step);
    void AdaptCovariance(const Genes& before, const Genes& step, double size);

    std::size_t n_, lambda_;
    Normals random_;
    std::vector<double> mean_;
    Matrix covariance_, axes_;
    std::vector<double> lengths_, sizePath_, covariancePath_, weights_;
    double size_ = 1;
    double mu_ = 0, sizeRate_ = 0, sizeDamping_ = 0, pathRate_ = 0, rankOne_ = 0, rankMu_ = 0, expected_ = 0;
    double pathLength_ = 0;
    int generations_ = 0;
    std::vector<std::pair<double, std::vector<double>>> children_;  // of the generation, by cost
    Genes best_;
    double cost_ = std::numeric_limits<double>::infinity();
};

}  // namespace zolv
